#include "core/forms/ListGrid.h"
#include "core/gateway/DataGateway.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QHeaderView>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class Grid : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterProbe(u"frmProbe"_s, [](ProbeForm& form) { form.Add<ListGrid>(u"lvReport"_s); });
        Open(u"frmProbe"_s)->resize(800, 400);
        list = Find<ListGrid>(u"frmProbe"_s, u"lvReport"_s);
        TakeStatements();
    }

    QStringList Headers() const
    {
        QStringList headers;
        for (int i = 0; i < list->columnCount(); ++i)
            headers << list->headerItem()->text(i);
        return headers;
    }

    void TwoRows()
    {
        list->SetColumns({{u"编号"_s, 900, Qt::AlignLeft}, {u"金额"_s, 1170, Qt::AlignRight}});
        list->AddRow({u"A-001"_s, u"12.5"_s});
        list->AddRow({u"A-002"_s, u"7.0"_s});
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
    EXPECT_EQ(list->topLevelItem(0)->textAlignment(2) & Qt::AlignRight, Qt::AlignRight);
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
    emit list->itemDoubleClicked(list->topLevelItem(0), 1);
    ASSERT_EQ(chosen.size(), 3);
    EXPECT_EQ(chosen[2][0], QVariant(0));
}

TEST_F(Grid, WidthsAreTwipsAndFollowTheMouse)
{
    TwoRows();
    EXPECT_EQ(list->ColumnWidthTwips(0), 0);
    EXPECT_EQ(list->ColumnWidthTwips(1), 900);
    EXPECT_EQ(list->columnWidth(1), 60);
    list->header()->resizeSection(1, 100);
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
    EXPECT_EQ(list->headerItem()->textAlignment(1) & Qt::AlignHorizontal_Mask, Qt::AlignLeft);
    EXPECT_EQ(list->headerItem()->textAlignment(3) & Qt::AlignHorizontal_Mask, Qt::AlignRight);
    EXPECT_EQ(list->headerItem()->textAlignment(4) & Qt::AlignHorizontal_Mask, Qt::AlignHCenter);

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

TEST_F(Grid, AWidthThatMakesNoSenseDoesNoHarm)
{
    Db().Run(u"INSERT INTO DFN_RptCol (RptName,ColID,ColName,ColWidth,ColAlign,ColStatus,ColOrder) VALUES "
             "('R','01','a','abc','9','1',1),('R','02','b','-500','1','1',2),('R','03','c','"
             "99999999999999999999','2','1',3),"
             "('R','04','d','900','0','1',4)"_s);
    LoadColumnHeaders(list, u"R"_s, true);
    EXPECT_EQ(Headers(), (QStringList{QString(), u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    EXPECT_EQ(list->ColumnWidthTwips(1), 0);
    EXPECT_GE(list->ColumnWidthTwips(2), 0);
    EXPECT_GE(list->ColumnWidthTwips(3), 0);
    EXPECT_EQ(list->ColumnWidthTwips(4), 900);
}
