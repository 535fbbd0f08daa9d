#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

class RecordSet;

namespace Ui {
class frmUserList;
}

/// A user: number, name, password, the address he may be bound to, and whether he sees and adjusts the
/// bills of all or only his own. Typing the number looks it up; one that exists is updated, another
/// inserted. A new user has no menu rights: frmUserMenu grants them.
class frmUserList : public FormWindow {
    Q_OBJECT

public:
    explicit frmUserList(QWidget* owner = nullptr);
    ~frmUserList() override;

    void SetKey(const QString& key) override;

private:
    void LookUp();
    void ShowUser(const RecordSet& row);
    void ClearUser();
    bool IsComplete();
    void Save();

    std::unique_ptr<Ui::frmUserList> ui;
    bool m_isFound = false; ///< the number is that of an existing user
};
