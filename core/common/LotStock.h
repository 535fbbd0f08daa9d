#pragma once

/// The pieces of one lot: what came, what went, what is left. All figures may have decimals.
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
