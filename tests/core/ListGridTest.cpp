#include "core/forms/ListGrid.h"
#include "core/base/RunTimeError.h"
#include "core/gateway/DataGateway.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QImage>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

using Kind = SheetColumn::Kind;

class Grid : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterProbe(u"frmProbe"_s, [](ProbeForm& form) {
            form.Add<ListGrid>(u"lvReport"_s);
            form.Add(u"txtElsewhere"_s);
        });
        Open(u"frmProbe"_s)->resize(800, 400);
        list = Find<ListGrid>(u"frmProbe"_s, u"lvReport"_s);
        TakeStatements();
    }

    QStringList Headers() const
    {
        QStringList headers;
        for (int i = 0; i < list->Content().ColumnCount(); ++i)
            headers << list->Content().Column(i).heading;
        return headers;
    }

    /// What the view is told of a cell.
    QVariant Shown(int row, int column, int role) const
    {
        return list->model()->data(list->model()->index(row, column), role);
    }
    int HeadingAlignment(int column) const
    {
        return list->model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt() &
               Qt::AlignHorizontal_Mask;
    }

    void TwoRows()
    {
        list->SetColumns({{u"编号"_s, 900, Kind::Text}, {u"金额"_s, 1170, Kind::Number}});
        list->AddRow({u"A-001"_s, u"12.5"_s});
        list->AddRow({u"A-002"_s, u"7.0"_s});
    }

    void ManyRows(int count)
    {
        list->SetColumns({{u"编号"_s, 900}});
        std::vector<Sheet::Row> rows;
        for (int row = 0; row < count; ++row)
            rows.push_back({{QString::number(row)}});
        list->AddRows(std::move(rows));
    }

    /// Moves the right edge of a heading by so many pixels, as the mouse does.
    void Drag(int column, int pixels)
    {
        QWidget* heading = list->header()->viewport();
        const QPoint from(list->header()->sectionViewportPosition(column) +
                              list->header()->sectionSize(column) - 1,
                          heading->height() / 2);
        const QPoint to = from + QPoint(pixels, 0);
        const auto send = [heading](QEvent::Type type, const QPoint& at, Qt::MouseButton button,
                                    Qt::MouseButtons buttons) {
            QMouseEvent event(type, at, heading->mapToGlobal(at), button, buttons, Qt::NoModifier);
            QCoreApplication::sendEvent(heading, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
        Settle();
    }

    void ClickRow(int row)
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->RowRect(row).center());
        Settle();
    }

    ListGrid* list = nullptr;
};

} // namespace

TEST_F(Grid, SubItemsCountFromOneBehindABlankColumn)
{
    TwoRows();
    EXPECT_EQ(Headers(), (QStringList{QString(), u"编号"_s, u"金额"_s}));
    EXPECT_TRUE(list->isColumnHidden(0));
    EXPECT_EQ(list->RowCount(), 2);
    EXPECT_EQ(list->SubItem(0, 0), QString());
    EXPECT_EQ(list->SubItem(0, 1), u"A-001"_s);
    EXPECT_EQ(list->SubItem(1, 2), u"7.0"_s);
    for (const auto& [row, index] : {std::pair(0, 3), std::pair(0, -1), std::pair(2, 1), std::pair(-1, 1)})
        EXPECT_EQ(list->SubItem(row, index), QString());
    EXPECT_EQ(Shown(0, 2, Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_EQ(Shown(0, 2, Qt::DisplayRole), QVariant(u"12.5"_s));
    EXPECT_EQ(HeadingAlignment(2), Qt::AlignRight);
}

TEST_F(Grid, TheKeyIsSubItemOneOfTheSelectedRow)
{
    EXPECT_EQ(list->SelectedRow(), -1);
    EXPECT_EQ(list->SelectedKey(), QString());
    TwoRows();
    EXPECT_EQ(list->SelectedKey(), QString());
    list->SelectRow(1);
    EXPECT_EQ(list->SelectedRow(), 1);
    EXPECT_EQ(list->SelectedKey(), u"A-002"_s);
    list->setFocus();
    Press(Qt::Key_Up);
    EXPECT_EQ(list->SelectedKey(), u"A-001"_s);
    list->SelectRow(7);
    EXPECT_EQ(list->SelectedRow(), -1);
    list->ClearRows();
    EXPECT_EQ(list->RowCount(), 0);
    EXPECT_EQ(list->SelectedKey(), QString());
    EXPECT_EQ(Headers().size(), 3);
}

TEST_F(Grid, TheMarkedRowIsTheOneThatTheArrowKeysReach)
{
    TwoRows();
    list->SelectRow(0);
    list->setFocus();
    const auto marked = [this] {
        QList<int> rows;
        const auto selected = list->selectionModel()->selectedIndexes();
        for (const QModelIndex& index : selected) {
            if (!rows.contains(index.row()))
                rows << index.row();
        }
        return rows;
    };
    EXPECT_EQ(marked(), QList<int>{0});
    Press(Qt::Key_Down);
    EXPECT_EQ(list->SelectedRow(), 1);
    EXPECT_EQ(marked(), QList<int>{1});
    Press(Qt::Key_Up);
    EXPECT_EQ(marked(), QList<int>{0});
}

TEST_F(Grid, ACurrentRowIsNotSelectedUntilAnArrowKeyTakesIt)
{
    QSignalSpy chosen(list, &ListGrid::RowChosen);
    TwoRows();
    list->setFocus();
    for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Up}) {
        list->SelectRow(0);
        list->MakeCurrent(1);
        EXPECT_EQ(list->SelectedRow(), -1);
        EXPECT_EQ(list->SelectedKey(), QString());
        Press(Qt::Key_Return);
        Press(arrow);
        EXPECT_EQ(list->SelectedRow(), 1);
    }
    EXPECT_EQ(chosen.size(), 0);
}

