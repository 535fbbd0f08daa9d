#pragma once

#include <QString>

class QLineEdit;

/// The number format of the screens: `decimals` places ("" means "1"), a leading zero, thousands grouped
/// by commas, negatives with a minus, halves rounded away from zero. 1234.5 with "2" is "1,234.50".
/// @throws TypeMismatchError when `decimals` is no number.
QString FormatAmount(double value, const QString& decimals);

/// Rewrites the box's text in the number format. An empty text counts as 0.
/// @throws TypeMismatchError when the text or `decimals` is no number; what the box's Change handler throws
void FormatTextBox(QLineEdit* box, const QString& decimals);

/// Yuan as the screens show them: "¥1,234.5", "-¥12.5", "¥0.0".
QString FormatMoney(double value);

/// The text `count` times over; "" when the count is below 1.
QString RepeatText(const QString& text, int count);

/// "√" for the flag "1", "" for anything else.
QString CheckMark(const QString& flag);

/// The words for EStore_List.EStoreType: "0" 进货, "1" 转出, "2" 损耗; "" otherwise.
QString StockChangeName(const QString& type);

/// The words for Pack_List.PackType: "0" 进筐, "1" 退筐, "2" 损筐, "3" 还筐, "4" 借筐; "" otherwise.
QString PackTypeName(const QString& type);

/// An amount in Chinese capitals, with no closing word behind the last unit: 1000.5 is 壹仟元伍角. Zero
/// is "". Digits behind the second decimal are dropped, not rounded; digits above the eighth before the
/// point are dropped too.
QString MoneyToCapitals(double amount);
