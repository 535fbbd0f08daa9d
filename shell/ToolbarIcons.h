#pragma once

#include <QIcon>
#include <QString>

/// The picture of a toolbar button, drawn so that it needs no file and stays sharp on any screen.
QIcon ToolbarIcon(const QString& key);
