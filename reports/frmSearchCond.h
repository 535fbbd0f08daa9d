#pragma once

#include "core/forms/FormWindow.h"
#include "reports/Conditions.h"

#include <QHash>

class DateField;
class QComboBox;
class QGridLayout;
class QGroupBox;

/// 查询条件: stands between the menu and a report. Shows the frame of the report in Session::CurrentMenuKey,
/// built from ConditionFrames, and turns its controls into the report's condition.
class frmSearchCond : public FormWindow {
    Q_OBJECT

public:
    explicit frmSearchCond(QWidget* owner = nullptr);
    ~frmSearchCond() override;

    void OnLoad() override;
    /// The buyer's name that the picker was opened for.
    void TakeName(const QString& name) override;
    bool event(QEvent* event) override;

protected:
    /// The report that was asked for keeps the slot.
    void FreeSlot() override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildWindow();
    void AddControl(const ConditionControl& control);
    QWidget* MakeControl(const ConditionControl& control);
    QWidget* MakeCombo(const ConditionControl& control);
    void AddDay(const QString& name, const QString& caption);
    void AddRow(const QString& caption, QWidget* control);
    void WireChain();
    void Wire(const ConditionControl& control);
    void FollowCheck(const QString& check, const QString& control, bool usableTicked);

    QWidget* Control(const QString& name) const { return m_controls.value(name); }
    DateField* Day(const QString& name) const;

    void PickBuyer();
    void BeginAnew();

    ConditionValues ReadControls() const;
    void Select();
    bool ShowReport(const ComposedCondition& condition);

    const ConditionFrame* m_frame = nullptr;
    QGroupBox* m_box;
    QGridLayout* m_rows;
    QWidget* m_radioRow = nullptr; ///< where radio buttons stand side by side
    QHash<QString, QWidget*> m_controls;
    QHash<QString, ConditionChoices> m_choices; ///< entry by entry what a combo box shows
    bool m_isSelecting = false;
};
