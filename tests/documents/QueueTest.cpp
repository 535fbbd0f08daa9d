#include "tests/documents/DocumentTest.h"
#include "tests/support/PrintServer.h"

#include "core/session/Session.h"
#include "printing/PrintQueue.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// The documents through a real print server, to a printer that keeps what it gets.
class RealQueue : public DocumentTest {
protected:
    void PrintAll(PrintMode mode)
    {
        for (const QString& document : DocumentNames()) {
            Fill(document);
            Print(document, mode);
            if (QWidget* form = FormOf(document))
                form->close();
            Settle();
            Db().Run(u"DELETE FROM Sal_List; DELETE FROM CustDebit"_s);
        }
    }

    PrintServer queue;
};

TEST_F(RealQueue, EachDocumentArrivesAsOnePageUnderItsName)
{
    PrintAll(PrintMode::Sheet);
    PrintAll(PrintMode::Stationery);
    const QList<ReceivedDocument> received = queue.Received(12);
    ASSERT_EQ(received.size(), 12);
    const QStringList titles{u"商品登记单"_s,   u"库存变更单"_s, u"收款清单"_s,
                             u"预支款登记单"_s, u"结算清单"_s,   u"结算清单"_s};
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(received[i].title, titles[i % 6]);
        EXPECT_EQ(PdfInfo(received[i].file, u"Pages"_s), u"1"_s) << received[i].title.toStdString();
        EXPECT_TRUE(PdfInfo(received[i].file, u"Page size"_s).contains(u"A4"_s));
    }
    EXPECT_EQ(queue.JobCount(), 12);
    EXPECT_EQ(PdfFiles(), QStringList());
}

TEST_F(RealQueue, OnA5TheDocumentLiesAndIsOnePage)
{
    Session::PaperSizeCode = 11;
    Fill(u"settlement"_s);
    Print(u"settlement"_s, PrintMode::Sheet);
    const QList<ReceivedDocument> received = queue.Received(1);
    ASSERT_EQ(received.size(), 1);
    EXPECT_EQ(PdfInfo(received[0].file, u"Pages"_s), u"1"_s);
    const QString size = PdfInfo(received[0].file, u"Page size"_s);
    EXPECT_GT(size.section(u' ', 0, 0).toDouble(), size.section(u' ', 2, 2).toDouble()) << size.toStdString();
}

TEST_F(RealQueue, AQueueGoneInTheMiddleOfASaveIsARowAndAFileAndTheSaveStands)
{
    Db().Run(u"UPDATE DFN_Paper SET PrintStyle='2' WHERE PaperID='P03'"_s);
    Fill(u"ticket"_s);
    Documents();
    queue.Freeze(); // found, and then silent: the worst that a queue can do to a save
    Press(Qt::Key_S, Qt::AltModifier);
    queue.Thaw();
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill WHERE TID='01'"_s), u"1"_s);
    EXPECT_EQ(Value(u"SELECT Num_Sal+0 FROM PRD_List"_s), u"11610.000000"_s);
    EXPECT_EQ(TextOf(u"frmSale"_s, u"txtNum"_s), QString());
    EXPECT_EQ(Value(u"SELECT ErrSource FROM ErrInfo"_s), u"打印收银清单"_s);
    EXPECT_EQ(PdfFiles().size(), 1);

    Fill(u"ticket"_s); // and the queue is back
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(queue.Received(1).size(), 1);
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
    EXPECT_EQ(Count(u"ErrInfo"_s), 1);
}

TEST_F(RealQueue, ADocumentThatNeitherQueueNorFolderTakesIsToldAfterTheSave)
{
    Db().Run(u"UPDATE DFN_Paper SET PrintStyle='2' WHERE PaperID='P05'"_s);
    Fill(u"settlement"_s);
    queue.Run(u"cupsreject"_s, {u"till"_s});
    ASSERT_TRUE(QDir(PdfFolder()).removeRecursively());
    WriteProgramFile(u"单据PDF"_s, QString());
    const QString reason = u"打印队列暂不接收单据，无法建立文件夹："_s + PdfFolder();
    boxes.Expect(u"结算清单没有打印，也没有存成文件！\n"_s + reason);
    boxes.WhileOpen([this] { EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List"_s), u"1"_s); });
    Press(Qt::Key_S, Qt::AltModifier);
    boxes.Verify();
    EXPECT_EQ(Count(u"CheckOut"_s), 1);
    EXPECT_EQ(Value(u"SELECT ErrDescription FROM ErrInfo"_s), reason);
    EXPECT_EQ(TextOf(u"frmCheckOut"_s, u"txtPRDNo"_s), QString()); // ready for the next lot
}

TEST_F(RealQueue, ASwitchedOffQueueNeitherUndoesNorRepeatsASettlement)
{
    Db().Run(u"UPDATE DFN_Paper SET PrintStyle='1' WHERE PaperID='P05'"_s);
    Fill(u"settlement"_s);
    queue.Run(u"cupsreject"_s, {u"till"_s});
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"CheckOut"_s), 1);
    EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List"_s), u"1"_s);
    EXPECT_EQ(Value(u"SELECT COUNT(*) FROM Sal_List WHERE bolCheckOut='1'"_s), u"2"_s);
    EXPECT_EQ(Value(u"SELECT ErrSource FROM ErrInfo"_s), u"打印结算清单"_s);
    EXPECT_EQ(PdfFiles().size(), 1);
    EXPECT_EQ(queue.JobCount(), 0);
}

} // namespace
