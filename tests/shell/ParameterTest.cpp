#include "core/session/Session.h"
#include "printing/PrintQueue.h"
#include "tests/shell/ParameterWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QTabBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Parameter : public ParameterWindow {
protected:
    /// The frames in front, by name.
    QString FramesInFront()
    {
        QStringList shown;
        for (const QString& frame : {u"Frame1"_s, u"Frame2"_s, u"Frame3"_s}) {
            if (Find<QFrame>(Name, frame)->isVisible())
                shown << frame;
        }
        return shown.join(u' ');
    }
};

const QStringList PrintingControls = [] {
    QStringList controls{u"cmbPaperSize"_s, u"chkPrintType"_s, u"optPortrait"_s, u"optLandScape"_s};
    for (int i = 0; i < 6; ++i) {
        for (const QString& name : {u"txtLeftArea_%1"_s, u"txtTopArea_%1"_s, u"cmbPrintStyle_%1"_s})
            controls << name.arg(i);
    }
    return controls;
}();
const QStringList BackgroundControls{u"chkPicStatus"_s, u"txtFileName"_s};
const QStringList RulesControls{u"chkControl_Sale"_s, u"chkVerify"_s,         u"txtDeadline"_s,
                                u"chkRound_Sale"_s,   u"chkRound_CheckOut"_s, u"cmbCountID_0"_s,
                                u"cmbCountID_1"_s};

const QString NoPaper = u"该打印机无有效的打印纸张大小！"_s;

} // namespace

TEST_F(Parameter, OpeningReadsTheTablesInOrder)
{
    Open(Name);
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            u"SELECT PrintType,Orientation,bolVerify,Deadline,Control_Sale FROM Sys_Define"_s,
            u"SELECT PaperID,PaperName,LeftArea,TopArea,PrintStyle FROM DFN_Paper Order By PaperID ASC"_s,
            u"SELECT CountID,bolRound FROM DFN_Round Order By CountID"_s,
            u"SELECT CountID FROM DFN_CheckFee WHERE FeeID='F01'"_s,
            u"SELECT CountID FROM DFN_CheckFee WHERE FeeID='F02'"_s}));
}

TEST_F(Parameter, OpeningShowsWhatTheTablesAndTheFilesHold)
{
    Db().Run(u"UPDATE Sys_Define SET PrintType='1',Orientation=1,bolVerify='1',Deadline='18:00:00',"
             "Control_Sale='1';"
             "UPDATE DFN_Paper SET LeftArea=0.5,TopArea=-1.255,PrintStyle='2' WHERE PaperID='P03';"
             "UPDATE DFN_Round SET bolRound='1' WHERE CountID='C02';"
             "UPDATE DFN_CheckFee SET CountID='1' WHERE FeeID='F02'"_s);
    WriteProgramFile(u"Config.ini"_s, u"[Define]\nPaperSize=11\n"_s);
    WriteProgramFile(u"Data/BCover.ini"_s, u"[Pic]\nPicStatus=1\nFileName=cover.png\n"_s);
    QWidget* window = OpenSettings();

    EXPECT_EQ(window->windowTitle(), u"基本设置"_s);
    EXPECT_EQ(List(u"cmbPaperSize"_s)->currentText(), u"A5"_s);
    EXPECT_TRUE(IsTicked(u"chkPrintType"_s));
    EXPECT_TRUE(IsTicked(u"optPortrait"_s));
    EXPECT_FALSE(IsTicked(u"optLandScape"_s));
    EXPECT_EQ(Text(u"txtPaperID_2"_s), u"P03"_s);
    EXPECT_EQ(Text(u"txtPaperName_2"_s), u"收款清单"_s);
    EXPECT_EQ(Text(u"txtLeftArea_2"_s), u"0.50"_s);
    EXPECT_EQ(Text(u"txtTopArea_2"_s), u"-1.26"_s);
    EXPECT_EQ(List(u"cmbPrintStyle_2"_s)->currentText(), u"带框打印"_s);
    EXPECT_EQ(Text(u"txtLeftArea_0"_s), u"0.00"_s);
    EXPECT_EQ(List(u"cmbPrintStyle_0"_s)->currentText(), u"不打印"_s);
    EXPECT_EQ(List(u"cmbPrintStyle_0"_s)->itemText(1), u"套打"_s);
    EXPECT_TRUE(IsTicked(u"chkPicStatus"_s));
    EXPECT_EQ(Text(u"txtFileName"_s), u"cover.png"_s);
    EXPECT_FALSE(Find<QLabel>(Name, u"ImageView"_s)->pixmap().isNull());
    EXPECT_TRUE(IsTicked(u"chkControl_Sale"_s));
    EXPECT_TRUE(IsTicked(u"chkVerify"_s));
    EXPECT_EQ(Text(u"txtDeadline"_s), u"18:00:00"_s);
    EXPECT_FALSE(IsTicked(u"chkRound_Sale"_s));
    EXPECT_TRUE(IsTicked(u"chkRound_CheckOut"_s));
    EXPECT_EQ(List(u"cmbCountID_0"_s)->currentText(), u"按顿数"_s);
    EXPECT_EQ(List(u"cmbCountID_1"_s)->currentText(), u"按件数"_s);
}

