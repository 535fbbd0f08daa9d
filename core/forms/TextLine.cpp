#include "core/forms/TextLine.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Where two texts part.
qsizetype CommonStart(QStringView one, QStringView other)
{
    return std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first - one.begin();
}

QString InOneLine(QString text)
{
    static const QRegularExpression breaks(u"[\\t\\n\\v\\f\\r\\x{85}\\x{2028}\\x{2029}]+"_s);
    return text.replace(breaks, u" "_s);
}

} // namespace

TextLine::TextLine(QLineEdit* box) : QObject(box), m_box(box), m_text(box->text())
{
    connect(box, &QLineEdit::textEdited, this, &TextLine::Edited); // comes before textChanged
    connect(box, &QLineEdit::textChanged, this, &TextLine::Follow);
    if (box->isReadOnly())
        box->home(false);
}

TextLine& TextLine::Of(QLineEdit* box)
{
    auto* line = box->findChild<TextLine*>(QString(), Qt::FindDirectChildrenOnly);
    return line ? *line : *new TextLine(box);
}

void TextLine::Edited()
{
    // What came in stands before the cursor; around it is what was there.
    const QString text = m_box->text();
    const qsizetype cursor = m_box->cursorPosition();
    const QStringView behind = QStringView(text).mid(cursor);
    const QStringView old = m_text;
    const QStringView before = old.endsWith(behind) ? old.chopped(behind.size()) : old;
    const qsizetype start = CommonStart(QStringView(text).left(cursor), before);

    QString added = InOneLine(text.mid(start, cursor - start));
    const qsizetype excess =
        m_limit < 0 ? 0
                    : std::clamp(start + added.size() + behind.size() - m_limit, qsizetype{0}, added.size());
    added.chop(excess);
    if (excess > 0 && !added.isEmpty() && added.back().isHighSurrogate())
        added.chop(1); // half a character, which no table stores
    if (excess > 0)
        Hint(u"最多%1个字"_s.arg(m_limit));
    else if (!m_areQuotesHarmless && (added.contains(u'\'') || added.contains(u'\\')))
        Hint(u"' 和 \\ 存不进去"_s);
    const QString taken = text.left(start) + added + behind.toString();
    if (taken == text)
        return;
    m_isRestoring = taken == m_text;
    m_box->setText(taken);
    m_isRestoring = false;
    m_box->setCursorPosition(static_cast<int>(start + added.size()));
}

void TextLine::Follow(const QString& text)
{
    // After a correction the box still tells of the text as it came.
    if (text != m_box->text() || m_isRestoring)
        return;
    m_text = text;
    if (m_box->isReadOnly())
        m_box->home(false);
    emit Changed(text);
}

void TextLine::Hint(const QString& words)
{
    QToolTip::showText(m_box->mapToGlobal(QPoint(0, m_box->height())), words, m_box);
}
