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

protected:
    /// The buyer is picked by F2 from anywhere in the window.
    void keyPressEvent(QKeyEvent* event) override;

private:
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
    bool BookNewTicket(const Ticket& ticket);
    void CountIntoBatch();
    void CarryBatchOn();
    void CloseBatch();
    void EmptyOpenBoxes();
    /// Readies the screen for the next ticket. Of the saved one there stay: its lot (m_lotId, m_lotStore)
    /// until another is looked up, the batch it belongs to with its figures, lblTotal as it was printed,
    /// the change that was given, date and cashier. The boxes that take typing are empty already
    /// (EmptyOpenBoxes).
    void EmptyTicket();
    bool ClosesBatch() const;

    std::unique_ptr<Ui::frmSale> ui;
    QString m_lotId; ///< the lot last looked up; it outlives the save of its ticket
    QString m_lotStore;
    double m_batchTotal = 0;    ///< yuan of the open batch's saved tickets
    int m_batchCount = 0;       ///< how many they are
    bool m_isRecalcDue = false; ///< the totals are those of other figures: working them out failed
    QString m_printStyle;
};
