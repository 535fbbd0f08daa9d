#include "printing/DrawingLog.h"

#include "core/base/Numbers.h"

#include <QFont>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Twips to a tenth: a pen position is a single float, and its noise is no difference.
QString Twips(double value)
{
    return NumberText(std::round(value * 10) / 10);
}

QString InQuotes(QString text)
{
    text.replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s).replace(u'"', u"\\\""_s);
    return u'"' + text + u'"';
}

} // namespace

void DrawingLog::Note(const QString& call, std::initializer_list<double> numbers)
{
    QString line = call;
    for (const double number : numbers)
        line += u' ' + Twips(number);
    m_lines << line;
}

void DrawingLog::NoteText(const QString& text, double x, double y, const QFont& font)
{
    QString line = u"text "_s + Twips(x) + u' ' + Twips(y) + u' ' + InQuotes(font.family()) + u' ' +
                   NumberText(font.pointSizeF());
    if (font.bold())
        line += u" bold"_s;
    if (font.italic())
        line += u" italic"_s;
    if (font.stretch() != QFont::AnyStretch && font.stretch() != QFont::Unstretched)
        line += u" stretch "_s + QString::number(font.stretch());
    m_lines << line + u' ' + InQuotes(text);
}
