#pragma once

#include <QString>

/// True when the buyer may buy for `newAmount` yuan more (less `oldAmount` of the ticket being adjusted):
/// the buyer has no limit, or limit is not below what is owed after it. Otherwise false, with the credit
/// left in Session::CreditLeft. @throws DatabaseError
bool CheckCreditLimit(const QString& buyer, double newAmount, double oldAmount);