TEST_F(Grid, EnterAndDoubleClickChooseARow)
{
    QSignalSpy chosen(list, &ListGrid::RowChosen);
    list->setFocus();
    Press(Qt::Key_Return);
    EXPECT_EQ(chosen.size(), 0) << "there is no row";
    TwoRows();
    list->SelectRow(1);
    Press(Qt::Key_Return);
    Press(Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_EQ(chosen.size(), 2);
    EXPECT_EQ(chosen[0][0], QVariant(1));
    const QPoint first = list->RowRect(0).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, first);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, first);
    ASSERT_EQ(chosen.size(), 3);
    EXPECT_EQ(chosen[2][0], QVariant(0));
    const QPoint behind(list->viewport()->width() - 5, first.y());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, behind);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, behind);
    EXPECT_EQ(chosen.size(), 3) << "no row is there";
}

TEST_F(Grid, WidthsAreTwipsAndFollowTheMouse)
{
    TwoRows();
    EXPECT_EQ(list->ColumnWidthTwips(0), 0);
    EXPECT_EQ(list->ColumnWidthTwips(1), 900);
    EXPECT_EQ(list->columnWidth(1), 60);
    Drag(1, 40);
    EXPECT_EQ(list->ColumnWidthTwips(1), 1500);
    EXPECT_EQ(list->ColumnWidthTwips(2), 1170);
    EXPECT_EQ(list->ColumnWidthTwips(3), 0);
    EXPECT_EQ(list->ColumnWidthTwips(-1), 0);
    TwoRows();
    EXPECT_EQ(list->ColumnWidthTwips(1), 900);
    EXPECT_EQ(list->RowCount(), 2);
}

