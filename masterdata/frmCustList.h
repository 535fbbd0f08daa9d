#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

class RecordSet;

namespace Ui {
class frmCustList;
}

/// A buyer: the name, which is the key, the ways to reach him, and the limit of his credit. Typing the
/// name looks it up; a name that exists is updated, another inserted.
class frmCustList : public FormWindow {
    Q_OBJECT

public:
    explicit frmCustList(QWidget* owner = nullptr);
    ~frmCustList() override;

    void SetKey(const QString& key) override;

private:
    void LookUp();
    void ShowBuyer(const RecordSet& row);
    void ClearBuyer();
    void Save();

    std::unique_ptr<Ui::frmCustList> ui;
    bool m_isFound = false; ///< the name is that of an existing buyer
};
