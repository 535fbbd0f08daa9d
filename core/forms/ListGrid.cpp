#include "core/forms/ListGrid.h"

#include "core/base/Numbers.h"
#include "core/forms/HoverBox.h"
#include "core/gateway/DataGateway.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr double WidestColumn = 32767; // twips: more than the longest paper

/// The column of the current cell. From a cell that is hidden the arrow keys would move on without taking
/// the selection along: another row would be marked than the one that is acted on.
constexpr int KeyColumn = 1;
} // namespace

ListGrid::ListGrid(QWidget* parent) : QTreeWidget(parent)
{
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    header()->setSectionsMovable(false);
    setColumnCount(1);
    setHeaderLabels({QString()});
    setColumnHidden(0, true);
    connect(header(), &QHeaderView::sectionResized, this, [this](int index, int /*before*/, int pixels) {
        if (!m_isSettingColumns && index > 0 && static_cast<std::size_t>(index) < m_widths.size())
            m_widths[static_cast<std::size_t>(index)] = pixels * TwipsPerPixel;
    });
    connect(this, &QTreeWidget::itemDoubleClicked, this,
            [this](QTreeWidgetItem* item) { emit RowChosen(indexOfTopLevelItem(item)); });
}

void ListGrid::SetColumns(const std::vector<Column>& columns)
{
    m_isSettingColumns = true;
    clear();
    QStringList headers{QString()};
    m_widths.assign(1, 0);
    m_alignments.assign(1, Qt::AlignLeft);
    for (const Column& column : columns) {
        headers << column.header;
        m_widths.push_back(column.widthTwips);
        m_alignments.push_back(column.alignment | Qt::AlignVCenter);
    }
    setColumnCount(static_cast<int>(headers.size()));
    setHeaderLabels(headers);
    setColumnHidden(0, true);
    for (int i = 1; i < columnCount(); ++i) {
        const auto at = static_cast<std::size_t>(i);
        header()->resizeSection(i, m_widths[at] / TwipsPerPixel);
        headerItem()->setTextAlignment(i, m_alignments[at]);
    }
    m_isSettingColumns = false;
}

void ListGrid::ClearRows()
{
    clear();
}

void ListGrid::AddRow(const QStringList& subItems)
{
    auto* item = new QTreeWidgetItem(QStringList{QString()} + subItems);
    for (int i = 1; i < columnCount(); ++i)
        item->setTextAlignment(i, m_alignments[static_cast<std::size_t>(i)]);
    addTopLevelItem(item);
}

QString ListGrid::SubItem(int row, int index) const
{
    const QTreeWidgetItem* item = topLevelItem(row);
    return item ? item->text(index) : QString();
}

int ListGrid::SelectedRow() const
{
    const QList<QTreeWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : indexOfTopLevelItem(selected[0]);
}

void ListGrid::SelectRow(int row)
{
    setCurrentItem(topLevelItem(row), KeyColumn);
}

void ListGrid::MakeCurrent(int row)
{
    clearSelection();
    setCurrentItem(topLevelItem(row), KeyColumn, QItemSelectionModel::NoUpdate);
}

int ListGrid::ColumnWidthTwips(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < m_widths.size()
               ? m_widths[static_cast<std::size_t>(index)]
               : 0;
}

void ListGrid::keyPressEvent(QKeyEvent* event)
{
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && SelectedRow() >= 0) {
        emit RowChosen(SelectedRow());
        return;
    }
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isArrow && SelectedRow() < 0 && currentItem()) {
        setCurrentItem(currentItem(), KeyColumn);
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void LoadColumnHeaders(ListGrid* list, const QString& reportName, bool normal)
{
    // The two blanks before "And" are how the statement has always been written.
    const QString where = u"RptName='"_s + reportName +
                          (normal ? u"'  And ColStatus='1' Order By ColOrder ASC"_s
                                  : u"'  And TempStatus='1' Order By TempOrder ASC"_s);
    RecordSet rows = Gateway().SelectRows(
        u"DFN_RptCol"_s, u"ColName,ColWidth,ColAlign,ColStatus,ColOrder,TempStatus,TempOrder"_s, where);
    if (rows.Eof())
        return;
    std::vector<ListGrid::Column> columns;
    for (; !rows.Eof(); rows.MoveNext()) {
        ListGrid::Column column;
        column.header = rows.Text(0);
        column.widthTwips = static_cast<int>(std::clamp(LeadingNumber(rows.Text(1)), 0.0, WidestColumn));
        const QString align = rows.Text(2);
        column.alignment = align == u"1" ? Qt::AlignRight : align == u"2" ? Qt::AlignHCenter : Qt::AlignLeft;
        columns.push_back(column);
    }
    list->SetColumns(columns);
}
