#pragma once

#include <QString>

/// The workstation's own address as dotted text: the first IPv4 address of its primary interface;
/// 127.0.0.1 only where there is no other.
QString LocalIP();
