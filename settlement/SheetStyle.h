#pragma once

class QWidget;

/// Dresses a window as a sheet of paper: what is typed stands in white boxes, what is shown stands bare,
/// at the height at which the printer puts it, 120 twips below the top of its box.
void ApplySheetStyle(QWidget* form);
