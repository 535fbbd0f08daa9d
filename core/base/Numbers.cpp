#include "core/base/Numbers.h"

#include "core/base/RunTimeError.h"

#include <QRegularExpression>

#include <array>
#include <charconv>
#include <cmath>

namespace {

// What DECIMAL(20,6) holds before the point.
constexpr int StoredWholeDigits = 14;

// A difference of two nearly equal numbers keeps the noise of the larger ones: 50.3 - 50.2 is wrong in
// its fourteenth digit. Behind the ninth place nothing but noise is left of yuan, kilograms and pieces.
constexpr int SettledDecimals = 9;

/// A value taken apart: 0.DIGITS x 10^point, without a sign.
struct DecimalDigits {
    QByteArray digits;
    int point = 0;
};

DecimalDigits TakeApart(double value)
{
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                   std::chars_format::scientific, TrustedDigits - 1);
    const QByteArray text(buffer.data(), end.ptr - buffer.data());
    const auto exponentAt = text.indexOf('e');
    DecimalDigits parts;
    parts.digits = text.left(exponentAt);
    parts.digits.remove(1, 1);
    parts.point = text.mid(exponentAt + 1).toInt() + 1;
    while (parts.digits.size() > 1 && parts.digits.endsWith('0'))
        parts.digits.chop(1);
    if (parts.digits == "0")
        parts.point = 1;
    return parts;
}

QByteArray IntegerPart(const DecimalDigits& parts)
{
    if (parts.point <= 0)
        return "0";
    return parts.digits.left(parts.point).leftJustified(parts.point, '0');
}

QByteArray FractionPart(const DecimalDigits& parts)
{
    if (parts.point >= parts.digits.size())
        return {};
    return parts.point < 0 ? QByteArray(-parts.point, '0') + parts.digits : parts.digits.mid(parts.point);
}

/// Adds one to the last digit of a text of digits, carrying to the left.
void CountUp(QByteArray& digits)
{
    for (auto i = digits.size(); i-- > 0;) {
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.prepend('1');
}

/// Digits with at most one point, as most fields hold. The pattern of ParseNumber reads them the same, at
/// ten times the price, and the till reads five fields on every keystroke.
bool IsPlainNumber(const QString& text)
{
    qsizetype points = 0;
    for (const QChar character : text) {
        if (character == u'.')
            ++points;
        else if (character < u'0' || character > u'9')
            return false;
    }
    return points <= 1 && text.size() > points;
}

} // namespace

QString NumberText(double value)
{
    if (!std::isfinite(value))
        throw OverflowError();
    const DecimalDigits parts = TakeApart(value);
    const QByteArray fraction = FractionPart(parts);
    QByteArray text = IntegerPart(parts);
    if (!fraction.isEmpty())
        text += '.' + fraction;
    if (value < 0 && text != "0")
        text.prepend('-');
    return QString::fromLatin1(text);
}

QString SqlNumber(double value)
{
    QString text = NumberText(value);
    if (TakeApart(value).point > StoredWholeDigits)
        throw OverflowError();
    return text;
}

double Settled(double value)
{
    return RoundedText(value, SettledDecimals, false).toDouble();
}

QString RoundedText(double value, int decimals, bool grouped)
{
    if (!std::isfinite(value))
        throw OverflowError();
    const DecimalDigits parts = TakeApart(value);
    const QByteArray fraction = FractionPart(parts).leftJustified(decimals + 1, '0');
    QByteArray kept = IntegerPart(parts) + fraction.left(decimals);
    const auto width = kept.size();
    if (fraction[decimals] >= '5')
        CountUp(kept);
    const bool isZero = kept.count('0') == kept.size();

    QByteArray whole = kept.left(kept.size() - decimals);
    Q_ASSERT(kept.size() >= width);
    if (grouped) {
        for (auto at = whole.size() - 3; at > 0; at -= 3)
            whole.insert(at, ',');
    }
    QByteArray text = decimals > 0 ? whole + '.' + kept.right(decimals) : whole;
    if (value < 0 && !isZero)
        text.prepend('-');
    return QString::fromLatin1(text);
}

std::optional<double> ParseNumber(const QString& text)
{
    if (IsPlainNumber(text)) {
        const double plain = text.toDouble();
        return std::isfinite(plain) ? std::optional(plain) : std::nullopt;
    }
    static const QRegularExpression shape(
        QStringLiteral("^(?<open>\\()?\\s*(?<sign1>[-+])?\\s*[¥￥$]?\\s*(?<sign2>[-+])?"
                       "(?<digits>(?:[0-9][0-9,]*(?:\\.[0-9]*)?|\\.[0-9]+)(?:[eEdD][-+]?[0-9]+)?)"
                       "\\s*(?<close>\\))?$"));
    const auto match = shape.match(text.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    const QString sign1 = match.captured(QStringLiteral("sign1"));
    const QString sign2 = match.captured(QStringLiteral("sign2"));
    const bool open = !match.captured(QStringLiteral("open")).isEmpty();
    const bool close = !match.captured(QStringLiteral("close")).isEmpty();
    const bool isSigned = !sign1.isEmpty() || !sign2.isEmpty();
    if ((!sign1.isEmpty() && !sign2.isEmpty()) || open != close || (open && isSigned))
        return std::nullopt;

    QString digits = match.captured(QStringLiteral("digits"));
    digits.remove(u',').replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive);
    bool good = false;
    const double value = digits.toDouble(&good);
    if (!good || !std::isfinite(value))
        return std::nullopt;
    return open || sign1 == u"-" || sign2 == u"-" ? -value : value;
}

bool IsNumeric(const QString& text)
{
    return ParseNumber(text).has_value();
}

double TextToDouble(const QString& text)
{
    return text.trimmed().isEmpty() ? 0.0 : RequiredNumber(text);
}

double RequiredNumber(const QString& text)
{
    const auto value = ParseNumber(text);
    if (!value)
        throw TypeMismatchError();
    return *value;
}

double LeadingNumber(const QString& text)
{
    static const QRegularExpression start(QStringLiteral("^\\s*[-+]?(?:[0-9]+(?:\\.[0-9]*)?|\\.[0-9]+)"));
    return start.match(text).captured().trimmed().toDouble();
}

std::int16_t ToInt16(double value)
{
    const double whole = std::nearbyint(value); // the default rounding mode takes halves to even
    if (!(whole >= INT16_MIN && whole <= INT16_MAX))
        throw OverflowError();
    return static_cast<std::int16_t>(whole);
}

double RoundHalfUp(double x)
{
    const double settled = Settled(x);
    const double whole = std::floor(settled);
    return Settled(settled - whole) >= 0.5 ? whole + 1 : whole;
}
