#include "core/session/Session.h"
#include "printing/Documents.h"
#include "tests/settlement/SettlementWindow.h"

using namespace Qt::StringLiterals;

namespace {

const QString NothingLeft = u"实得金额为负数，不能进行结算。"_s;

/// Notes what is asked to print, and what stands at that moment.
class NotingPrinter : public DocumentPrinter {
public:
    explicit NotingPrinter(std::function<QString()> standing) : m_standing(std::move(standing))
    {
        SetDocumentPrinter(this);
    }
    ~NotingPrinter() override { SetDocumentPrinter(nullptr); }

    void Print(Document document, PrintMode mode, const QWidget& form) override
    {
        EXPECT_EQ(form.objectName(), document == Document::CheckOut ? u"frmCheckOut"_s : u"frmCheckOutA"_s);
        notes << (document == Document::CheckOut ? u"CheckOut"_s : u"CheckOutA"_s) +
                     (mode == PrintMode::Stationery ? u" preprinted"_s : u" framed"_s);
        notes << m_standing();
    }

    QStringList notes;

private:
    std::function<QString()> m_standing;
};

class SettlementSave : public EitherLayout {
protected:
    /// A lot with two tickets and an advance, its fees partly by rate, on the screen and ready to save.
    void PrepareFullSettlement()
    {
        AddTicket(30, 0, 900);
        AddTicket(10, 120.5, 334.55);
        AddAdvance(250);
        OpenLayout();
        EnterLot();
        Enter(u"txtPer_LManage"_s, u"5"_s);
        Press(Qt::Key_Return);
        Enter(u"txtPer_LElect"_s, u"1.50"_s);
        Press(Qt::Key_Return);
        Enter(u"txtLPackPrice"_s, u"12.34"_s);
        while (FocusName() != u"txtCheckUser" && !HasFailure())
            Press(Qt::Key_Return);
        Enter(u"txtCheckUser"_s, u" 李会计 "_s);
        Type(u"赵出纳"_s);
        TakeStatements();
    }

    void Save() { Press(Qt::Key_S, Qt::AltModifier); }

    QStringList PrintStyleRead() const
    {
        return IsLayoutA() ? QStringList{u"SELECT PrintStyle FROM DFN_Paper WHERE PaperID='P05'"_s}
                           : QStringList();
    }

    static const QString InsertFull;
};

const QString SettlementSave::InsertFull =
    u"INSERT INTO CheckOut (ID,CheckNo,CheckDate,PRDNo,PRDName,Num,Suttle,Amount,ListNum,CustName,Store,"
    "LManagePrice,LPackPrice,LUnloadPrice,LExpendPrice,LSanitationPrice,LElectPrice,LRecoupPrice,LChillPrice,"
    "LFieldPrice,LOtherPrice,LTotalPrice,GTotalPrice,CheckUser,PayUser,Receiver,Per_LManage,Per_LElect,"
    "Per_LUnload,Per_LSani) VALUES "
    "('20260301001','01260309001','2026-03-09','A-001','红富士',40,120.5,1234.6,2,"
    "'王建国','一号库',61.7,12.3,0,250,0,18.5,0,0,0,0,342.5,892.1,'李会计','赵出纳','01','5','1.50','','')"_s;

} // namespace

INSTANTIATE_TEST_SUITE_P(, SettlementSave, BothLayouts, LayoutName);

// The statements

TEST_P(SettlementSave, AnOrdinaryLotSendsTheseStatementsInOrder)
{
    PrepareFullSettlement();
    Press(Qt::Key_Return); // in the last field
    QStringList expected{InsertFull, u"SELECT PRDNo FROM CheckOut WHERE CheckNo='01260309001'"_s};
    expected
        << PrintStyleRead() << u"SELECT bolFixed FROM PRD_List WHERE PRDNo='A-001' And bolCheckOut='0'"_s
        << u"UPDATE PRD_List SET bolCheckOut='1',CheckNo='01260309001' WHERE ID='20260301001'"_s
        << u"UPDATE Sal_List SET bolCheckOut='1',CheckDate='2026-03-09',CheckNo='01260309001' WHERE ID='20260301001'"_s
        << u"UPDATE CustDebit SET bolCheckOut='1',CheckDate='2026-03-09',CheckNo='01260309001' WHERE ID='20260301001'"_s
        << u"SELECT CurrNumber FROM Count_Bill WHERE UID='01' And TID='03' And CurrDate='2026-03-09'"_s
        << u"INSERT INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES ('03','01','2026-03-09',1)"_s
        << u"SELECT CurrNumber FROM Count_Bill WHERE CurrDate='2026-03-09' And TID='03' And UID='01'"_s;
    EXPECT_EQ(TakeStatements(), expected);
}

