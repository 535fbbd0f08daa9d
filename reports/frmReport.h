#pragma once

#include "core/forms/FormWindow.h"
#include "reports/ReportBuilder.h"
#include "reports/ReportView.h"

#include <memory>

namespace Ui {
class frmReport;
}

/// The one window of all reports. It shows what was asked for last, whatever the menu has come to mean since,
/// and opens the document behind a row.
class frmReport : public FormWindow, public ReportView {
    Q_OBJECT

public:
    explicit frmReport(QWidget* owner = nullptr);
    ~frmReport() override;

    void OnLoad() override;

    void SetCondition(const ReportCondition& condition) override { m_condition = condition; }
    void ShowData(bool useColStatus) override;
    QString Caption(Line line) const override;
    const Sheet& Content() const override;
    bool IsWhole() const override { return m_isWhole; }

    void ToolbarSearch() override;
    void ToolbarDelete() override;
    void ToolbarPreview() override;
    void ToolbarPrint() override;
    void ToolbarExport() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void LayOut();
    /// Puts the words under the title; `ending` says why a report is not whole.
    void TellCondition(const QString& ending);
    void OpenDocument(int row);
    void SortBy(int column);

    std::unique_ptr<Ui::frmReport> ui;
    ReportCondition m_condition;
    ReportQuery m_query; ///< of what is shown
    bool m_isWhole = false;
    Qt::SortOrder m_nextSort = Qt::AscendingOrder; ///< alternates at each click, whatever is shown
};
