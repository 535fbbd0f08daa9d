#pragma once

#include <array>

class QFrame;
class QWidget;

/// The four thin lines around a label button: top, bottom, left, right.
using HoverLines = std::array<QFrame*, 4>;

/// Four hidden lines on a form.
HoverLines MakeHoverLines(QWidget* form);

/// Shows the lines 70 twips outside the label's edges.
void ShowHoverBox(const QWidget* label, const HoverLines& lines);

/// Hides the lines, if the first one is visible.
void HideHoverBox(const HoverLines& lines);