TEST_P(SettlementSave, ALockedLotOpensItsRestBetweenThePrintAndTheClosing)
{
    Db().Run(
        u"UPDATE PRD_List SET "
        u"bolFixed='1',Num_Sal=30,MPercent=0.5,PArea='烟台',bolPack='1',CardNO='37',VerifyID='v',"
        "Address='栖霞',DebitPrice=80,Tel='1',Fax='2',Mobile='3',Memo='旧',Receiver='02',PerForegift=5.5,"
        "PackNo='K1',"
        "CustFInDate='2026-02-01',CustInTime='08:00:00',EReceiver='02',EDate='2026-03-02',ETime='09:00:00'"_s);
    PrepareFullSettlement();
    Save();
    QStringList expected{InsertFull, u"SELECT PRDNo FROM CheckOut WHERE CheckNo='01260309001'"_s};
    expected
        << PrintStyleRead() << u"SELECT bolFixed FROM PRD_List WHERE PRDNo='A-001' And bolCheckOut='0'"_s
        << u"SELECT CurrNumber FROM Count_Bill WHERE CurrDate='2026-03-09' And TID='C01'"_s
        << u"INSERT INTO Count_Bill (TID,CurrDate,CurrNumber) VALUES ('C01','2026-03-09',1)"_s
        << u"SELECT "
           u"PID,CustID,PRDNo,PRDName,Num_Sal,PType,MPercent,Store,PArea,bolPack,CustName,CardNO,VerifyID,"
           "Address,Tel,Fax,Mobile,bolFixed,Receiver,PRDNo_S,PerForegift,PackNo FROM PRD_List WHERE "
           "PRDNo='A-001' "
           "And bolCheckOut='0'"_s
        << u"INSERT INTO PRD_List "
           u"(ID,PID,CustID,PRDNo,PRDName,Num,Num_Sal,PType,MPercent,CustInDate,Store,PArea,"
           "bolPack,CustName,CardNO,VerifyID,Address,DebitPrice,Tel,Fax,Mobile,Memo,bolFixed,Receiver,PRDNo_"
           "S,"
           "PerForegift,PackNo,CustFInDate,CustInTime) VALUES "
           "('20260309001','A','001','A-001','红富士',30,30,'件',0.5,"
           "'2026-03-09','一号库','烟台','1','王建国','37','v','栖霞',0,'1','2','3','','1','02','8','5.5','"
           "K1',"
           "'2026-03-09','10:00:00')"_s
        << u"SELECT PRDNo FROM PRD_List WHERE ID='20260309001'"_s
        << u"UPDATE Count_Bill SET CurrNumber=CurrNumber+1 WHERE TID='C01' And CurrDate='2026-03-09'"_s
        << u"UPDATE PRD_List SET bolCheckOut='1',CheckNo='01260309001' WHERE ID='20260301001'"_s;
    EXPECT_EQ(TakeStatements().mid(0, expected.size()), expected);
    EXPECT_EQ(
        Db().Rows(
            u"SELECT Num,Num_Sal,bolCheckOut,CheckNo,EReceiver,EDate,ETime,DebitPrice,Memo FROM PRD_List "
            "WHERE ID='20260309001'"_s),
        (std::vector<QStringList>{{u"30.000000"_s, u"30.000000"_s, u"0"_s, QString(), QString(), QString(),
                                   QString(), u"0.000000"_s, QString()}}));
}

// What stands afterwards

