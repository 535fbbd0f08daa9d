#pragma once

#include <QString>

/// The release of the program, "0.2.0". (The version that 关于产品 shows is that of the system's rules.)
QString ProgramVersion();
