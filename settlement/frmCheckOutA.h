#pragma once

#include "settlement/SettlementForm.h"

#include <memory>

namespace Ui {
class frmCheckOutA;
}

/// The settlement that shows the lot's store, and clears itself with each new number, so that figures
/// of the last lot never stand beside it.
class frmCheckOutA : public SettlementForm {
    Q_OBJECT

public:
    explicit frmCheckOutA(QWidget* owner = nullptr);
    ~frmCheckOutA() override;

protected:
    void LotNumberChanged() override;
    void TakeStore(const QString& store) override;
    QString Store() const override;
    QString PrintStyle() const override;
    Document PrintedAs() const override { return Document::CheckOutA; }

private:
    std::unique_ptr<Ui::frmCheckOutA> ui;
};