TEST_F(Grid, HeadersOfAReportAreTheShownColumnsInTheirOrder)
{
    Db().Run(u"UPDATE DFN_RptCol SET ColStatus='0',TempOrder=1 WHERE RptName='RptFeeDetail' And ColID='02';"
             "UPDATE DFN_RptCol SET ColOrder=9,TempStatus='0' WHERE RptName='RptFeeDetail' And ColID='01'"_s);
    LoadColumnHeaders(list, u"RptFeeDetail"_s, true);
    EXPECT_EQ(TakeStatements(),
              QStringList{
                  u"SELECT ColName,ColWidth,ColAlign,ColStatus,ColOrder,TempStatus,TempOrder FROM DFN_RptCol "
                  "WHERE RptName='RptFeeDetail'  And ColStatus='1' Order By ColOrder ASC"_s});
    EXPECT_EQ(Headers(), (QStringList{QString(), u"费用名称"_s, u"费用描述"_s, u"金额"_s, u"日期"_s}));
    EXPECT_EQ(list->ColumnWidthTwips(0), 0);
    EXPECT_EQ(list->ColumnWidthTwips(1), 1800);
    EXPECT_EQ(list->ColumnWidthTwips(2), 3600);
    EXPECT_EQ(list->ColumnWidthTwips(4), 1170);
    EXPECT_EQ(HeadingAlignment(1), Qt::AlignLeft);
    EXPECT_EQ(HeadingAlignment(3), Qt::AlignRight);
    EXPECT_EQ(HeadingAlignment(4), Qt::AlignHCenter);

    LoadColumnHeaders(list, u"RptFeeDetail"_s, false);
    EXPECT_EQ(TakeStatements(),
              QStringList{
                  u"SELECT ColName,ColWidth,ColAlign,ColStatus,ColOrder,TempStatus,TempOrder FROM DFN_RptCol "
                  "WHERE RptName='RptFeeDetail'  And TempStatus='1' Order By TempOrder ASC"_s});
    EXPECT_EQ(Headers(), (QStringList{QString(), u"单号"_s, u"费用名称"_s, u"费用描述"_s, u"金额"_s}));
}

TEST_F(Grid, AReportWithoutColumnsKeepsTheHeadersThereAre)
{
    TwoRows();
    LoadColumnHeaders(list, u"RptAmount"_s, true);
    EXPECT_EQ(Headers(), (QStringList{QString(), u"编号"_s, u"金额"_s}));
    EXPECT_EQ(list->RowCount(), 2);
    EXPECT_THROW(LoadColumnHeaders(list, u"'"_s, true), DatabaseError);
}

TEST_F(Grid, AWidthOutOfAllProportionDoesNoHarm)
{
    Db().Run(
        u"INSERT INTO DFN_RptCol (RptName,ColID,ColName,ColWidth,ColAlign,ColStatus,ColOrder) VALUES "
        "('R','02','b','-500','1','1',2),('R','03','c','99999999999999999999','2','1',3),"
        "('R','04','d','900','0','1',4),('R','05','e','32766','9','1',5),('R','06','f','32768','0','1',6)"_s);
    LoadColumnHeaders(list, u"R"_s, true);
    EXPECT_EQ(Headers(), (QStringList{QString(), u"b"_s, u"c"_s, u"d"_s, u"e"_s, u"f"_s}));
    QList<int> widths;
    for (int i = 1; i <= 5; ++i)
        widths << list->ColumnWidthTwips(i);
    EXPECT_EQ(widths, (QList<int>{0, 32767, 900, 32766, 32767}));
    EXPECT_EQ(list->columnWidth(2), 32767 / 15);
}

TEST_F(Grid, AWidthThatIsNoNumberIsRefusedAndTheHeadersStay)
{
    TwoRows();
    for (const QString& width : {u"abc"_s, u"12abc"_s, QString()}) {
        Db().Run(u"REPLACE INTO DFN_RptCol (RptName,ColID,ColName,ColWidth,ColStatus,ColOrder) VALUES "
                 "('R','01','a','%1','1',1)"_s.arg(width));
        EXPECT_THROW(LoadColumnHeaders(list, u"R"_s, true), TypeMismatchError) << width.toStdString();
    }
    EXPECT_EQ(Headers(), (QStringList{QString(), u"编号"_s, u"金额"_s}));
    EXPECT_EQ(list->RowCount(), 2);
    Db().Run(u"UPDATE DFN_RptCol SET ColStatus='0' WHERE RptName='R'"_s);
    LoadColumnHeaders(list, u"R"_s, true); // a hidden column's width is nobody's business
}

TEST_F(Grid, OnlyADragTurnsPixelsIntoTwips)
{
    list->SetColumns({{u"编号"_s, 907}, {u"金额"_s, 1170}});
    EXPECT_EQ(list->columnWidth(1), 60);
    EXPECT_EQ(list->ColumnWidthTwips(1), 907) << "no pixel holds 7 twips";
    Windows().Find(u"frmProbe"_s)->Widget()->resize(500, 300);
    list->setFont(QFont(list->font().family(), 20));
    Settle();
    EXPECT_EQ(list->ColumnWidthTwips(1), 907);
    Drag(2, -18);
    EXPECT_EQ(list->ColumnWidthTwips(1), 907);
    EXPECT_EQ(list->ColumnWidthTwips(2), 60 * 15);
    EXPECT_EQ(list->Content().Width(), 907 + 900) << "what prints is what is seen";
    list->ClearRows();
    EXPECT_EQ(list->ColumnWidthTwips(2), 60 * 15);
}

