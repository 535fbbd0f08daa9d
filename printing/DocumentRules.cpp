#include "printing/DocumentRules.h"

#include "core/base/Twips.h"
#include "printing/clsPrint.h"

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double TextDrop = 120;              // from the top of a text box to its text
constexpr double TicketStretch = 1.33;        // the till is laid out tighter than the ticket
constexpr double UserIdOnStationery = 1247.4; // 2.2 cm: that field stands lower there than on the form

bool All(const QString& /*name*/)
{
    return true;
}

bool None(const QString& /*name*/)
{
    return false;
}

PageRules::Choice Only(const QStringList& names)
{
    return [names](const QString& name) { return names.contains(name); };
}

PageRules::Choice AllBut(const QStringList& names)
{
    return [names](const QString& name) { return !names.contains(name); };
}

PageRules::Choice AllBeginningOtherThan(const QStringList& beginnings)
{
    return [beginnings](const QString& name) {
        return std::ranges::none_of(beginnings, [&](const QString& start) { return name.startsWith(start); });
    };
}

/// "txtFee" of "txtFee_3".
QString ArrayName(const QString& control)
{
    return control.section(u'_', 0, 0);
}

DocumentRules SlipRules(const QString& paperId, const QString& title)
{
    return {.paperId = paperId,
            .title = title,
            .errorLabel = u"打印客户信息"_s,
            .stationery = {.printsLabel = None,
                           .printsText = All,
                           .text = {.takesTopArea = true},
                           .skipsHidden = false,
                           .userIdDrop = UserIdOnStationery},
            .sheet = {.printsLabel = All,
                      .printsText = All,
                      .ruling = Ruling::All,
                      .hasBlankBehind = true,
                      .skipsHidden = false}};
}

DocumentRules SettlementRules(const QString& lineName)
{
    // The rates stand in the print: these two names are none of the forms' boxes.
    const auto texts = AllBut({u"txtLSaniPer"_s, u"txtLUnloadPer"_s});
    return {.paperId = u"P05"_s,
            .title = u"结算清单"_s,
            .errorLabel = u"打印结算清单"_s,
            .stationery = {.printsLabel = Only({u"lblPriceUCase"_s, u"lblReportName"_s}),
                           .label = {.takesTopArea = true},
                           .printsText = texts,
                           .text = {.takesTopArea = true},
                           .hasBlankBehind = true},
            .sheet = {.printsLabel = AllBeginningOtherThan({u"cmd"_s}),
                      .label = {.takesTopArea = true},
                      .printsText = texts,
                      .text = {.takesTopArea = true},
                      .ruling = Ruling::Named,
                      .lineName = lineName,
                      .line = {.takesTopArea = true},
                      .hasBlankBehind = true,
                      .endsWithNewPage = false}};
}

DocumentRules TicketRules()
{
    const auto texts = AllBut({u"txtRPrice"_s});
    return {.paperId = u"P03"_s,
            .title = u"收款清单"_s,
            .errorLabel = u"打印收银清单"_s,
            .stationery = {.printsLabel =
                               Only({u"lblCustName"_s, u"lblReportName"_s, u"lblPArea"_s, u"lblTotal"_s}),
                           .label = {.factor = TicketStretch, .takesTopArea = true},
                           .printsText = texts,
                           .text = {.factor = TicketStretch, .takesTopArea = true},
                           .comboName = u"cmbSaleType"_s},
            .sheet = {.printsLabel = AllBeginningOtherThan({u"cmd"_s, u"Flbl"_s}),
                      .label = {.factor = TicketStretch},
                      .printsText = texts,
                      .text = {.factor = TicketStretch},
                      .ruling = Ruling::Named,
                      .lineName = u"Tline"_s,
                      .line = {.factor = TicketStretch},
                      .hasBlankBehind = true,
                      .endsWithNewPage = false}};
}

DocumentRules AdvanceRules()
{
    return {.paperId = u"P04"_s,
            .title = u"预支款登记单"_s,
            .errorLabel = u"打印预支款清单"_s,
            .stationery = {.printsLabel = Only({u"lblReportName"_s}),
                           .label = {.factor = TicketStretch, .takesTopArea = true},
                           .printsText = All,
                           .text = {.takesTopArea = true},
                           .hasBlankBehind = true},
            .sheet = {.printsLabel = AllBeginningOtherThan({u"cmd"_s}),
                      .label = {.takesTopArea = true},
                      .printsText = All,
                      .text = {.takesTopArea = true},
                      .ruling = Ruling::Named,
                      .lineName = u"Tline"_s,
                      .line = {.takesTopArea = true},
                      .hasBlankBehind = true,
                      .endsWithNewPage = false}};
}

/// Hidden by the form itself; a form that is not shown has visible controls all the same.
bool IsHidden(const QWidget& control)
{
    return control.testAttribute(Qt::WA_WState_ExplicitShowHide) &&
           control.testAttribute(Qt::WA_WState_Hidden);
}

