#pragma once

#include "core/forms/FormWindow.h"

#include <memory>
#include <utility>
#include <vector>

class QAction;
class QMenu;
struct SheetColumn;
struct RecordTable;

namespace Ui {
class frmDataList;
}

/// The one list window of the master data. What it lists follows the menu key; its main use is the open
/// lots, with their orders, a switch for every stock figure, and a filter.
class frmDataList : public FormWindow {
    Q_OBJECT

public:
    explicit frmDataList(QWidget* owner = nullptr);
    ~frmDataList() override;

    void OnLoad() override;
    void RefreshList() override;
    void SetSearchClause(const QString& clause) override { m_searchClause = clause; }
    std::optional<QString> SelectedKey() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildPopup();
    void ShowPopup(const QPoint& globalPosition);
    void SetOrder(const QString& order);
    /// Sets the columns, unless this layout stands already: dragged widths outlive a rebuild.
    void ShowColumns(const QString& layout, const std::vector<SheetColumn>& columns);
    void FillRecords(const RecordTable& table);
    void FillLots();
    void EditRow(int row);

    std::unique_ptr<Ui::frmDataList> ui;
    QMenu* m_popup = nullptr;
    std::vector<std::pair<QAction*, QString>> m_orders; ///< each with its text in Sys_Define.PRD_Order
    QAction* m_showStock = nullptr;
    QString m_searchClause; ///< "" or " And ...", behind the condition of the goods list
    QString m_layout;       ///< which columns stand
};