TEST_F(Grid, ARowThatIsMadeCurrentIsNotSelected)
{
    TwoRows();
    list->AddRow({u"A-003"_s, u"1.0"_s});
    list->setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Space}) {
        list->MakeCurrent(1);
        EXPECT_EQ(list->CurrentRow(), 1);
        EXPECT_EQ(list->SelectedRow(), -1);
        EXPECT_EQ(list->SelectedKey(), QString());
        Press(key);
        EXPECT_EQ(list->SelectedKey(), u"A-002"_s) << "one key reaches it: " << key;
        Press(Qt::Key_Down);
        EXPECT_EQ(list->SelectedKey(), u"A-003"_s);
    }
    list->MakeCurrent(1);
    ClickRow(1);
    EXPECT_EQ(list->SelectedKey(), u"A-002"_s);
}

TEST_F(Grid, EnterChoosesNoRowThatIsOnlyCurrent)
{
    QSignalSpy chosen(list, &ListGrid::RowChosen);
    TwoRows();
    list->setFocus();
    list->MakeCurrent(1);
    Press(Qt::Key_Return);
    EXPECT_EQ(chosen.size(), 0);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen[0][0], QVariant(1));
}

TEST_F(Grid, TheKeyboardAloneSelectsNothingByComing)
{
    Find(u"frmProbe"_s, u"txtElsewhere"_s)->setFocus();
    TwoRows();
    EXPECT_EQ(list->CurrentRow(), -1);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(FocusName(), u"lvReport"_s);
    EXPECT_EQ(list->CurrentRow(), 0);
    EXPECT_EQ(list->SelectedRow(), -1);
    Press(Qt::Key_Down);
    EXPECT_EQ(list->SelectedRow(), 0);
}

TEST_F(Grid, BehindTheEndTheLastRowIsMadeCurrent)
{
    TwoRows();
    list->MakeCurrent(2);
    EXPECT_EQ(list->CurrentRow(), 1);
    list->MakeCurrent(-1);
    EXPECT_EQ(list->CurrentRow(), -1);
    list->ClearRows();
    list->MakeCurrent(0);
    EXPECT_EQ(list->CurrentRow(), -1);
    EXPECT_EQ(list->SelectedRow(), -1);
}

TEST_F(Grid, RowsAreOfOneHeightBeforeTheWindowIsSeenAndAfterEachRebuild)
{
    Windows().Find(u"frmProbe"_s)->Widget()->close();
    Settle();
    ListGrid* early = nullptr;
    RegisterProbe(u"frmProbe"_s, [&early](ProbeForm& form) {
        early = form.Add<ListGrid>(u"lvReport"_s);
        form.onLoad = [&early] {
            early->SetColumns({{u"编号"_s, 900}});
            early->AddRow({u"A-001"_s});
            early->SelectRow(0);
        };
    });
    Windows().Load(u"frmProbe"_s, nullptr);
    QList<int> heights{early->RowRect(0).height()};
    Open(u"frmProbe"_s);
    heights << early->RowRect(0).height();
    early->ClearRows();
    early->AddRow({u"A-001"_s});
    Settle();
    heights << early->RowRect(0).height();
    early->SetColumns({{u"编号"_s, 1200}});
    early->AddRow({u"A-001"_s});
    Settle();
    heights << early->RowRect(0).height();
    EXPECT_EQ(heights, QList<int>(4, QFontMetrics(early->font()).height() + 4));
}

TEST_F(Grid, RowsGrowWithTheFont)
{
    TwoRows();
    const int before = list->RowRect(0).height();
    list->setFont(QFont(list->font().family(), 24));
    Settle();
    EXPECT_EQ(list->RowRect(0).height(), QFontMetrics(list->font()).height() + 4);
    EXPECT_GT(list->RowRect(0).height(), before);
}