TEST_F(Parameter, AnyOrientationButOneIsLandscapeAndAnUnknownStyleDoesNotPrint)
{
    Db().Run(u"UPDATE Sys_Define SET Orientation=7; UPDATE DFN_Paper SET PrintStyle='7'; "
             "UPDATE DFN_CheckFee SET CountID='7'; UPDATE DFN_Round SET bolRound=''"_s);
    OpenSettings();
    EXPECT_TRUE(IsTicked(u"optLandScape"_s));
    EXPECT_EQ(List(u"cmbPrintStyle_0"_s)->currentText(), u"不打印"_s);
    EXPECT_EQ(List(u"cmbCountID_0"_s)->currentText(), u"按件数"_s) << "as the settlement reads it";
    EXPECT_TRUE(IsTicked(u"chkRound_Sale"_s)) << "as the till reads it";
}

TEST_F(Parameter, OneLineStandsForEachDocumentInTheOrderOfTheirNumbers)
{
    Db().Run(u"INSERT INTO DFN_Paper (PaperID,PaperName) VALUES ('P00','甲')"_s);
    QWidget* window = OpenSettings();
    QStringList ids;
    for (int i = 0; const auto* box = window->findChild<QLineEdit*>(u"txtPaperID_%1"_s.arg(i)); ++i) {
        ids << box->text();
        EXPECT_TRUE(box->isReadOnly());
        EXPECT_TRUE(Find(Name, u"txtPaperName_%1"_s.arg(i))->isReadOnly());
    }
    EXPECT_EQ(ids, (QStringList{u"P00"_s, u"P01"_s, u"P02"_s, u"P03"_s, u"P04"_s, u"P05"_s, u"P06"_s}));
}

TEST_F(Parameter, EmptyTablesShowAnEmptyWindowThatStillSaves)
{
    Db().Run(
        u"DELETE FROM Sys_Define; DELETE FROM DFN_Paper; DELETE FROM DFN_Round; DELETE FROM DFN_CheckFee"_s);
    OpenSettings();
    EXPECT_TRUE(IsTicked(u"optPortrait"_s)) << "as the reports print without a row";
    EXPECT_EQ(Text(u"txtDeadline"_s), QString());
    EXPECT_FALSE(IsTicked(u"chkRound_Sale"_s));
    Submit();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Count(u"Sys_Define"_s), 0);
    EXPECT_EQ(Count(u"DFN_CheckFee"_s), 0);
}

TEST_F(Parameter, ALoadThatFailsLeavesNoWindow)
{
    for (int n = 1; n <= 5; ++n) {
        FailStatement(n, Refusal::MissingTable);
        EXPECT_ANY_THROW(Windows().Show(Name, nullptr)) << n;
        Settle();
        EXPECT_FALSE(IsOpen()) << n;
        TakeStatements();
        Db();
    }
}