TEST_P(SettlementSave, ClosesTheLotItsTicketsAndItsAdvancesAndNothingElse)
{
    Db().Run(u"INSERT INTO PRD_List (ID,PRDNo,Num,Num_Sal) VALUES ('20260302001','B-001',10,10)"_s);
    Db().Run(
        u"INSERT INTO Sal_List (SalNo,ID,Vendee,SaleType,TotalAmount) VALUES ('b','20260302001','张三',1,50)"_s);
    Db().Run(u"INSERT INTO CustDebit (ID,DebitAmount) VALUES ('20260302001',5)"_s);
    Db().Run(u"INSERT INTO DFN_Pack (PackNo,Num_Pack) VALUES ('K1',7)"_s);
    Db().Run(u"INSERT INTO Cust_List (CustName,CreditMoney,bolControl) VALUES ('张三',100,'1')"_s);
    PrepareFullSettlement();
    Db().Run(u"UPDATE Sal_List SET Vendee='张三',SaleType=1,bolReturn='0' WHERE ID='20260301001'"_s);
    Save();

    EXPECT_EQ(Db().Rows(u"SELECT ID,Num,Num_Sal,bolCheckOut,CheckNo FROM PRD_List ORDER BY ID"_s),
              (std::vector<QStringList>{
                  {u"20260301001"_s, u"100.000000"_s, u"60.000000"_s, u"1"_s, u"01260309001"_s},
                  {u"20260302001"_s, u"10.000000"_s, u"10.000000"_s, u"0"_s, QString()}}));
    EXPECT_EQ(Count(u"Sal_List"_s, u"bolCheckOut='1' AND CheckDate='2026-03-09' AND CheckNo='01260309001'"_s),
              2);
    EXPECT_EQ(Count(u"Sal_List"_s, u"bolReturn='0'"_s), 3);
    EXPECT_EQ(Count(u"Sal_List"_s, u"bolCheckOut='0'"_s), 1);
    EXPECT_EQ(
        Count(u"CustDebit"_s, u"bolCheckOut='1' AND CheckDate='2026-03-09' AND CheckNo='01260309001'"_s), 1);
    EXPECT_EQ(Count(u"CustDebit"_s, u"bolCheckOut='0'"_s), 1);
    EXPECT_EQ(Value(u"SELECT Num_Pack FROM DFN_Pack"_s), u"7.000000"_s);
    EXPECT_EQ(Value(u"SELECT CreditMoney FROM Cust_List"_s), u"100.000000"_s);
    EXPECT_EQ(Count(u"CheckOut"_s), 1);
    for (const QString& table :
         {u"CheckOut_B"_s, u"Pack_List"_s, u"EStore_List"_s, u"Foregift_RTN"_s, u"ErrInfo"_s})
        EXPECT_EQ(Count(table), 0) << table.toStdString();
}

TEST_P(SettlementSave, LeavesTheWindowReadyForTheNextLotWithThePayer)
{
    PrepareFullSettlement();
    TypeInto(u"txtCustSign"_s, u"王建国"_s);
    Save();
    for (const QLineEdit* box : Windows().Find(Layout())->Widget()->findChildren<QLineEdit*>()) {
        const QStringList kept{u"txtCheckDate"_s, u"txtPayUser"_s, u"txtCheckNo"_s};
        EXPECT_EQ(box->text().isEmpty(), !kept.contains(box->objectName()))
            << box->objectName().toStdString();
    }
    EXPECT_EQ(Text(u"txtPayUser"_s), u"赵出纳"_s);
    EXPECT_EQ(Text(u"txtCheckUser"_s), QString());
    EXPECT_EQ(Text(u"txtCheckDate"_s), u"2026年03月09日"_s);
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309002"_s);
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), QString());
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    boxes.Expect(u"该编号不存在或已结算，请重新输入！"_s);
    EnterLot(); // settled now
}

TEST_P(SettlementSave, TheNextSettlementOfTheDayMovesTheCounterOn)
{
    PrepareFullSettlement();
    Save();
    Db().Run(u"INSERT INTO PRD_List (ID,PRDNo,CustName) VALUES ('20260302001','B-001','李四')"_s);
    Db().Run(u"INSERT INTO Sal_List (SalNo,ID,Num,Amount) VALUES ('b','20260302001',5,300)"_s);
    EnterLot(u"B-001"_s);
    WalkToNames();
    TakeStatements();
    Save();
    EXPECT_TRUE(TakeStatements().contains(
        u"UPDATE Count_Bill SET CurrNumber=CurrNumber+1 WHERE UID='01' And TID='03' And CurrDate='2026-03-09'"_s));
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill WHERE TID='03'"_s), u"2"_s);
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309003"_s);
    EXPECT_EQ(Db().Rows(u"SELECT CheckNo,CustName,GTotalPrice,PayUser FROM CheckOut ORDER BY CheckNo"_s)[1],
              (QStringList{u"01260309002"_s, u"李四"_s, u"300.000000"_s, u"赵出纳"_s}));
}

TEST_P(SettlementSave, NamesMayStayBlankAndTheReceiversSignIsNeverSaved)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    TypeInto(u"txtCustSign"_s, u"王"_s);
    Save();
    EXPECT_EQ(Db().Rows(u"SELECT CheckUser,PayUser,Receiver FROM CheckOut"_s),
              (std::vector<QStringList>{{QString(), QString(), u"01"_s}}));
    EXPECT_EQ(Count(u"CheckOut"_s, u"CONCAT_WS('|',CustName,CheckUser,PayUser,Store) LIKE '%王|%'"_s), 0);
}

