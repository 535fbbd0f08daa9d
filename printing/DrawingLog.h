#pragma once

#include <QStringList>

#include <utility>

class QFont;

/// The drawing calls of a document as text, one line each, in their order: what was called, where in
/// twips, and for a text its font. Two documents that read alike are drawn alike.
class DrawingLog {
public:
    /// A call with its numbers: "line 600 1200 11310 1200".
    void Note(const QString& call, std::initializer_list<double> numbers = {});
    /// A text at the pen: `text 600 930 "Noto Serif CJK SC" 18 bold "结算清单"`, and `stretch 75` before the
    /// text where its letters are narrowed to so many percent.
    void NoteText(const QString& text, double x, double y, const QFont& font);

    /// The lines since the last call.
    QStringList TakeLines() { return std::exchange(m_lines, {}); }

private:
    QStringList m_lines;
};