/// A ruled line: a plain frame of one pixel, not one of the frame's subclasses.
bool IsLine(const QFrame& frame)
{
    return frame.metaObject() == &QFrame::staticMetaObject &&
           (frame.frameShape() == QFrame::HLine || frame.frameShape() == QFrame::VLine);
}

class FormReading {
public:
    FormReading(const PageRules& rules, double left, double top) : m_rules(rules), m_left(left), m_top(top) {}

    void Read(const QWidget& control)
    {
        if (m_rules.skipsHidden && IsHidden(control))
            return;
        const QString name = control.objectName();
        if (const auto* label = qobject_cast<const QLabel*>(&control)) {
            if (m_rules.printsLabel(name))
                TakeText(control, label->text(), Y(control.y(), m_rules.label));
        } else if (const auto* box = qobject_cast<const QLineEdit*>(&control)) {
            if (m_rules.printsText(name))
                TakeText(control, m_rules.hasBlankBehind ? box->text() + u' ' : box->text(), TextY(control));
        } else if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
            if (!m_rules.comboName.isEmpty() && name == m_rules.comboName)
                TakeText(control, combo->currentText(), TextY(control));
        } else if (const auto* frame = qobject_cast<const QFrame*>(&control)) {
            if (IsLine(*frame) && Rules(name))
                TakeLine(*frame);
        }
    }

    std::vector<FormMark> TakeMarks() { return std::move(m_marks); }

private:
    bool Rules(const QString& name) const
    {
        return m_rules.ruling == Ruling::All ||
               (m_rules.ruling == Ruling::Named && ArrayName(name) == m_rules.lineName);
    }

    double X(int pixels) const { return pixels * TwipsPerPixel + m_left; }
    double Y(int pixels, const Drop& drop) const
    {
        return pixels * TwipsPerPixel * drop.factor + (drop.takesTopArea ? m_top : 0);
    }
    double TextY(const QWidget& control) const
    {
        const bool isUser = control.objectName() == u"txtUserID";
        return Y(control.y(), m_rules.text) + TextDrop + (isUser ? m_rules.userIdDrop : 0);
    }

    /// The pixels that a control's text has: a heading is as wide as its text, and may leave the sheet.
    static int RoomFor(const QWidget& control)
    {
        return std::min(control.width(), control.parentWidget()->width() - control.x());
    }

    void TakeText(const QWidget& control, const QString& text, double y)
    {
        control.ensurePolished(); // the font that the style sheet gives it, also on a form never shown
        m_marks.push_back({.x1 = static_cast<float>(X(control.x())),
                           .y1 = static_cast<float>(y),
                           .text = text,
                           .room = RoomFor(control) * TwipsPerPixel,
                           .font = control.font()});
    }

    void TakeLine(const QFrame& line)
    {
        const QRect place = line.geometry(); // one pixel thick: from its first pixel to its last
        m_marks.push_back({.isLine = true,
                           .x1 = static_cast<float>(X(place.left())),
                           .y1 = static_cast<float>(Y(place.top(), m_rules.line)),
                           .x2 = static_cast<float>(X(place.right())),
                           .y2 = static_cast<float>(Y(place.bottom(), m_rules.line))});
    }

    std::vector<FormMark> m_marks;
    const PageRules& m_rules;
    double m_left;
    double m_top;
};

} // namespace

const DocumentRules& RulesOf(Document document)
{
    static const std::map<Document, DocumentRules> rules{
        {Document::PRDList, SlipRules(u"P01"_s, u"商品登记单"_s)},
        {Document::EStore, SlipRules(u"P02"_s, u"库存变更单"_s)},
        {Document::SaleList, TicketRules()},
        {Document::Debit, AdvanceRules()},
        {Document::CheckOut, SettlementRules(u"TLine"_s)},
        {Document::CheckOutA, SettlementRules(u"Tline"_s)},
    };
    return rules.at(document);
}

std::vector<FormMark> ReadForm(const QWidget& form, const PageRules& rules, double left, double top)
{
    FormReading reading(rules, left, top);
    const auto controls = form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* control : controls)
        reading.Read(*control);
    return reading.TakeMarks();
}

void DrawMarks(clsPrint& page, const std::vector<FormMark>& marks)
{
    for (const FormMark& mark : marks) {
        if (mark.isLine) {
            page.PrintLine(mark.x1, mark.y1, mark.x2, mark.y2);
            continue;
        }
        page.SetFontName(mark.font.family());
        page.SetFontSize(PointsOf(mark.font));
        page.SetFontBold(mark.font.bold());
        page.SetCurrentX(mark.x1);
        page.SetCurrentY(mark.y1);
        page.PrintFitted(mark.text, mark.room);
    }
}