// The one-window slot.

TEST_F(Parameter, TheSlotIsLeftOnOpeningAndFreedByEveryClose)
{
    Session::WindowSlotFree = true;
    OpenSettings();
    EXPECT_TRUE(Session::WindowSlotFree);
    Session::WindowSlotFree = false; // another function was opened meanwhile
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Session::WindowSlotFree);

    Session::WindowSlotFree = false;
    OpenSettings();
    EXPECT_FALSE(Session::WindowSlotFree);
    Submit();
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(Parameter, MenusStayOpenBesideTheSettings)
{
    QWidget* frame = Open(u"frmMain"_s);
    frame->findChild<QAction*>(u"menuBasePara"_s)->trigger();
    Settle();
    ASSERT_TRUE(IsOpen());
    frame->findChild<QAction*>(u"menuStore"_s)->trigger();
    Settle();
    EXPECT_NE(Windows().Find(u"frmStore"_s), nullptr);
    EXPECT_FALSE(Session::WindowSlotFree);

    // The settings' close frees the slot over the open stores.
    Windows().Find(Name)->Widget()->close();
    Settle();
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_NE(Windows().Find(u"frmStore"_s), nullptr);
}

TEST_F(Parameter, CancelSavesNothing)
{
    OpenSettings();
    Turn(3);
    TypeInto(u"txtDeadline"_s, u"19:00:00"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Value(u"SELECT Deadline FROM Sys_Define"_s), u"00:00:00"_s);
}

// Pages and keys.

TEST_F(Parameter, EachTabShowsItsFrameAndHidesTheOthers)
{
    OpenSettings();
    auto* tabs = Find<QTabBar>(Name, u"TabTitle"_s);
    QStringList captions;
    for (int i = 0; i < tabs->count(); ++i)
        captions << tabs->tabText(i) + u' ' + tabs->tabToolTip(i);
    EXPECT_EQ(captions, (QStringList{u"打印 Alt+1"_s, u"背景 Alt+2"_s, u"控制 Alt+3"_s}));
    EXPECT_EQ(FramesInFront(), u"Frame1"_s);
    for (const int page : {1, 2, 0}) {
        QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(page).center());
        Settle();
        EXPECT_EQ(FramesInFront(), u"Frame%1"_s.arg(page + 1));
    }
}

TEST_F(Parameter, KeysTurnThePagesAndPutTheCursorOnTheirFirstControl)
{
    OpenSettings();
    EXPECT_EQ(FocusName(), u"cmbPaperSize"_s);
    const QStringList first{u"cmbPaperSize"_s, u"chkPicStatus"_s, u"chkControl_Sale"_s};
    for (const int page : {3, 2, 1}) {
        Turn(page);
        EXPECT_EQ(FramesInFront(), u"Frame%1"_s.arg(page));
        EXPECT_EQ(FocusName(), first[page - 1]);
    }
    for (const int page : {2, 3, 1}) {
        Press(Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(FramesInFront(), u"Frame%1"_s.arg(page));
        EXPECT_EQ(FocusName(), first[page - 1]);
    }
    for (const int page : {3, 2, 1}) {
        Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(FramesInFront(), u"Frame%1"_s.arg(page));
    }
    EXPECT_EQ(Find<QTabBar>(Name, u"TabTitle"_s)->currentIndex(), 0);
    EXPECT_EQ(Find<QLabel>(Name, u"lblTabKeys"_s)->text(), u"Alt+1、Alt+2、Alt+3 或 Ctrl+Tab 换页"_s);
}

TEST_F(Parameter, ArrowsOnTheTabsTurnPagesWithoutLeavingThem)
{
    OpenSettings();
    GoTo(u"TabTitle"_s);
    Press(Qt::Key_Right);
    EXPECT_EQ(FramesInFront(), u"Frame2"_s);
    EXPECT_EQ(FocusName(), u"TabTitle"_s);
}

TEST_F(Parameter, EnterWalksEveryControlOfThePagesAndSavesInTheLast)
{
    OpenSettings();
    const QStringList all = PrintingControls + BackgroundControls + RulesControls;
    for (const QString& control : all) {
        EXPECT_TRUE(IsOpen());
        ASSERT_EQ(FocusName(), control);
        Press(Qt::Key_Return);
    }
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeStatements().size(), 11);
}

