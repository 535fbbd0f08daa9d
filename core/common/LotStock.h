#pragma once

#include <QString>

/// The pieces of one lot: what came, what went, what is left. All figures may have decimals, and none of
/// the results carries the noise of a binary sum.
struct LotStock {
    double delivered = 0; ///< PRD_List.Num, the first delivery
    double added = 0;     ///< stock changes 进货
    double movedOut = 0;  ///< stock changes 转出
    double lost = 0;      ///< stock changes 损耗
    double sold = 0;      ///< tickets of the lot

    /// 总到货量: everything that was brought in.
    double Arrived() const;
    /// 实到货量: of that, what stayed for sale.
    double StayedForSale() const;
    /// 库存: what is left; negative after an oversale.
    double Left() const;
};

// The sums over a lot's movements. Each is one statement, so that a caller asks for no more than it shows;
// an empty ID is no lot, and its sums are 0. @throws DatabaseError for all of them.

/// PRD_List.Num of the lot, for callers that have not read its row.
double SumDelivered(const QString& lotId);
/// The stock changes 进货 of the lot.
double SumAdded(const QString& lotId);
/// The pieces on the lot's tickets.
double SumSold(const QString& lotId);

/// A lot of which `delivered` pieces were booked in, with its stock changes, in three statements: 进货,
/// 转出, 损耗. Nothing of it counts as sold: a caller that needs the sales sets them.
LotStock ReadStockChanges(const QString& lotId, double delivered);
