#include "core/base/Texts.h"

namespace {

/// The text as it is compared: letters without their accents, in one case, without blanks at the end.
QString Compared(const QString& text)
{
    QString bare;
    for (const QChar character : text.normalized(QString::NormalizationForm_D)) {
        if (character.category() != QChar::Mark_NonSpacing)
            bare += character;
    }
    while (bare.endsWith(u' '))
        bare.chop(1);
    return bare.toCaseFolded();
}

} // namespace

bool IsSameText(const QString& left, const QString& right)
{
    return Compared(left) == Compared(right);
}