TEST_F(Parameter, SpaceTicksAndTheArrowsToTheSideChooseTheDirection)
{
    OpenSettings();
    Tick(u"chkPrintType"_s);
    EXPECT_TRUE(IsTicked(u"chkPrintType"_s));
    GoTo(u"optLandScape"_s);
    Press(Qt::Key_Left);
    EXPECT_TRUE(IsTicked(u"optPortrait"_s));
    Press(Qt::Key_Right);
    EXPECT_TRUE(IsTicked(u"optLandScape"_s));
    EXPECT_EQ(FocusName(), u"optLandScape"_s);
}

// The paper list.

TEST_F(Parameter, WithoutPapersItSaysSoAtEveryOpeningAndKeepsTheStoredOne)
{
    SetPaperSizes(QList<PaperSize>());
    WriteProgramFile(u"Config.ini"_s, u"[Define]\nPaperSize=11\n"_s);
    for (int opening = 0; opening < 2; ++opening) {
        boxes.Expect(NoPaper, u"软件提示"_s);
        OpenSettings();
        EXPECT_EQ(List(u"cmbPaperSize"_s)->count(), 0);
        Submit();
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(PaperSizeInIni(), u"11"_s);
        EXPECT_EQ(TakeStatements().size(), 11) << "the other steps of the save were done";
    }
}

TEST_F(Parameter, AStoredPaperThatThePrinterLacksIsNotReplaced)
{
    for (const QString& stored : {u"70"_s, u"0"_s, u""_s, u"abc"_s, u"99999999999"_s}) {
        WriteProgramFile(u"Config.ini"_s, u"[Define]\nPaperSize=%1\n"_s.arg(stored));
        OpenSettings();
        EXPECT_EQ(List(u"cmbPaperSize"_s)->currentIndex(), -1) << stored.toStdString();
        Submit();
        EXPECT_EQ(PaperSizeInIni(), stored);
    }
}

TEST_F(Parameter, TheChosenPaperIsStoredByItsCode)
{
    OpenSettings();
    EXPECT_EQ(List(u"cmbPaperSize"_s)->currentText(), u"A4"_s);
    Choose(u"cmbPaperSize"_s, 2);
    Submit();
    EXPECT_EQ(PaperSizeInIni(), u"256"_s);
}

// The background picture.

