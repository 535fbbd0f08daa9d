#pragma once

#include "core/common/Sheet.h"
#include "core/forms/FormWindow.h"
#include "reports/ReportView.h"
#include "tests/support/WindowTest.h"

#include <QStringList>

/// A report of the test's own in the place of the report window.
class ProbeReport : public FormWindow, public ReportView {
public:
    explicit ProbeReport(QWidget* owner) : FormWindow(owner, SlotUse::Untouched) {}

    void SetCondition(const ReportCondition& /*condition*/) override {}
    void ShowData(bool /*useColStatus*/) override {}
    QString Caption(Line line) const override { return captions.value(static_cast<int>(line)); }
    const Sheet& Content() const override { return sheet; }
    bool IsWhole() const override { return isWhole; }

    Sheet sheet;
    QStringList captions{QStringLiteral("城南水果批发"), QStringLiteral("销售明细表"),
                         QStringLiteral("日期：2026-03-01 至 2026-03-09")};
    bool isWhole = true;
};

/// A report is open, and its export in front of it.
class ExportCase : public WindowTest {
protected:
    void SetUp() override;

    /// Opens the export window.
    void OpenExport();
    /// Types the name into the empty box and presses Enter.
    void ExportTo(const QString& name);
    QString Folder() const { return m_folder.path(); }
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    QStringList FilesInFolder() const;
    /// A file with the columns of the report, cell by cell as a reader of another house finds it.
    QString ReadBack(const QString& file) const;

    ProbeReport* report = nullptr;

private:
    QTemporaryDir m_folder;
};

extern const QString ExportTitle;
extern const QString ExportDone;
extern const QString ExportFilter;

/// The rows of the small report: numbers that look like numbers, texts that look like none, a spacer and
/// a total.
void FillWithSales(ProbeReport& report);
/// The income and expense statement: eight columns without words, nineteen rows.
void FillWithStatement(ProbeReport& report);
/// So many rows and columns, each cell another text.
Sheet LargeSheet(int rows, int columns);

/// What a program prints; fails the test when it fails.
QString OutputOf(const QString& program, const QStringList& arguments);
/// The file as gnumeric's converter writes it in another format; the new file's path.
QString Converted(const QString& file, const QString& ending);
