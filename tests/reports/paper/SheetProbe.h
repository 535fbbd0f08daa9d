#pragma once

#include "core/forms/FormWindow.h"
#include "core/forms/ListGrid.h"
#include "reports/ReportView.h"

#include <QHash>
#include <QLabel>
#include <QList>

#include <functional>
#include <memory>

class ReportListMenu;

/// Stands in for the report window: a list with the sheet that the test gives it, and the calls of the
/// windows beside it.
class SheetProbe : public FormWindow, public ReportView {
public:
    explicit SheetProbe(QWidget* owner);
    ~SheetProbe() override;

    void SetCondition(const ReportCondition& /*condition*/) override {}
    void ShowData(bool useColStatus) override;
    QString Caption(Line line) const override { return captions.value(line); }
    const Sheet& Content() const override { return List()->Content(); }
    bool IsWhole() const override { return isWhole; }
    void ToolbarPreview() override;
    void ToolbarPrint() override;

    ListGrid* List() const { return m_list; }

    QHash<Line, QString> captions;
    bool isWhole = true;
    QList<bool> shown;                ///< the arguments of ShowData
    std::function<void()> onShowData; ///< may throw

private:
    QLabel* m_company;
    ListGrid* m_list;
};
