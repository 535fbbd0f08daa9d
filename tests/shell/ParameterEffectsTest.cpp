#include "core/common/Lookups.h"
#include "core/session/Session.h"
#include "goods/LotSlip.h"
#include "printing/Documents.h"
#include "tests/shell/ParameterWindow.h"

#include <QLabel>
#include <QMdiArea>

using namespace Qt::StringLiterals;

namespace {

/// Notes which document is asked for, and how.
class Recorder : public DocumentPrinter {
public:
    void Print(Document document, PrintMode mode, const QWidget& /*form*/) override
    {
        calls << NameOf(document) + (mode == PrintMode::Stationery ? u" stationery"_s : u" sheet"_s);
    }

    QStringList calls;

private:
    static QString NameOf(Document document)
    {
        switch (document) {
        case Document::PRDList:
            return u"PRDList"_s;
        case Document::SaleList:
            return u"SaleList"_s;
        case Document::CheckOut:
            return u"CheckOut"_s;
        case Document::CheckOutA:
            return u"CheckOutA"_s;
        default:
            return u"another"_s;
        }
    }
};

/// The settings changed in their window, and the windows that go by them: lot A-001 with 100 pieces and
/// the check code 2580, lot B-001 with 100 pieces sold in one ticket of 2500 kg for 899.7 yuan.
class ParameterEffects : public ParameterWindow {
protected:
    void SetUp() override
    {
        ParameterWindow::SetUp();
        SetDocumentPrinter(&printer);
        Db().Run(uR"(
            INSERT INTO Sales VALUES ('11','周建国');
            INSERT INTO PRD_List (ID,PRDNo,PRDName,Num,Num_Sal,CustName,VerifyID,bolPack,bolCheckOut) VALUES
              ('20260309001','A-001','苹果',100,100,'刘守田','2580','0','0'),
              ('20260309002','B-001','蜜橘',100,0,'向德明','6611','0','0');
            INSERT INTO Sal_List (SalNo,ID,PRDNo,Num,Suttle,Amount,TotalAmount) VALUES
              ('01260301001','20260309002','B-001',100,2500,899.7,899.7);
        )"_s);
    }

    void TearDown() override
    {
        SetDocumentPrinter(nullptr);
        ParameterWindow::TearDown();
    }

    /// Opens the settings, changes something on a page, and submits.
    void Set(int page, const std::function<void()>& change)
    {
        OpenSettings();
        Turn(page);
        change();
        Submit();
        EXPECT_FALSE(IsOpen());
    }

    void CloseWindow(const QString& name)
    {
        Windows().Find(name)->Widget()->close();
        Settle();
    }