TEST_F(Parameter, BrowsingAsksForAPictureAndShowsIt)
{
    const QString filter =
        u"Bitmaps （*.bmp）|*.bmp|GIF Images （*.gif）|*.gif|JPEG Images （*.jpg）|*.jpg"_s;
    OpenSettings();
    Turn(2);
    auto* preview = Find<QLabel>(Name, u"ImageView"_s);
    EXPECT_TRUE(preview->pixmap().isNull());

    boxes.ExpectFile(filter, QString());
    Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(Text(u"txtFileName"_s), QString()) << "nothing was chosen";

    boxes.ExpectFile(filter, InFolder(u"cover.png"_s));
    DoubleClick(Find(Name, u"txtFileName"_s));
    EXPECT_EQ(Text(u"txtFileName"_s), InFolder(u"cover.png"_s));
    EXPECT_FALSE(boxes.LastFileQuestion().isSave);

    boxes.ExpectFile(filter, QString());
    GoTo(u"txtFileName"_s);
    Press(Qt::Key_F2);
    EXPECT_EQ(boxes.LastFileQuestion().start, InFolder(u"cover.png"_s));
    boxes.ExpectFile(filter, QString());
    Click(Find<QWidget>(Name, u"cmdOpen"_s));
    EXPECT_EQ(Text(u"txtFileName"_s), InFolder(u"cover.png"_s)) << "a cancelled dialog changes nothing";

    // 80 by 20 fills the frame's width and keeps its shape.
    const QSize shown = preview->pixmap().size();
    EXPECT_NEAR(shown.width(), 4 * shown.height(), 4);
    EXPECT_GT(shown.width(), 400);
    const auto* frame = Find<QFrame>(Name, u"PicFrame"_s);
    EXPECT_LE(shown.width(), frame->width());
    EXPECT_TRUE(frame->isAncestorOf(preview));
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(Parameter, APictureTallerThanTheFrameFitsItsHeight)
{
    QPixmap tall(30, 900);
    tall.fill(Qt::blue);
    ASSERT_TRUE(tall.save(InFolder(u"tall.bmp"_s)));
    WriteProgramFile(u"Data/BCover.ini"_s, u"[Pic]\nPicStatus=1\nFileName=tall.bmp\n"_s);
    OpenSettings();
    Turn(2);
    const QSize shown = Find<QLabel>(Name, u"ImageView"_s)->pixmap().size();
    EXPECT_NEAR(shown.height(), 30 * shown.width(), 30);
    EXPECT_GT(shown.height(), 220);
    EXPECT_LE(shown.height(), Find<QFrame>(Name, u"PicFrame"_s)->height());
}

TEST_F(Parameter, WhatIsNoPictureIsSaidInThePreviewAndSavedAllTheSame)
{
    WriteProgramFile(u"it's a 'picture'.jpg"_s, u"no picture"_s);
    OpenSettings();
    Turn(2);
    auto* preview = Find<QLabel>(Name, u"ImageView"_s);
    boxes.ExpectFile(u"Bitmaps （*.bmp）|*.bmp|GIF Images （*.gif）|*.gif|JPEG Images （*.jpg）|*.jpg"_s,
                     InFolder(u"it's a 'picture'.jpg"_s));
    Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(preview->text(), u"没有这个图案，或者不是图片"_s);
    TypeInto(u"txtFileName"_s, u"/nowhere.bmp"_s);
    EXPECT_EQ(preview->text(), u"没有这个图案，或者不是图片"_s);
    TypeInto(u"txtFileName"_s, QString());
    EXPECT_EQ(preview->text(), QString());
    TypeInto(u"txtFileName"_s, InFolder(u"it's a 'picture'.jpg"_s));
    Submit();
    EXPECT_EQ(CoverIni(u"FileName"_s), InFolder(u"it's a 'picture'.jpg"_s));
    EXPECT_EQ(CoverIni(u"PicStatus"_s), u"0"_s) << "the name is kept though the picture is off";
}

TEST_F(Parameter, APathThatTheFileCannotHoldIsRefused)
{
    OpenSettings();
    Turn(2);
    TypeInto(u"txtFileName"_s, u"cover.png"_s);
    boxes.ExpectFile(u"Bitmaps （*.bmp）|*.bmp|GIF Images （*.gif）|*.gif|JPEG Images （*.jpg）|*.jpg"_s,
                     u'/' + QString(300, u'x'));
    boxes.Expect(u"文件的路径太长，最多255个字，请把图案放到别的文件夹！"_s);
    Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(Text(u"txtFileName"_s), u"cover.png"_s);
}

// As pictures.

TEST_F(Parameter, EveryPageFitsTheScreenWithNothingClipped)
{
    Db().Run(u"UPDATE DFN_Paper SET LeftArea=-12.35"_s);
    QWidget* window = OpenSettings();
    EXPECT_LE(window->width(), 1000);
    EXPECT_LE(window->height(), 620);
    for (int page = 1; page <= 3; ++page) {
        Turn(page);
        const auto fits = [](const auto* control) {
            const int needed = control->fontMetrics().horizontalAdvance(control->text());
            EXPECT_TRUE(!control->isVisible() || control->width() >= needed)
                << control->objectName().toStdString();
        };
        for (const auto* label : window->findChildren<QLabel*>())
            fits(label);
        for (const auto* button : window->findChildren<QAbstractButton*>())
            fits(button);
    }
}