TEST_P(SettlementSave, TheRoundedNetIsWhatIsStored)
{
    Db().Run(u"UPDATE DFN_Round SET bolRound='1' WHERE CountID='C02'"_s);
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot();
    TypeInto(u"txtLOtherPrice"_s, u"100.25"_s);
    GoTo(u"txtPer_LManage"_s);
    WalkToNames();
    Save();
    EXPECT_EQ(
        Db().Rows(u"SELECT Amount,LOtherPrice,LTotalPrice,GTotalPrice FROM CheckOut"_s),
        (std::vector<QStringList>{{u"1000.000000"_s, u"100.300000"_s, u"100.300000"_s, u"900.000000"_s}}));
}

TEST_P(SettlementSave, IsDatedOnTheDayOfTheSaveThoughTheWindowStoodOpenOverMidnight)
{
    SetClock(u"2026-03-08 23:59:00"_s);
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    SetClock(u"2026-03-09 00:01:00"_s);
    Save();
    EXPECT_EQ(Db().Rows(u"SELECT CheckNo,CheckDate FROM CheckOut"_s),
              (std::vector<QStringList>{{u"01260308001"_s, u"2026-03-09"_s}}));
    EXPECT_EQ(Db().Rows(u"SELECT CurrDate,CurrNumber FROM Count_Bill WHERE TID='03'"_s),
              (std::vector<QStringList>{{u"2026-03-09"_s, u"1"_s}}));
    EXPECT_EQ(Text(u"txtCheckDate"_s), u"2026年03月08日"_s);
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309002"_s);
}

TEST_P(SettlementSave, ALotFoundByItsShortcutIsSettledUnderItsMainNumber)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot(u"8"_s);
    WalkToNames();
    Save();
    const QStringList names = IsLayoutA() ? QStringList{QString(), QString(), QString()}
                                          : QStringList{u"王建国"_s, u"一号库"_s, u"红富士"_s};
    EXPECT_EQ(Db().Rows(u"SELECT ID,PRDNo,Num,GTotalPrice,CustName,Store,PRDName FROM CheckOut"_s)[0],
              (QStringList{Lot, u"A-001"_s, u"40.000000"_s, u"1000.000000"_s} + names));
    EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List"_s), u"1"_s);
}

// Refusals

TEST_P(SettlementSave, WithoutALotTheWordsOfANegativeNetAreSaid)
{
    OpenLayout();
    boxes.Expect(NothingLeft);
    ClickSave();
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_P(SettlementSave, ANetOfZeroIsRefusedWithTheSameWords)
{
    AddTicket(40, 0, 1000);
    AddAdvance(1000);
    OpenLayout();
    FillForSaving();
    TakeStatements();
    boxes.Expect(NothingLeft);
    Save();
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"¥1,000.0"_s);
    EXPECT_EQ(FocusName(), u"txtCheckUser"_s);
}

TEST_P(SettlementSave, ANegativeNetIsRefused)
{
    AddTicket(40, 0, 1000);
    AddAdvance(1000.1);
    OpenLayout();
    FillForSaving();
    TakeStatements();
    boxes.Expect(NothingLeft);
    Save();
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_P(SettlementSave, AnyFeeStillBlankIsAnErrorWithNothingWritten)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    int errors = 0;
    for (const QString& fee : FeeFields) {
        if (fee == u"txtLExpendPrice")
            continue;
        GoTo(fee);
        Press(Qt::Key_Delete);
        TakeStatements();
        boxes.Expect(u"类型不匹配"_s);
        ClickSave(); // the field with the cursor is not completed by it
        EXPECT_EQ(Text(fee), QString()) << fee.toStdString();
        EXPECT_EQ(FocusName(), fee);
        const QStringList sent = TakeStatements();
        EXPECT_EQ(sent.size(), 1);
        EXPECT_TRUE(sent[0].startsWith(u"INSERT INTO ErrInfo")) << sent[0].toStdString();
        EXPECT_EQ(
            Count(
                u"ErrInfo"_s,
                u"ErrDescription='类型不匹配' AND ErrSource='保存或修改结算信息' AND ErrUserName='管理员'"_s),
            ++errors);
        Press(Qt::Key_Return); // and now it is
        EXPECT_EQ(Text(fee), u"0.0"_s);
    }
    EXPECT_EQ(Count(u"CheckOut"_s), 0);
    EXPECT_EQ(Count(u"PRD_List"_s, u"bolCheckOut='1'"_s), 0);
}

