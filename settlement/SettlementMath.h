#pragma once

#include <array>

/// The ten deduction lines of a settlement, yuan, in the order in which they are added up and stored:
/// management, packing, unloading, advances, sanitation, service, recoup, cold store, field, other.
using Deductions = std::array<double, 10>;

/// Kilograms shown for a lot: the weighed tickets' sum, plus the pieces of tickets without a weight at
/// `perPiece` kilograms each. `perPiece` (PRD_List.MPercent) counts as a whole number, halves to even
/// (2.5 is 2, 3.5 is 4), and only above 0. @throws OverflowError when it does not fit sixteen bits
double WeightShown(double weighed, double piecesWithoutWeight, double perPiece);

/// What is taken off the sales amount, advances included, yuan.
double TotalOfDeductions(const Deductions& lines);

/// What is left to the owner, yuan, before any rounding; not above 0 means that nothing is left. Noise
/// of the binary sum is taken off, so that a rest of exactly 0 is 0.
double NetToOwner(double amount, double total);

/// A fee of `percent` per cent of the sales amount, yuan.
double FeeByPercent(double percent, double amount);

/// A fee by weight, yuan: `perTonne` yuan a tonne of 1000 kilograms.
double FeeByWeight(double perTonne, double kilograms);

/// A fee by count, yuan: `perPiece` yuan a piece.
double FeeByCount(double perPiece, double pieces);
