#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/till/TillTest.h"

#include <QColor>
#include <QFontMetricsF>
#include <QPalette>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString Unsaved = u"没有编号，这一单没有保存；\n单号NO.01260309002已用掉。"_s;

/// A picker that takes 鲜多多 as soon as it opens, or nobody.
class Picker : public Form {
public:
    Picker(QWidget* owner, bool takes) : m_window(new QWidget(owner, Qt::Dialog)), m_takes(takes) {}

    QWidget* Widget() override { return m_window; }
    void OnLoad() override
    {
        if (m_takes)
            Windows().Find(u"frmSale"_s)->TakeName(u"鲜多多"_s);
        Windows().Unloaded(this);
        m_window->deleteLater();
    }

private:
    QWidget* m_window;
    bool m_takes;
};

class TillScreen : public OpenTillTest {
protected:
    QLabel* Display(const QString& name) { return Find<QLabel>(u"frmSale"_s, name); }
    QColor ColourOf(const QString& display)
    {
        return Display(display)->palette().color(QPalette::WindowText);
    }
    double PointsOf(const QString& display) { return Display(display)->font().pointSizeF(); }
    double RoomLeft(const QString& display)
    {
        const QLabel* label = Display(display);
        return label->width() - QFontMetricsF(label->font()).horizontalAdvance(label->text());
    }
    void SellAndPay(const QString& paid)
    {
        Sell({.num = u"2"_s, .upr = u"4"_s, .closesBatch = true});
        Enter(u"txtRPrice"_s, paid);
    }
    /// The lot of the last ticket is still in hand, its number is not.
    void SaveWithoutNumber()
    {
        Press(Qt::Key_Return);
        Box(u"txtUPR"_s)->setText(u"3"_s);
        Box(u"txtSalesID"_s)->setText(u"11"_s);
        Press(Qt::Key_S, Qt::AltModifier);
    }
};

} // namespace

// A lookup that fails

TEST_F(TillScreen, AFailedLookupLeavesNoLotInHand)
{
    Sell();
    Press(Qt::Key_Return);
    Type(u"B-001"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtPRDNo"_s), u"B-001"_s);
    Box(u"txtUPR"_s)->setText(u"3"_s);
    Box(u"txtSalesID"_s)->setText(u"11"_s);
    boxes.Expect(u"该编号已被结算，不能进行收银处理，请确认。"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"Sal_List"_s), 1) << "not a ticket of B-001 off the lot before";
    EXPECT_EQ(NumSal(u"A-001"_s), u"90"_s);
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s);
}