TEST_P(SettlementSave, AFeeThatNoColumnHoldsIsAnErrorWithNothingWritten)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    PasteInto(u"txtLOtherPrice"_s, u"-1e14"_s);
    boxes.Expect(u"溢出"_s);
    Save();
    EXPECT_EQ(Count(u"CheckOut"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s, u"ErrDescription='溢出'"_s), 1);
}

TEST_P(SettlementSave, AQuoteOrALastBackslashInANameBreaksTheStatementAndKeepsTheScreen)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    for (const QString& name : {u"O'Neil"_s, u"李\\"_s}) {
        TypeInto(u"txtCheckUser"_s, name);
        boxes.ExpectContaining(u"SQL syntax"_s);
        Save();
        EXPECT_EQ(Text(u"txtCheckUser"_s), name);
        EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥1,000.0"_s);
    }
    EXPECT_EQ(Count(u"CheckOut"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0); // the server's words carry quotes themselves
    TypeInto(u"txtCheckUser"_s, QString(60, u'李'));
    Save();
    EXPECT_EQ(Value(u"SELECT CheckUser FROM CheckOut"_s), QString(60, u'李'));
}

TEST_P(SettlementSave, ANameLongerThanItsColumnCannotBeTyped)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    Enter(u"txtCheckUser"_s, QString(70, u'a'));
    Type(QString(70, u'b'));
    Save();
    EXPECT_EQ(Db().Rows(u"SELECT CheckUser,PayUser FROM CheckOut"_s),
              (std::vector<QStringList>{{QString(60, u'a'), QString(60, u'b')}}));
}

TEST_P(SettlementSave, ARateIsStoredAsTypedAndNeverCut)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot();
    Enter(u"txtPer_LManage"_s, u"0.0"_s + QString(40, u'5'));
    GoTo(u"txtPer_LManage"_s);
    WalkToNames();
    const QString shown = Text(u"txtPer_LManage"_s);
    EXPECT_EQ(shown.size(), 30);
    Save();
    EXPECT_EQ(Value(u"SELECT Per_LManage FROM CheckOut"_s), shown);
}

