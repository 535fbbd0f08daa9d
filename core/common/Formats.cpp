#include "core/common/Formats.h"

#include "core/base/Numbers.h"
#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"

#include <QLineEdit>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int MoneyDecimals = 1;
constexpr int DefaultDecimals = 1;

int DecimalPlaces(const QString& decimals)
{
    return decimals.isEmpty() ? DefaultDecimals : ToInt16(RequiredNumber(decimals));
}

QString CapitalDigit(QChar digit)
{
    static const QString capitals = u"零壹贰叁肆伍陆柒捌玖"_s;
    return capitals.at(digit.digitValue());
}

/// The two decimals: the first is silent when it is zero, the second is not.
QString CapitalFraction(const QString& fraction)
{
    QString tail;
    if (!fraction.isEmpty() && fraction[0] != u'0')
        tail = CapitalDigit(fraction[0]) + u'角';
    if (fraction.size() > 1)
        tail += CapitalDigit(fraction[1]) + u'分';
    return tail;
}

/// Puts a digit with its unit in front of a group; a zero leaves one 零, never two in a row.
void Prepend(QString& group, QChar digit, QChar unit)
{
    if (digit != u'0')
        group.prepend(CapitalDigit(digit) + unit);
    else if (!group.startsWith(u'零'))
        group.prepend(u'零');
}

} // namespace

QString FormatAmount(double value, const QString& decimals)
{
    return RoundedText(value, DecimalPlaces(decimals), true);
}

void FormatTextBox(QLineEdit* box, const QString& decimals)
{
    WriteText(box, FormatAmount(TextToDouble(box->text()), decimals));
}

QString FormatMoney(double value)
{
    QString text = RoundedText(value, MoneyDecimals, true);
    text.insert(text.startsWith(u'-') ? 1 : 0, u'¥');
    return text;
}

QString RepeatText(const QString& text, int count)
{
    return count < 1 ? QString() : text.repeated(count);
}

QString CheckMark(const QString& flag)
{
    return flag == u"1" ? u"√"_s : QString();
}

QString StockChangeName(const QString& type)
{
    if (type == u"0")
        return u"进货"_s;
    if (type == u"1")
        return u"转出"_s;
    return type == u"2" ? u"损耗"_s : QString();
}

QString PackTypeName(const QString& type)
{
    static const std::array<QString, 5> names{u"进筐"_s, u"退筐"_s, u"损筐"_s, u"还筐"_s, u"借筐"_s};
    bool good = false;
    const int index = type.toInt(&good);
    return good && type.size() == 1 && index < 5 ? names[static_cast<std::size_t>(index)] : QString();
}

QString MoneyToCapitals(double amount)
{
    if (amount == 0)
        return QString();
    if (amount < 0)
        return u"负"_s + MoneyToCapitals(-amount);

    QString text = NumberText(amount);
    if (text.startsWith(u"0."))
        text.remove(0, 1);
    const QString integer = text.section(u'.', 0, 0);
    const QString tail = CapitalFraction(text.section(u'.', 1));

    QString low;
    QString high;
    static const QString units = u"拾佰仟"_s;
    const auto digitFromRight = [&integer](qsizetype place) { return integer[integer.size() - 1 - place]; };
    for (qsizetype place = 0; place < qMin<qsizetype>(integer.size(), 8); ++place) {
        const QChar digit = digitFromRight(place);
        QString& group = place < 4 ? low : high;
        if (place % 4 == 0)
            group = CapitalDigit(digit);
        else if (place < 7 || digit != u'0') // ten millions are silent when zero
            Prepend(group, digit, units[place % 4 - 1]);
    }
    if (low.endsWith(u'零'))
        low.chop(1);
    if (!high.isEmpty()) {
        if (high.endsWith(u'零'))
            high.chop(1);
        high += u'万';
    }
    return high.isEmpty() && low.isEmpty() ? tail : high + low + u'元' + tail;
}
