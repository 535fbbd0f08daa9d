#pragma once

#include <QIcon>

/// The pictures of the users' tree, drawn like those of the toolbar.
QIcon AllUsersIcon();
QIcon UserIcon();
