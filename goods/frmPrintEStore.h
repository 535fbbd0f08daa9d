#pragma once

#include "goods/TransferForm.h"

#include <QDate>
#include <QWidget>

namespace Ui {
class frmPrintEStore;
}

/// What a stock change slip says. Quantities in the lot's unit.
struct StockChangeSlip {
    QDate date; ///< day of the change
    QString custName;
    QString prdNo;
    QString prdName;
    QString custInDate;   ///< day of delivery, as PRD_List keeps it
    double custInNum = 0; ///< delivered
    QString store;
    QString kind;     ///< "进货", "转出" or "损耗"
    double num = 0;   ///< changed by, positive for each kind
    double stock = 0; ///< after the change, sales not taken off
    QString memo;
};

/// The stock change slip as a form, made like frmTemp.
class frmPrintEStore : public QWidget, public TransferForm<frmPrintEStore> {
    Q_OBJECT

public:
    ~frmPrintEStore() override;

    /// Writes the texts of a slip, with the present user as the one who booked it.
    void Fill(const StockChangeSlip& slip);

private:
    friend class TransferForm<frmPrintEStore>;
    frmPrintEStore();

    std::unique_ptr<Ui::frmPrintEStore> ui;
};
