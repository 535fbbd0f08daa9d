#pragma once

#include "core/forms/FormWindow.h"
#include "till/Ticket.h"

#include <QDateTime>

#include <memory>

namespace Ui {
class frmSale;
}

/// The till. One ticket sells part of one lot to one buyer; tickets saved one after the other form a
/// batch, which the status 结账 closes and the buyer then pays. The window is also the printed ticket: its
/// controls lie where their texts go on the paper.
class frmSale : public FormWindow {
    Q_OBJECT

public:
    explicit frmSale(QWidget* owner = nullptr);
    ~frmSale() override;

    void OnLoad() override;
    /// The buyer, from the picker.
    void TakeName(const QString& name) override;

private:
    enum class TicketMode { New = -1, Adjustment = 0 };

    // Entry
    void FillLists();
    void ShowHeadings();
    void TakeNextNumber();
    void PickVendee();
    void LookupLot();
    void CheckVerifyCode();
    void CheckSalesman();
    void RecalcTicket();
    void ShowThisBatch(const QString& caption);
    void ShowLastBatch(const QString& caption);
    void ShowChange();
    bool LeaveWhenOutOfStep();

    // Saving
    void SaveTicket();
    Ticket ReadTicket(const QDateTime& now) const;
    bool IsComplete(const Ticket& ticket);
    bool PassesCreditTest(const Ticket& ticket);
    void SaveNewTicket(const Ticket& ticket);
    bool StockSuffices(const Ticket& ticket);
    bool BookTicket(const Ticket& ticket);
    void CountIntoBatch();
    void CarryBatchOn();
    void CloseBatch();
    void EmptyOpenBoxes();
    void EmptyTicket();
    bool ClosesBatch() const;
    bool Refuse(QWidget* field, const QString& why);

    std::unique_ptr<Ui::frmSale> ui;
    TicketMode m_ticketMode = TicketMode::New;
    QString m_lotId; ///< the lot last looked up; it outlives the save of its ticket
    QString m_lotStore;
    double m_batchTotal = 0;     ///< yuan of the open batch's saved tickets
    int m_batchCount = 0;        ///< how many they are
    double m_oldTotalAmount = 0; ///< yuan of the ticket before its adjustment; 0 for a new one
    QString m_printStyle;
};