    /// A ticket of lot A-001 in the open till, up to the last field.
    void EnterTicket(const QString& num = u"10"_s, const QString& upr = u"3.25"_s)
    {
        FocusAndType(u"frmSale"_s, u"txtVendee"_s);
        Press(Qt::Key_Return);
        Enter(u"txtPRDNo"_s, u"A-001"_s);
        if (Find(u"frmSale"_s, u"txtVerifyID"_s)->isVisible())
            Enter(u"txtVerifyID"_s, u"2580"_s);
        Press(Qt::Key_Return); // the product's name
        Enter(u"txtNum"_s, num);
        Press(Qt::Key_Return); // no weight
        Enter(u"txtUPR"_s, upr);
        while (FocusName() != u"txtSalesID" && !HasFailure())
            Press(Qt::Key_Return);
        Enter(u"txtSalesID"_s, u"11"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(FocusName(), u"cmbCheckStatus"_s);
    }

    /// Opens the till, sells one ticket, closes the till.
    void Sell(const QString& num = u"10"_s)
    {
        Open(u"frmSale"_s);
        EnterTicket(num);
        Press(Qt::Key_Return);
        CloseWindow(u"frmSale"_s);
    }

    void FocusAndType(const QString& window, const QString& control, const QString& text = QString())
    {
        QWidget* widget = Windows().Find(window)->Widget();
        widget->activateWindow();
        WaitFor([widget] { return widget->isActiveWindow(); });
        auto* box = Find(window, control);
        box->setFocus();
        box->selectAll();
        Type(text);
        Settle();
    }

    /// SaleDate and FSaleDate of the last ticket.
    QString DatesOfLastTicket()
    {
        return Db().Rows(u"SELECT SaleDate,FSaleDate FROM Sal_List ORDER BY SalNo DESC LIMIT 1"_s)[0].join(
            u' ');
    }

    /// Opens a settlement layout with lot B-001.
    void OpenSettlement(const QString& layout)
    {
        Open(layout);
        Enter(u"txtPRDNo"_s, u"B-001"_s);
    }

    /// The frame as at the next logon.
    QWidget* LogOnAnew()
    {
        Windows().DropAll();
        Db().Run(u"DELETE FROM User_Status"_s);
        return Open(u"frmMain"_s);
    }

    static bool ShowsCover(QWidget* frame)
    {
        auto* area = frame->findChild<QMdiArea*>();
        return area->viewport()->grab().toImage().pixelColor(area->viewport()->rect().center()) ==
               QColor(Qt::red);
    }

    Recorder printer;
};

} // namespace

TEST_F(ParameterEffects, ASaleFromTheCutOffOnBelongsToTheNextDay)
{
    Set(3, [this] { TypeInto(u"txtDeadline"_s, u"18:00:00"_s); });
    SetClock(u"2026-03-09 17:59:59"_s);
    Sell();
    EXPECT_EQ(DatesOfLastTicket(), u"2026-03-09 2026-03-09"_s);
    SetClock(u"2026-03-09 18:00:00"_s);
    Sell();
    EXPECT_EQ(DatesOfLastTicket(), u"2026-03-09 2026-03-10"_s);
}

TEST_F(ParameterEffects, AnEmptyCutOffAndMidnightAreNone)
{
    Db().Run(u"UPDATE Sys_Define SET Deadline='18:00:00'"_s);
    SetClock(u"2026-03-09 23:59:59"_s);
    for (const QString& none : {QString(), u"00:00:00"_s}) {
        Set(3, [&] { TypeInto(u"txtDeadline"_s, none); });
        EXPECT_EQ(GetDeadline(), u"00:00:00"_s);
        Sell();
        EXPECT_EQ(DatesOfLastTicket(), u"2026-03-09 2026-03-09"_s);
    }
}

TEST_F(ParameterEffects, TheCutOffReachesATillThatIsOpenAlready)
{
    SetClock(u"2026-03-09 18:30:00"_s);
    Open(u"frmSale"_s);
    Set(3, [this] { TypeInto(u"txtDeadline"_s, u"18:00:00"_s); });
    EnterTicket();
    Press(Qt::Key_Return);
    EXPECT_EQ(DatesOfLastTicket(), u"2026-03-09 2026-03-10"_s);
}

TEST_F(ParameterEffects, TheTillAsksForTheCheckCodeWhenItIsSwitchedOn)
{
    Open(u"frmSale"_s);
    EXPECT_FALSE(Find(u"frmSale"_s, u"txtVerifyID"_s)->isVisible());
    CloseWindow(u"frmSale"_s);

    Set(3, [this] { Tick(u"chkVerify"_s); });
    Open(u"frmSale"_s);
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"A-001"_s);
    EXPECT_EQ(FocusName(), u"txtVerifyID"_s);
    boxes.Expect(u"客户校验码错误!"_s);
    Enter(u"txtVerifyID"_s, u"1111"_s);
    EXPECT_EQ(FocusName(), u"txtVerifyID"_s);
    Enter(u"txtVerifyID"_s, u"2580"_s);
    EXPECT_EQ(FocusName(), u"txtPRDName"_s);
    CloseWindow(u"frmSale"_s);

    Set(3, [this] { Tick(u"chkVerify"_s); });
    Open(u"frmSale"_s);
    EXPECT_FALSE(Find(u"frmSale"_s, u"txtVerifyID"_s)->isVisible());
}

