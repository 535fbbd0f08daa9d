#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// How many significant digits of a double are trusted. A binary sum is wrong in the sixteenth at the
/// earliest, so 8.2 - 0.7 reads 7.5 here and not 7.499999999999999.
inline constexpr int TrustedDigits = 15;

/// The number as plain text: at most fifteen significant digits, "." as the point, no grouping, no
/// exponent, no trailing zeros; zero is "0" whatever its sign.
QString NumberText(double value);

/// The number as it goes into a statement: NumberText. @throws OverflowError when the value is not
/// finite or has more than fourteen digits before the point, which no number column holds.
QString SqlNumber(double value);

/// The value with fifteen significant digits and nine places: takes the noise of binary sums off before
/// a compare or a rounding, so that 50.3 - 50.2 is not below 0.1 and 0.8 - (0.7 + 0.1) is 0.
double Settled(double value);

/// The text rounded to `decimals` places, halves away from zero, on the decimal digits that NumberText
/// shows (0.25 gives "0.3", 1.005 at two places "1.01"). A result of zero carries no sign.
/// With `grouped`, the integer part has a comma every three digits.
QString RoundedText(double value, int decimals, bool grouped);

/// Reads a number as a person writes it: blanks around it, one sign, one currency sign (¥ ￥ $) before
/// or behind the minus, commas in the integer part, "1." and ".5", an exponent (e or d), brackets as a
/// minus. Anything else, full-width digits, "nan" and hexadecimal included, is no number.
std::optional<double> ParseNumber(const QString& text);

/// True for what ParseNumber reads; an empty or blank text is no number.
bool IsNumeric(const QString& text);

/// 0 when the trimmed text is empty, else the number. @throws TypeMismatchError for any other text.
double TextToDouble(const QString& text);

/// The number of a text that must hold one. @throws TypeMismatchError for an empty text too.
double RequiredNumber(const QString& text);

/// The number at the start of a text, 0 when there is none ("12abc" is 12): how ini values are read.
double LeadingNumber(const QString& text);

/// The value as a 16-bit integer, halves to even (2.5 is 2, 3.5 is 4). @throws OverflowError outside
/// -32768..32767.
std::int16_t ToInt16(double value);

/// The largest whole number not above x, plus 1 when the rest is 0.5 or more: 2.5 is 3, -2.5 is -2.
/// The argument is Settled first.
double RoundHalfUp(double x);
