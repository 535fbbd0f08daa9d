#pragma once

#include "core/forms/FormWindow.h"

#include <QDateTime>

#include <memory>

class RecordSet;

namespace Ui {
class frmPRDList;
}

/// Goods registration: books in one delivery of one owner, a lot, and corrects an open lot.
class frmPRDList : public FormWindow {
    Q_OBJECT

public:
    explicit frmPRDList(QWidget* owner = nullptr);
    ~frmPRDList() override;

    void OnLoad() override;
    /// A lot number; the open lot of that number comes up for correction.
    void SetKey(const QString& key) override;

private:
    /// What the fields say: texts trimmed, numbers as they stand in a statement.
    struct Entry;

    void ChainGoods();
    void ChainOwner();

    void AssignLotNumber();
    void ProposeLotNumber(const QString& pid);
    void LoadLotByNumber(const QString& number);
    void ShowLot(const RecordSet& lot);
    /// A lookup that failed half way leaves no number, new or another lot's, and without a sort nothing
    /// is saved.
    void ForgetLot();
    void CheckStore();

    void SaveLot();
    bool FieldsAreComplete();
    Entry ReadEntry() const;
    void CorrectLot(const Entry& entry, const QDateTime& now);
    bool BookNewLot(const Entry& entry, const QDateTime& now);
    QString TakeLotId(const QDateTime& now);
    void InsertLot(const Entry& entry, const QString& id, const QDateTime& now);
    void PrintSlip(const Entry& entry, const QDateTime& now);
    void ClearForNext(const QDateTime& now);

    std::unique_ptr<Ui::frmPRDList> ui;
    bool m_isNewLot = true;
    QString m_lotId;      ///< PRD_List.ID of the loaded lot, "" for a new one
    QString m_printStyle; ///< DFN_Paper.PrintStyle of the lot slip, as of the opening
};