TEST_F(Grid, ATextBehindTheLastHeadingIsKeptAndNotShown)
{
    TwoRows();
    list->AddRow({u"A-003"_s, u"1.0"_s, u"kept"_s});
    EXPECT_EQ(list->SubItem(2, 3), u"kept"_s);
    EXPECT_EQ(list->model()->columnCount(), 3);
    EXPECT_EQ(Shown(2, 3, Qt::DisplayRole), QVariant());
}

TEST_F(Grid, ATotalIsWrittenIntoItsCellAndSeen)
{
    TwoRows();
    list->AddRow({u"总计"_s}, Sheet::RowKind::Total);
    QSignalSpy changed(list->model(), &QAbstractItemModel::dataChanged);
    list->SetSubItem(2, 2, u"19.5"_s);
    list->SetSubItem(2, 7, u"1.0"_s);
    EXPECT_EQ(Shown(2, 2, Qt::DisplayRole), QVariant(u"19.5"_s));
    EXPECT_EQ(changed.size(), 1);
    EXPECT_EQ(list->Content().KindOf(2), Sheet::RowKind::Total);
}

TEST_F(Grid, SortingTakesTheSelectionAlong)
{
    TwoRows();
    list->AddRow({u"A-003"_s, u"9.0"_s});
    list->SelectRow(0);
    list->SortByNumber(2, Qt::AscendingOrder);
    EXPECT_EQ(list->SelectedKey(), u"A-001"_s);
    EXPECT_EQ(list->SelectedRow(), 2);
    EXPECT_EQ(list->CurrentRow(), 2);
    EXPECT_EQ(Shown(0, 1, Qt::DisplayRole), QVariant(u"A-002"_s));
    list->setFocus();
    Press(Qt::Key_Up);
    EXPECT_EQ(list->SelectedKey(), u"A-003"_s);
}

TEST_F(Grid, ASheetIsShownAsAWhole)
{
    TwoRows();
    list->SelectRow(1);
    Sheet sheet;
    sheet.SetColumns({{u"名称"_s, 1500}});
    sheet.Append({{u"苹果"_s}});
    list->Show(sheet);
    EXPECT_EQ(Headers(), (QStringList{QString(), u"名称"_s}));
    EXPECT_TRUE(list->isColumnHidden(0));
    EXPECT_EQ(list->columnWidth(1), 100);
    EXPECT_EQ(list->ColumnWidthTwips(1), 1500);
    EXPECT_EQ(list->RowCount(), 1);
    EXPECT_EQ(list->SelectedRow(), -1);
}

TEST_F(Grid, TheFocusIsAFrameThatNoRowCutsOverAGroundThatStaysWhite)
{
    ManyRows(100);
    Find(u"frmProbe"_s, u"txtElsewhere"_s)->setFocus();
    Settle();
    const QRect rows = list->viewport()->geometry();
    list->setFocus();
    Settle();
    EXPECT_EQ(list->viewport()->geometry(), rows) << "nothing moves";
    const QImage picture = list->grab().toImage();
    const QColor focus(0xe0, 0x7b, 0x00);
    for (int y = 0; y < picture.height(); ++y) {
        for (const int x : {0, 1, picture.width() - 2, picture.width() - 1})
            ASSERT_EQ(picture.pixelColor(x, y), focus) << x << ' ' << y;
    }
    const QPoint empty(rows.x() + 300, rows.y() + list->RowRect(0).center().y());
    EXPECT_EQ(picture.pixelColor(empty), QColor(Qt::white));
}

TEST_F(Grid, AManyRowedListAsksForWhatIsVisibleOnly)
{
    struct Counter : QIdentityProxyModel {
        QVariant data(const QModelIndex& index, int role) const override
        {
            if (role == Qt::DisplayRole)
                ++texts;
            return QIdentityProxyModel::data(index, role);
        }
        mutable int texts = 0;
    } counter;
    ManyRows(30000);
    counter.setSourceModel(list->model());
    list->setModel(&counter);
    Settle();
    EXPECT_GT(counter.texts, 0);
    EXPECT_LT(counter.texts, 1000);
    counter.texts = 0;
    list->scrollToBottom();
    list->viewport()->repaint();
    EXPECT_GT(counter.texts, 0);
    EXPECT_LT(counter.texts, 1000);
    Windows().Find(u"frmProbe"_s)->Widget()->close();
    Settle();
}
