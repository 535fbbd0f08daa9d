#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmStore;
}

/// Storage places: a list to which a name is added and from which the chosen ones are taken.
class frmStore : public FormWindow {
    Q_OBJECT

public:
    explicit frmStore(QWidget* owner = nullptr);
    ~frmStore() override;

    void OnLoad() override;

private:
    void ShowStores();
    void Save();
    void DeleteSelected();

    std::unique_ptr<Ui::frmStore> ui;
};
