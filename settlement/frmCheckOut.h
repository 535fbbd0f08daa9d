#pragma once

#include "settlement/SettlementForm.h"

#include <memory>

namespace Ui {
class frmCheckOut;
}

/// The settlement with the lot's stock summary. The figures of the last lot stay until the next lot's
/// replace them.
class frmCheckOut : public SettlementForm {
    Q_OBJECT

public:
    explicit frmCheckOut(QWidget* owner = nullptr);
    ~frmCheckOut() override;

    /// The new caption of the fee that was renamed (Session::FeeLabelKey).
    void TakeName(const QString& name) override;

protected:
    void KeepPrintStyle() override;
    void TakeStore(const QString& store) override { m_store = store; }
    QString Store() const override { return m_store; }
    bool HasStockLine() const override { return true; }
    void ShowStock(const LotStock& stock) override;
    QString PrintStyle() const override { return m_printStyle; }
    Document PrintedAs() const override { return Document::CheckOut; }

private:
    std::unique_ptr<Ui::frmCheckOut> ui;
    QString m_store;
    QString m_printStyle; ///< as read at load: a change counts from the next opening
};
