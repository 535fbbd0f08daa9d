#include "core/forms/ListGrid.h"

#include "core/base/Twips.h"
#include "core/common/ReportColumns.h"
#include "core/forms/SheetModel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

namespace {

constexpr int PopupIndent = 40; // pixels from the left edge of the row whose popup a key opens
constexpr int RowMargin = 2;    // pixels above and below the text of a row

/// Rows of one height, from the font alone: the style's own figure is another one before the window is
/// first shown than after it.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width(),
                option.fontMetrics.height() + 2 * RowMargin};
    }
};

} // namespace

ListGrid::ListGrid(QWidget* parent) : QTreeView(parent), m_model(new SheetModel(this))
{
    setModel(m_model);
    setItemDelegate(new RowDelegate(this));
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true); // else every row is measured
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(0);
    header()->setSectionsMovable(false);
    LayOutColumns();
    connect(header(), &QHeaderView::sectionResized, this, [this](int index, int /*before*/, int pixels) {
        if (!m_isLayingOut)
            m_model->SetWidth(index, pixels * TwipsPerPixel);
    });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& cell) {
        if (cell.isValid()) // it is not, behind the last column
            emit RowChosen(cell.row());
    });
}

const Sheet& ListGrid::Content() const
{
    return m_model->Content();
}

void ListGrid::Show(Sheet sheet)
{
    m_isLayingOut = true;
    m_model->Show(std::move(sheet));
    LayOutColumns();
}

void ListGrid::SetColumns(std::vector<SheetColumn> columns)
{
    m_isLayingOut = true;
    m_model->SetColumns(std::move(columns));
    LayOutColumns();
}

void ListGrid::LayOutColumns()
{
    m_isLayingOut = true;
    setColumnHidden(0, true);
    for (int i = 1; i < Content().ColumnCount(); ++i)
        header()->resizeSection(i, Content().Column(i).widthTwips / TwipsPerPixel);
    m_isLayingOut = false;
}

void ListGrid::ClearRows()
{
    m_model->Clear();
}

void ListGrid::AddRow(const QStringList& subItems, Sheet::RowKind kind)
{
    m_model->Append({{subItems, kind}});
}

void ListGrid::AddRows(std::vector<Sheet::Row> rows)
{
    m_model->Append(std::move(rows));
}

void ListGrid::SetSubItem(int row, int index, const QString& text)
{
    m_model->SetText(row, index, text);
}

void ListGrid::SortByNumber(int index, Qt::SortOrder order)
{
    m_model->SortByNumber(index, order);
}

int ListGrid::ColumnWidthTwips(int index) const
{
    return index >= 0 && index < Content().ColumnCount() ? Content().Column(index).widthTwips : 0;
}

QRect ListGrid::RowRect(int row) const
{
    const QRect cell = visualRect(Cell(row));
    return cell.isEmpty() ? QRect() : QRect(-header()->offset(), cell.y(), header()->length(), cell.height());
}

QModelIndex ListGrid::Cell(int row) const
{
    // Not of the blank column in front: it is hidden, and arrow keys do not find their way from there.
    return m_model->index(row, std::min(1, Content().ColumnCount() - 1));
}

int ListGrid::SelectedRow() const
{
    const QItemSelection selection = selectionModel()->selection();
    return selection.isEmpty() ? -1 : selection.first().top();
}

void ListGrid::SelectRow(int row)
{
    const QModelIndex cell = Cell(row);
    if (cell.isValid())
        setCurrentIndex(cell);
    else
        selectionModel()->clear();
}

int ListGrid::CurrentRow() const
{
    return currentIndex().row(); // -1 of an invalid index
}

void ListGrid::MakeCurrent(int row)
{
    selectionModel()->clear();
    selectionModel()->setCurrentIndex(Cell(std::min(row, RowCount() - 1)), QItemSelectionModel::NoUpdate);
}

void ListGrid::contextMenuEvent(QContextMenuEvent* event)
{
    // Some platforms send this for the menu key too, which the key press has served already.
    if (event->reason() == QContextMenuEvent::Mouse)
        emit PopupAsked(event->globalPos());
}

void ListGrid::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Menu || (key == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)) {
        emit PopupAsked(viewport()->mapToGlobal(RowRect(CurrentRow()).bottomLeft() + QPoint(PopupIndent, 0)));
        return;
    }
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && SelectedRow() >= 0) {
        emit RowChosen(SelectedRow());
        return;
    }
    if ((key == Qt::Key_Up || key == Qt::Key_Down) && SelectedRow() < 0 && CurrentRow() >= 0) {
        SelectRow(CurrentRow()); // by the usual way it would be passed over
        return;
    }
    QTreeView::keyPressEvent(event);
}

void ListGrid::drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QTreeView::drawRow(painter, option, index);
    if (index.row() != CurrentRow() || selectionModel()->isSelected(index))
        return;
    painter->setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(RowRect(index.row()).adjusted(1, 1, -1, -1));
}

void LoadColumnHeaders(ListGrid* list, const QString& reportName, bool normal)
{
    std::vector<SheetColumn> columns = ReportColumns(reportName, normal);
    if (!columns.empty())
        list->SetColumns(std::move(columns));
}
