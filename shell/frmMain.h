#pragma once

#include "core/forms/Form.h"

#include <QElapsedTimer>
#include <QHash>
#include <QMainWindow>

#include <array>

class QAction;
class QLabel;
class WorkArea;
struct MenuEntry;
struct ToolbarButton;

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

    bool IsEntryEnabled(const QString& control) const override;
    void EnableToolbar(const QStringList& buttons, bool enabled = true) override;
    // While neither list nor report is open: what needs none.
    void ToolbarNew() override;
    void ToolbarSearch() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void BuildToolbar();
    void BuildStatusBar();
    void FitToScreen();
    void ApplyUserMenus();
    void Choose(const MenuEntry& entry);
    void OpenWindow(const MenuEntry& entry);
    void OpenListWindow(const QString& window);
    void ResetToolbar();

    bool IsSecondPress(const QString& key);
    void PressToolbar(const ToolbarButton& button);
    void Act(const ToolbarButton& button);
    void ToolbarHelp();
    void ToolbarExit(); // NOLINT(bugprone-virtual-near-miss): both names are the toolbar's own

    WorkArea* m_workArea;
    QHash<QString, QAction*> m_buttons;
    QString m_lastButton; ///< the button pressed last since a menu choice
    QElapsedTimer m_sinceLastButton;
    std::array<QLabel*, 5> m_panels{};
    bool m_isLoaded = false;
};
