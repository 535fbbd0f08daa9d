#pragma once

#include "tests/support/WindowTest.h"

#include <QComboBox>
#include <QLabel>

/// What is typed into one ticket. An empty text leaves the field as it is found.
struct Sale {
    QString vendee = {}; ///< picked, not typed
    QString prdNo = QStringLiteral("A-001");
    QString num = QStringLiteral("10");
    QString suttle = {};
    QString upr = QStringLiteral("3.25");
    QString perPack = {};
    QString perForegift = {};
    QString listNo = {};
    QString salesId = QStringLiteral("11");
    bool onCredit = false;
    bool closesBatch = false;
};

/// The till in front of a small stall: lot A-001 (shortcut 1, no deposit, 100 pieces), lot B-001 (deposit
/// 5, crate type K1, 200 pieces), C-001 settled; salesman 11; buyer 鲜多多 with a limit of 1000, 阿芳
/// without.
class TillTest : public WindowTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Opens the till; what that sends is not in the next TakeStatements.
    void OpenTill();
    /// Walks a ticket with Enter as far as cmbCheckStatus, from txtVendee on.
    void TypeTicket(const Sale& sale = {});
    /// Walks a ticket and saves it with Enter.
    void Sell(const Sale& sale = {});

    QString Text(const QString& box) { return TextOf(QStringLiteral("frmSale"), box); }
    QString Caption(const QString& label) { return Find<QLabel>(QStringLiteral("frmSale"), label)->text(); }
    QLineEdit* Box(const QString& box) { return Find<QLineEdit>(QStringLiteral("frmSale"), box); }
    QComboBox* List(const QString& combo) { return Find<QComboBox>(QStringLiteral("frmSale"), combo); }
    /// Saves with the mouse, which leaves no field.
    void ClickSave();

    /// Puts the cursor into a control as a click does.
    void GoTo(const QString& control);
    /// Pastes a text over what the field with the cursor holds.
    void Paste(const QString& text);
    /// The open till. @throws std::logic_error when it is not
    Form& Till();
    bool TillIsOpen() { return Windows().Find(QStringLiteral("frmSale")) != nullptr; }

    /// The columns of a ticket.
    QStringList TicketRow(const QString& salNo, const QString& columns);
    QString NumSal(const QString& prdNo);
    QString CratesOut();
    /// Count_Bill.CurrNumber of user 01's tickets today, "" without a row.
    QString TicketCounter();
};

/// The same with the till open.
class OpenTillTest : public TillTest {
protected:
    void SetUp() override;

    /// Everything a refused ticket must leave alone.
    void ExpectNothingWritten();
};
