#pragma once

/// Where the parts of the report window stand in its design, in twips. On paper the headings and the list
/// keep these distances, whatever the screen, its fonts and the size of the window make of them.
namespace ReportLayout {

inline constexpr double Left = 120; ///< of lvReport
inline constexpr double CompNameTop = 240;
inline constexpr double ReportNameTop = 640;
inline constexpr double SearchStrTop = 1040;
inline constexpr double ListTop = 1440;

} // namespace ReportLayout