TEST_F(ParameterEffects, StockControlBeginsAndEndsWithTheNextLogon)
{
    LogOnAnew();
    Set(3, [this] { Tick(u"chkControl_Sale"_s); });
    Sell(u"101"_s);
    EXPECT_EQ(Count(u"Sal_List"_s, u"PRDNo='A-001' And Num=101"_s), 1) << "this session sells on";

    LogOnAnew();
    Open(u"frmSale"_s);
    EnterTicket(u"1"_s);
    boxes.Expect(u"库存不足！仅允许销售-1件。"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Count(u"Sal_List"_s, u"PRDNo='A-001'"_s), 1);

    Set(3, [this] { Tick(u"chkControl_Sale"_s); });
    FocusAndType(u"frmSale"_s, u"txtSalesID"_s, u"11"_s);
    boxes.Expect(u"库存不足！仅允许销售-1件。"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    LogOnAnew();
    Sell(u"1"_s);
    EXPECT_EQ(Count(u"Sal_List"_s, u"PRDNo='A-001'"_s), 2);
}

TEST_F(ParameterEffects, TheTillRoundsItsTotalToWholeYuan)
{
    const auto total = [this] {
        Open(u"frmSale"_s);
        EnterTicket(u"10"_s, u"3.25"_s);
        const QString shown =
            TextOf(u"frmSale"_s, u"txtAmount"_s) + u' ' + TextOf(u"frmSale"_s, u"txtTotalAmount"_s);
        CloseWindow(u"frmSale"_s);
        return shown;
    };
    EXPECT_EQ(total(), u"¥32.5 ¥32.5"_s);
    Set(3, [this] { Tick(u"chkRound_Sale"_s); });
    EXPECT_EQ(total(), u"¥32.5 ¥33.0"_s);
    EXPECT_FALSE(IsRoundOn(u"C02"_s)) << "the settlement has a switch of its own";
    Set(3, [this] { Tick(u"chkRound_Sale"_s); });
    EXPECT_EQ(total(), u"¥32.5 ¥32.5"_s);
}

TEST_F(ParameterEffects, TheSettlementRoundsItsNetToWholeYuan)
{
    const auto nets = [this] {
        QStringList shown;
        for (const QString& layout : {u"frmCheckOut"_s, u"frmCheckOutA"_s}) {
            OpenSettlement(layout);
            shown << TextOf(layout, u"txtGTotalPrice"_s) + Find<QLabel>(layout, u"lblPriceUCase"_s)->text();
            CloseWindow(layout);
        }
        return shown;
    };
    EXPECT_EQ(nets(), (QStringList{u"¥899.7(捌佰玖拾玖元柒角)"_s, u"¥899.7(捌佰玖拾玖元柒角)"_s}));
    Set(3, [this] { Tick(u"chkRound_CheckOut"_s); });
    EXPECT_EQ(nets(), (QStringList{u"¥900.0(玖佰元)"_s, u"¥900.0(玖佰元)"_s}));
    EXPECT_FALSE(IsRoundOn(u"C01"_s));
}

TEST_F(ParameterEffects, UnloadingAndSanitationAreChargedByWeightOrByCountEachForItself)
{
    const auto fees = [this](const QString& layout) {
        OpenSettlement(layout);
        FocusAndType(layout, u"txtPer_LUnload"_s, u"30"_s);
        FocusAndType(layout, u"txtPer_LSani"_s, u"20"_s);
        const QString shown =
            TextOf(layout, u"txtLUnloadPrice"_s) + u' ' + TextOf(layout, u"txtLSanitationPrice"_s);
        CloseWindow(layout);
        return shown;
    };
    for (const QString& layout : {u"frmCheckOut"_s, u"frmCheckOutA"_s}) {
        EXPECT_EQ(fees(layout), u"75.0 50.0"_s);
        Set(3, [this] { Choose(u"cmbCountID_0"_s, 1); });
        EXPECT_EQ(fees(layout), u"3,000.0 50.0"_s);
        Set(3, [this] {
            Choose(u"cmbCountID_0"_s, 0);
            Choose(u"cmbCountID_1"_s, 1);
        });
        EXPECT_EQ(fees(layout), u"75.0 2,000.0"_s);
        Set(3, [this] { Choose(u"cmbCountID_1"_s, 0); });
    }
}

TEST_F(ParameterEffects, EachDocumentPrintsInItsOwnStyle)
{
    const auto settle = [this](const QString& layout) {
        Db().Run(u"UPDATE PRD_List SET bolCheckOut='0' WHERE PRDNo='B-001'"_s);
        OpenSettlement(layout);
        while (FocusName() != u"txtPayUser" && !HasFailure())
            Press(Qt::Key_Return);
        Press(Qt::Key_Return);
        CloseWindow(layout);
    };
    const auto printAll = [&] {
        printer.calls.clear();
        ReprintLotSlip(u"A-001"_s);
        Sell(u"1"_s);
        settle(u"frmCheckOut"_s);
        settle(u"frmCheckOutA"_s);
        return printer.calls;
    };
    const auto styles = [this](int slip, int ticket, int settlement) {
        Set(1, [&] {
            Choose(u"cmbPrintStyle_0"_s, slip);
            Choose(u"cmbPrintStyle_2"_s, ticket);
            Choose(u"cmbPrintStyle_4"_s, settlement);
        });
    };
    EXPECT_EQ(printAll(), QStringList());
    styles(1, 2, 1);
    EXPECT_EQ(printAll(), (QStringList{u"PRDList stationery"_s, u"SaleList sheet"_s, u"CheckOut stationery"_s,
                                       u"CheckOutA stationery"_s}));
    styles(2, 1, 2);
    EXPECT_EQ(printAll(), (QStringList{u"PRDList sheet"_s, u"SaleList stationery"_s, u"CheckOut sheet"_s,
                                       u"CheckOutA sheet"_s}));
    styles(0, 0, 0);
    EXPECT_EQ(printAll(), QStringList());
    EXPECT_EQ(GetPrintStyle(u"P06"_s), u"2"_s) << "the others keep theirs";
    EXPECT_EQ(GetPrintStyle(u"P04"_s), u"0"_s);
}

TEST_F(ParameterEffects, OffsetsDirectionAndPrintingOnSaveAreReadAtOnce)
{
    EXPECT_EQ(GetOrientation(), 2);
    EXPECT_FALSE(IsPrintOnSave());
    Set(1, [this] {
        TypeInto(u"txtLeftArea_4"_s, u"0.75"_s);
        TypeInto(u"txtTopArea_4"_s, u"-1.5"_s);
        Tick(u"optPortrait"_s);
        Tick(u"chkPrintType"_s);
    });
    EXPECT_EQ(GetPaperLeft(u"P05"_s), 0.75);
    EXPECT_EQ(GetPaperTop(u"P05"_s), -1.5);
    EXPECT_EQ(GetPaperLeft(u"P04"_s), 0);
    EXPECT_EQ(GetOrientation(), 1);
    EXPECT_TRUE(IsPrintOnSave());
    Set(1, [this] {
        Tick(u"optLandScape"_s);
        Tick(u"chkPrintType"_s);
    });
    EXPECT_EQ(GetOrientation(), 2);
    EXPECT_FALSE(IsPrintOnSave());
}

TEST_F(ParameterEffects, TheBackgroundPictureShowsFromTheNextStartOn)
{
    QWidget* frame = LogOnAnew();
    Set(2, [this] {
        Tick(u"chkPicStatus"_s);
        TypeInto(u"txtFileName"_s, InFolder(u"cover.png"_s));
    });
    EXPECT_FALSE(ShowsCover(frame)) << "not in this session";
    EXPECT_TRUE(ShowsCover(LogOnAnew()));
    Set(2, [this] { Tick(u"chkPicStatus"_s); });
    EXPECT_FALSE(ShowsCover(LogOnAnew()));
    EXPECT_EQ(CoverIni(u"FileName"_s), InFolder(u"cover.png"_s)) << "kept for the next time";
}

TEST_F(ParameterEffects, AFileThatIsNoPictureLeavesThePlainGround)
{
    WriteProgramFile(u"broken.jpg"_s, u"no picture"_s);
    Set(2, [this] {
        Tick(u"chkPicStatus"_s);
        TypeInto(u"txtFileName"_s, InFolder(u"broken.jpg"_s));
    });
    EXPECT_FALSE(ShowsCover(LogOnAnew()));
}

TEST_F(ParameterEffects, ThePaperOfTheDocumentsChangesWithTheNextLogon)
{
    LogOnAnew();
    Set(1, [this] { Choose(u"cmbPaperSize"_s, 1); });
    EXPECT_EQ(Session::PaperSizeCode, 9);
    LogOnAnew();
    EXPECT_EQ(Session::PaperSizeCode, 11);
}
