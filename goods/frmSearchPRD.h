#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmSearchPRD;
}

/// The filter of the goods list: exact matches of what is filled in; all empty shows every open lot.
class frmSearchPRD : public FormWindow {
    Q_OBJECT

public:
    explicit frmSearchPRD(QWidget* owner = nullptr);
    ~frmSearchPRD() override;

    void OnLoad() override;

private:
    void Search();
    QString Clause() const;

    std::unique_ptr<Ui::frmSearchPRD> ui;
};
