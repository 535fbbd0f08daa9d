#pragma once

#include "core/forms/Form.h"

#include <QHash>
#include <QMainWindow>

#include <array>

class QAction;
class QLabel;
class WorkArea;
struct MenuEntry;

/// The frame: menus by the user's rights, the toolbar that acts on the open list or report, the status
/// bar, and the rule that one function window is open at a time.
///
/// Its menus and buttons are a table (MenuTable), which also names the rights, so it has no .ui.
class frmMain : public QMainWindow, public Form {
    Q_OBJECT

public:
    explicit frmMain(QWidget* owner = nullptr);
    ~frmMain() override;

    QWidget* Widget() override { return this; }
    void OnLoad() override;
    void Hold(Form* window) override;

    /// Switches the toolbar's buttons by their positions, separators counted: 2, 4, .. 20.
    void EnableToolbar(std::initializer_list<int> positions, bool enabled = true);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void BuildToolbar();
    void BuildStatusBar();
    void ApplyUserMenus();
    void Choose(const MenuEntry& entry);
    void OpenWindow(const MenuEntry& entry);
    void ResetToolbar();

    void PressToolbar(const QString& key);
    void ToolbarNew();
    void ToolbarPrint();
    void ToolbarEdit();
    void ToolbarSearch();
    void ToolbarDelete();
    void DeleteFromList(const QString& key);
    void ToolbarHelp();
    void ToolbarExit();

    WorkArea* m_workArea;
    QHash<QString, QAction*> m_buttons;
    std::array<QLabel*, 5> m_panels{};
    bool m_isLoaded = false;
};
