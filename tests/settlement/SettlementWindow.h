#pragma once

#include "tests/support/WindowTest.h"

#include <QList>

/// A settlement window over one open lot: ID 20260301001, number A-001, shortcut 8, owner 王建国, product
/// 红富士, store 一号库, 100 pieces delivered of which 60 are unsold.
class SettlementWindow : public WindowTest {
protected:
    static const QString Lot;

    void SetUp() override;

    /// Opens a layout and makes it the one that the calls below speak of. Drops the statements of its
    /// load.
    void OpenLayout(const QString& name);
    const QString& Layout() const { return m_layout; }
    QLineEdit* Box(const QString& name) { return Find(m_layout, name); }
    QString Text(const QString& name) { return TextOf(m_layout, name); }
    QString LabelText(const QString& name);

    /// A ticket of the lot: pieces, kilograms (0 sold by the piece), yuan.
    void AddTicket(double pieces, double kilograms, double amount);
    /// An advance to the lot's owner, yuan.
    void AddAdvance(double amount);

    /// Types the lot's number and Enter; the focus is then on the first rate.
    void EnterLot(const QString& number = QStringLiteral("A-001"));
    /// Saves with the mouse, which leaves no field.
    void ClickSave();
    /// Sets the focus on a control, as a click would, with its text selected.
    void GoTo(const QString& control);
    /// Goes to a control and types over its text.
    void TypeInto(const QString& control, const QString& text);
    /// The same from the clipboard: the whole text is one change.
    void PasteInto(const QString& control, const QString& text);
    /// From the first rate by Enter to the first name: each fee left blank becomes 0.0.
    void WalkToNames();
    /// EnterLot, WalkToNames.
    void FillForSaving();

private:
    QString m_layout;
    int m_tickets = 0;
};

/// The same behaviour on both layouts; the parameter is the window's name.
class EitherLayout : public SettlementWindow, public ::testing::WithParamInterface<const char*> {
protected:
    void OpenLayout() { SettlementWindow::OpenLayout(QString::fromLatin1(GetParam())); }
    bool IsLayoutA() const { return std::string(GetParam()) == "frmCheckOutA"; }
};

inline const auto BothLayouts = ::testing::Values("frmCheckOut", "frmCheckOutA");
inline const auto LayoutName = [](const auto& info) { return std::string(info.param); };

/// The fields in the order of the keys.
extern const QList<QString> KeyOrder;
/// The ten amount fields in the order in which they are stored.
extern const QList<QString> FeeFields;
extern const QList<QString> RateFields;
