#pragma once

#include "printing/Documents.h"
#include "tests/support/WindowTest.h"

#include <QMap>

class ListGrid;

/// Takes the place of the printer: notes each call, and the lot slip as it stood at the call.
class PrintRecorder : public DocumentPrinter {
public:
    void Print(Document document, PrintMode mode, const QWidget& form) override;

    QStringList calls;
    QMap<QString, QString> slip; ///< texts of the slip's text boxes and headings, by control
};

/// A stall with two storage places and three sorts, the goods windows registered, the goods menu chosen.
class GoodsTest : public WindowTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Puts a lot into the tables. `more` are further columns: "Num=100,Num_Sal=70".
    void AddLot(const QString& id, const QString& prdNo, const QString& more = QString());
    /// A ticket of a lot.
    void AddTicket(const QString& salNo, const QString& lotId, const QString& num);

    /// Opens frmPRDList and forgets the statements of its opening.
    void OpenRegistration();
    /// The same with a lot number set, as the list does it.
    void OpenForCorrection(const QString& prdNo);
    /// Types a new lot of sort A from txtPID on, the focus left in txtPackNo; the save is one Enter away.
    void TypeNewLot();
    /// Sends a statement, before which the harness puts back what FailStatement took away.
    void Mend();
    /// Enter on each of the controls in turn.
    void Pass(const QStringList& controls);
    /// Puts a text into a field of frmPRDList as if pasted.
    void Put(const QString& control, const QString& text);

    QString Field(const QString& control) { return TextOf(QStringLiteral("frmPRDList"), control); }
    ListGrid* List();
    /// Rows of the list as the screen shows them.
    std::vector<QStringList> ListRows();

    PrintRecorder printer;
};
