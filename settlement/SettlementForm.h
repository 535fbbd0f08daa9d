#pragma once

#include "core/forms/FormWindow.h"
#include "printing/Documents.h"
#include "settlement/Settlement.h"
#include "settlement/SettlementControls.h"

struct LotStock;

/// The settlement of a lot with its owner: sales less fees and advances. Every figure lives as the text
/// of its field and is read back from there, so what is saved is what is shown. The two layouts are
/// alike but for the hooks below.
class SettlementForm : public FormWindow {
    Q_OBJECT

public:
    void OnLoad() override;

protected:
    explicit SettlementForm(QWidget* owner);

    /// The table of controls. Called once, when the layout stands.
    void Wire(const SettlementControls& controls);

    const SettlementControls& Controls() const { return m_controls; }
    bool IsNewStatus() const { return m_bolNewStatus; }

    /// Sets the caption of a fee by its label key, "L0".."L9"; any other key has no label.
    void ShowFeeCaption(const QString& key, const QString& caption);

    // Where the layouts differ.

    /// The last step of the load before the first bill number.
    virtual void KeepPrintStyle() {}
    /// After each change of txtPRDNo.
    virtual void LotNumberChanged() {}
    /// Where the lot's store is held.
    virtual void TakeStore(const QString& store) = 0;
    virtual QString Store() const = 0;
    /// True for the layout that shows how the lot's pieces came and went; only then are they read, behind
    /// the lot's other figures.
    virtual bool HasStockLine() const { return false; }
    virtual void ShowStock(const LotStock& /*stock*/) {}
    /// DFN_Paper.PrintStyle of the settlement.
    virtual QString PrintStyle() const = 0;
    virtual Document PrintedAs() const = 0;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void WireFees();
    void InitSettlementForm();
    void ShowFeeCaptions();
    void RenameFee(int index);

    void LoadLotForSettlement();
    void LookUpLot(const QString& number);
    /// A lookup that failed half way leaves no lot in hand and nothing of one on the sheet: the new
    /// lot's key beside the last one's figures would be saved as it stands.
    void ForgetLot();
    void RecalculateSettlement();
    void ChargeByPercent(const QLineEdit* rate, QLineEdit* fee);
    void ChargeByUnit(const QString& feeId, const QLineEdit* rate, QLineEdit* fee);

    void SaveSettlement();
    Settlement SettlementOnSheet() const;
    void CloseLot(const QString& checkNo, const QString& today);
    void MakeRoomForNextLot();

    SettlementControls m_controls{};
    QString m_lotId;            ///< PRD_List.ID of the lot that was found
    bool m_bolNewStatus = true; ///< settling a lot, not adjusting a saved settlement
};
