#include "settlement/SettlementMath.h"

#include "core/base/Numbers.h"

#include <numeric>

namespace {
constexpr double KilogramsPerTonne = 1000;
} // namespace

double WeightShown(double weighed, double piecesWithoutWeight, double perPiece)
{
    const auto kilograms = ToInt16(perPiece);
    return kilograms > 0 ? kilograms * piecesWithoutWeight + weighed : weighed;
}

double TotalOfDeductions(const Deductions& lines)
{
    return Settled(std::accumulate(lines.begin(), lines.end(), 0.0));
}

double NetToOwner(double amount, double total)
{
    return Settled(amount - total);
}

double FeeByPercent(double percent, double amount)
{
    return percent * amount / 100;
}

double FeeByWeight(double perTonne, double kilograms)
{
    return perTonne * kilograms / KilogramsPerTonne;
}

double FeeByCount(double perPiece, double pieces)
{
    return perPiece * pieces;
}
