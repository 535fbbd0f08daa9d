#pragma once

#include <QString>

class QLabel;
class QLineEdit;

// Texts that are whole in view: a font too wide for its control gives way, so that neither the front of a
// figure nor the end of a name is cut off. What is too wide even then is cut.

/// Shows a figure in a label, in the form's own size times `scale`, or smaller, down to 8 points.
void ShowWhole(QLabel* label, const QString& text, double scale = 1);

// What prints keeps its size, which paper takes from it, and is narrowed instead, down to half its width.

/// Shows a text in a label.
void ShowNarrowed(QLabel* label, const QString& text);

/// Keeps the text of a box narrowed from now on, as it is typed and written.
void KeepNarrowed(QLineEdit* box);
