#include "tests/settlement/SettlementWindow.h"

#include "core/forms/LabelButton.h"

#include "core/forms/Fields.h"
#include "settlement/frmCheckOut.h"
#include "settlement/frmCheckOutA.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>

using namespace Qt::StringLiterals;

const QString SettlementWindow::Lot = u"20260301001"_s;

const QList<QString> FeeFields{u"txtLManagePrice"_s, u"txtLPackPrice"_s,       u"txtLUnloadPrice"_s,
                               u"txtLExpendPrice"_s, u"txtLSanitationPrice"_s, u"txtLElectPrice"_s,
                               u"txtLRecoupPrice"_s, u"txtLChillPrice"_s,      u"txtLFieldPrice"_s,
                               u"txtLOtherPrice"_s};
const QList<QString> RateFields{u"txtPer_LManage"_s, u"txtPer_LElect"_s, u"txtPer_LUnload"_s,
                                u"txtPer_LSani"_s};
const QList<QString> KeyOrder{u"txtPRDNo"_s,       u"txtPer_LManage"_s,      u"txtLManagePrice"_s,
                              u"txtPer_LElect"_s,  u"txtLElectPrice"_s,      u"txtLPackPrice"_s,
                              u"txtPer_LUnload"_s, u"txtLUnloadPrice"_s,     u"txtLExpendPrice"_s,
                              u"txtPer_LSani"_s,   u"txtLSanitationPrice"_s, u"txtLRecoupPrice"_s,
                              u"txtLChillPrice"_s, u"txtLFieldPrice"_s,      u"txtLOtherPrice"_s,
                              u"txtCheckUser"_s,   u"txtPayUser"_s};

void SettlementWindow::SetUp()
{
    WindowTest::SetUp();
    Windows().Register(u"frmCheckOut"_s, [](QWidget* owner) { return new frmCheckOut(owner); });
    Windows().Register(u"frmCheckOutA"_s, [](QWidget* owner) { return new frmCheckOutA(owner); });
    Db().Run(
        u"INSERT INTO PRD_List (ID,PID,CustID,PRDNo,PRDNo_S,PRDName,Num,Num_Sal,PType,Store,CustName,"
        "CustInDate) VALUES ('%1','A','001','A-001','8','红富士',100,60,'件','一号库','王建国','2026-03-01')"_s
            .arg(Lot));
}

void SettlementWindow::OpenLayout(const QString& name)
{
    m_layout = name;
    Open(name);
    TakeStatements();
}

QString SettlementWindow::LabelText(const QString& name)
{
    return Find<QLabel>(m_layout, name)->text();
}

void SettlementWindow::AddTicket(double pieces, double kilograms, double amount)
{
    Db().Run(
        u"INSERT INTO Sal_List (SalNo,ID,PRDNo,Num,Suttle,Amount) VALUES ('01260302%1','%2','A-001',%3,%4,%5)"_s
            .arg(++m_tickets, 3, 10, QChar(u'0'))
            .arg(Lot)
            .arg(pieces)
            .arg(kilograms)
            .arg(amount));
}

void SettlementWindow::AddAdvance(double amount)
{
    Db().Run(u"INSERT INTO CustDebit (ID,PRDNo,DebitAmount) VALUES ('%1','A-001',%2)"_s.arg(Lot).arg(amount));
}

void SettlementWindow::EnterLot(const QString& number)
{
    GoTo(u"txtPRDNo"_s);
    Enter(u"txtPRDNo"_s, number);
}

void SettlementWindow::ClickSave()
{
    Click(Find<LabelButton>(m_layout, u"cmdSubmit"_s));
}

void SettlementWindow::GoTo(const QString& control)
{
    FocusAndSelect(Box(control));
    Settle();
}

void SettlementWindow::TypeInto(const QString& control, const QString& text)
{
    GoTo(control);
    Type(text);
}

void SettlementWindow::PasteInto(const QString& control, const QString& text)
{
    GoTo(control);
    QApplication::clipboard()->setText(text);
    Press(Qt::Key_V, Qt::ControlModifier);
}

void SettlementWindow::WalkToNames()
{
    EXPECT_EQ(FocusName(), u"txtPer_LManage"_s);
    while (FocusName() != u"txtCheckUser" && !HasFailure())
        Press(Qt::Key_Return);
}

void SettlementWindow::FillForSaving()
{
    EnterLot();
    WalkToNames();
}
