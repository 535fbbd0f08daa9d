#pragma once

#include "core/forms/FormWindow.h"

#include <QStringList>

#include <memory>

namespace Ui {
class frmGetCustList;
}

/// The pick-list of buyers: hands a name to the window that asked for one. A name that is not in the list
/// can be typed and is handed over as it stands.
class frmGetCustList : public FormWindow {
    Q_OBJECT

public:
    explicit frmGetCustList(QWidget* owner = nullptr);
    ~frmGetCustList() override;

    void OnLoad() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowMatch();
    void TakeSelected();
    void Submit();

    std::unique_ptr<Ui::frmGetCustList> ui;
    QStringList m_names; ///< row by row what the list shows
};
