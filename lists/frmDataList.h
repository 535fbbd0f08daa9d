#pragma once

#include "core/forms/FormWindow.h"
#include "core/forms/ListContents.h"

#include <memory>
#include <vector>

class LotListMenu;
struct ListTable;

namespace Ui {
class frmDataList;
}

/// The one list window. What it lists follows the menu key; what is done to its rows is done to the list
/// they were read for.
class frmDataList : public FormWindow {
    Q_OBJECT

public:
    explicit frmDataList(QWidget* owner = nullptr);
    ~frmDataList() override;

    void OnLoad() override;
    void RefreshList() override;
    void SetSearchClause(const QString& clause) override { m_searchClause = clause; }

    void ToolbarNew() override;
    void ToolbarPrint() override;
    void ToolbarEdit() override;
    void ToolbarSearch() override;
    void ToolbarDelete() override;

private:
    void ShowPopup(const QPoint& globalPosition);
    /// Sets the columns, unless they stand already: dragged widths outlive a rebuild.
    void ShowColumns(const std::vector<SheetColumn>& columns);
    /// Selects the row with this key, the first one where there is none.
    void SelectKey(const QString& key);
    /// The list whose rows are shown. When another was chosen since, its rows are shown instead, and there
    /// is none to act on: nobody has seen those rows yet.
    const ListTable* ListToActOn();
    void EditRow(int row);

    std::unique_ptr<Ui::frmDataList> ui;
    LotListMenu* m_lotMenu;
    QString m_menuKey;                  ///< that the rows were read for
    const ListTable* m_list = nullptr;  ///< of that key; none for a key that has no list
    QString m_searchClause;             ///< "" or " And ...", behind the condition of the goods list
    std::vector<SheetColumn> m_columns; ///< that stand
};