TEST_P(SettlementSave, ARowThatDoesNotArriveStopsTheSaveWithTheScreenFilled)
{
    Db().Run(
        u"CREATE TRIGGER elsewhere BEFORE INSERT ON CheckOut FOR EACH ROW SET NEW.CheckNo='elsewhere'"_s);
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    TakeStatements();
    boxes.Expect(u"数据无法提交，请检查数据！"_s);
    Save();
    EXPECT_EQ(TakeStatements().size(), 2);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥1,000.0"_s);
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309001"_s);
    EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List"_s), u"0"_s);
    EXPECT_EQ(Count(u"Count_Bill"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

// Printing

TEST_P(SettlementSave, PrintsByTheStyleBetweenTheRowAndTheClosing)
{
    const QString document = IsLayoutA() ? u"CheckOutA"_s : u"CheckOut"_s;
    NotingPrinter printer([this] {
        return u"%1 settled, lot %2, %3 %4"_s.arg(QString::number(Count(u"CheckOut"_s)),
                                                  Value(u"SELECT bolCheckOut FROM PRD_List"_s),
                                                  Text(u"txtCheckNo"_s), Text(u"txtGTotalPrice"_s));
    });
    const QString standing = u"1 settled, lot 0, NO.01260309001 ¥1,000.0"_s;
    AddTicket(40, 0, 1000);
    const std::map<QString, QStringList> expected{{u"0"_s, {}},
                                                  {u"1"_s, {document + u" preprinted"_s, standing}},
                                                  {u"2"_s, {document + u" framed"_s, standing}},
                                                  {u"3"_s, {}}};
    for (const auto& [style, notes] : expected) {
        Db().Run(u"UPDATE DFN_Paper SET PrintStyle='%1' WHERE PaperID='P05'; DELETE FROM CheckOut; "
                 "DELETE FROM Count_Bill; UPDATE PRD_List SET bolCheckOut='0'"_s.arg(style));
        OpenLayout();
        FillForSaving();
        Save();
        EXPECT_EQ(printer.notes, notes) << style.toStdString();
        EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List"_s), u"1"_s);
        printer.notes.clear();
        Press(Qt::Key_C, Qt::AltModifier);
    }
}

TEST_P(SettlementSave, TheStyleCountsFromTheLoadOnOneLayoutAndFromTheSaveOnTheOther)
{
    NotingPrinter printer([] { return QString(); });
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    Db().Run(u"UPDATE DFN_Paper SET PrintStyle='2' WHERE PaperID='P05'"_s);
    Save();
    EXPECT_EQ(printer.notes, IsLayoutA() ? (QStringList{u"CheckOutA framed"_s, QString()}) : QStringList());
}

// The counter of a locked lot

TEST_P(SettlementSave, ALockedLotGoesOnUnderItsNumberWithWhatIsUnsold)
{
    Db().Run(u"UPDATE PRD_List SET bolFixed='1',Num_Sal=30"_s);
    AddTicket(70, 0, 1000);
    AddAdvance(100);
    OpenLayout();
    FillForSaving();
    Save();
    EXPECT_EQ(
        Db().Rows(u"SELECT ID,PRDNo,Num,Num_Sal,CustInDate,bolCheckOut,CheckNo FROM PRD_List ORDER BY ID"_s),
        (std::vector<QStringList>{
            {Lot, u"A-001"_s, u"100.000000"_s, u"30.000000"_s, u"2026-03-01"_s, u"1"_s, u"01260309001"_s},
            {u"20260309001"_s, u"A-001"_s, u"30.000000"_s, u"30.000000"_s, u"2026-03-09"_s, u"0"_s,
             QString()}}));
    EXPECT_EQ(
        Value(u"SELECT CurrNumber FROM Count_Bill WHERE TID='C01' AND CurrDate='2026-03-09' AND UID=''"_s),
        u"2"_s);
    EXPECT_EQ(Count(u"Sal_List"_s, u"ID='20260309001'"_s) + Count(u"CustDebit"_s, u"ID='20260309001'"_s), 0);

    EnterLot(); // finds the new one
    EXPECT_EQ(Text(u"txtNum"_s), u"0"_s);
    EXPECT_EQ(Text(u"txtLExpendPrice"_s), u"0"_s);
}

TEST_P(SettlementSave, TheSecondCarriedLotOfTheDayTakesTheThirdNumber)
{
    Db().Run(u"UPDATE PRD_List SET bolFixed='1',Num_Sal=30"_s);
    AddTicket(70, 0, 1000);
    OpenLayout();
    FillForSaving();
    Save();
    Db().Run(u"INSERT INTO Sal_List (SalNo,ID,Num,Amount) VALUES ('b','20260309001',30,300)"_s);
    Db().Run(u"UPDATE PRD_List SET Num_Sal=0 WHERE ID='20260309001'"_s);
    FillForSaving();
    Save();
    // Sold out, and carried forward all the same.
    EXPECT_EQ(Db().Rows(u"SELECT ID,Num,Num_Sal,bolCheckOut FROM PRD_List ORDER BY ID"_s),
              (std::vector<QStringList>{{Lot, u"100.000000"_s, u"30.000000"_s, u"1"_s},
                                        {u"20260309001"_s, u"30.000000"_s, u"0.000000"_s, u"1"_s},
                                        {u"20260309003"_s, u"0.000000"_s, u"0.000000"_s, u"0"_s}}));
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill WHERE TID='C01'"_s), u"3"_s);
}

TEST_P(SettlementSave, BeyondTheDays999thLotTheKeyIsTheBareDate)
{
    Db().Run(u"UPDATE PRD_List SET bolFixed='1'"_s);
    Db().Run(u"INSERT INTO Count_Bill (TID,CurrDate,CurrNumber) VALUES ('C01','2026-03-09',999)"_s);
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    Save();
    EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List WHERE ID='20260309'"_s), u"0"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill WHERE TID='C01'"_s), u"1000"_s);
}

TEST_P(SettlementSave, ALotCounterBeyondSixteenBitsEndsTheSaveAfterItsFirstRow)
{
    Db().Run(u"UPDATE PRD_List SET bolFixed='1'"_s);
    Db().Run(u"INSERT INTO Count_Bill (TID,CurrDate,CurrNumber) VALUES ('C01','2026-03-09',32767)"_s);
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    boxes.Expect(u"溢出"_s);
    Save();
    EXPECT_EQ(Count(u"CheckOut"_s), 1);
    EXPECT_EQ(Count(u"PRD_List"_s, u"bolCheckOut='0'"_s), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s, u"ErrDescription='溢出' AND ErrSource='保存或修改结算信息'"_s), 1);
}
