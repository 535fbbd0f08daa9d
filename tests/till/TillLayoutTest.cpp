#include "core/base/Twips.h"
#include "tests/till/TillTest.h"

#include <QFrame>

using namespace Qt::StringLiterals;

namespace {

// Twips of an A5 sheet lying across, and what a printer leaves of it.
constexpr int PaperRight = 11300;
constexpr int PaperBottom = 8000;
constexpr double PaperStretch = 1.33;

class TillLayout : public TillTest {
protected:
    void SetUp() override
    {
        TillTest::SetUp();
        Db().Run(u"UPDATE Sys_Define SET bolVerify='1'"_s);
        OpenTill();
        m_form = Till().Widget();
    }

    QList<QWidget*> Controls() const
    {
        QList<QWidget*> controls = m_form->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        controls.removeIf([](const QWidget* control) { return control->isHidden(); });
        return controls;
    }

    static bool Prints(const QWidget* control)
    {
        const QString name = control->objectName();
        if (qobject_cast<const QLabel*>(control))
            return !name.startsWith(u"cmd") && !name.startsWith(u"Flbl");
        if (qobject_cast<const QLineEdit*>(control))
            return name != u"txtRPrice";
        return name.startsWith(u"Tline") || name == u"cmbSaleType";
    }

    QWidget* m_form = nullptr;
};

} // namespace

TEST_F(TillLayout, WhatPrintsLiesOnTheSheet)
{
    int printed = 0;
    for (const QWidget* control : Controls()) {
        if (!Prints(control))
            continue;
        ++printed;
        const QRect place = control->geometry();
        EXPECT_GE(place.left(), 0) << control->objectName().toStdString();
        EXPECT_LE((place.right() + 1) * TwipsPerPixel, PaperRight + TwipsPerPixel)
            << control->objectName().toStdString();
        EXPECT_LE((place.bottom() + 1) * TwipsPerPixel * PaperStretch, PaperBottom)
            << control->objectName().toStdString();
    }
    EXPECT_GT(printed, 40);
}

TEST_F(TillLayout, OnlyTheTicketsOwnCaptionsPrint)
{
    QStringList captions;
    for (const QWidget* control : Controls()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        if (label && Prints(label) && !label->text().isEmpty())
            captions << label->text();
    }
    EXPECT_EQ(captions, (QStringList{u"青禾果品代销行收款清单"_s,
                                     u"南区十二号档"_s,
                                     u"购买方"_s,
                                     u"日期"_s,
                                     u"编号"_s,
                                     u"品名"_s,
                                     u"货主"_s,
                                     u"产地"_s,
                                     u"件数"_s,
                                     u"净重"_s,
                                     u"单价"_s,
                                     u"金额"_s,
                                     u"包装费"_s,
                                     u"小计"_s,
                                     u"押箱"_s,
                                     u"小计"_s,
                                     u"单号"_s,
                                     u"工号"_s,
                                     u"合计"_s,
                                     u"收银员"_s}));
}

TEST_F(TillLayout, HeadingsStandOverTheMiddleOfTheSheet)
{
    for (const QString& name : {u"lblCompName"_s, u"lblReportName"_s}) {
        const auto* heading = Find<QLabel>(u"frmSale"_s, name);
        EXPECT_NEAR(heading->geometry().center().x(), 397, 1);
        EXPECT_GE(heading->width(), heading->fontMetrics().horizontalAdvance(heading->text()));
    }
}

TEST_F(TillLayout, LinesAreRuledAndNamedByWhereTheyBelong)
{
    int ruled = 0;
    for (const QWidget* control : Controls()) {
        const auto* line = qobject_cast<const QFrame*>(control);
        const bool isLine =
            line && (line->frameShape() == QFrame::HLine || line->frameShape() == QFrame::VLine);
        if (!isLine)
            continue;
        EXPECT_TRUE(line->objectName().startsWith(u"Tline_")) << line->objectName().toStdString();
        EXPECT_EQ(qMin(line->width(), line->height()), 1);
        ++ruled;
    }
    EXPECT_EQ(ruled, 11);
    EXPECT_NE(Find<QFrame>(u"frmSale"_s, u"Sline_0"_s), nullptr);
}

TEST_F(TillLayout, NoTwoControlsOverlap)
{
    QList<QWidget*> controls = Controls();
    controls.removeIf([](const QWidget* control) {
        return control->objectName().startsWith(u"fra") || control->objectName().startsWith(u"Tline") ||
               control->objectName().startsWith(u"linHover");
    });
    for (qsizetype i = 0; i < controls.size(); ++i) {
        EXPECT_TRUE(m_form->rect().contains(controls[i]->geometry()))
            << controls[i]->objectName().toStdString();
        for (qsizetype j = i + 1; j < controls.size(); ++j)
            EXPECT_FALSE(controls[i]->geometry().intersects(controls[j]->geometry()))
                << controls[i]->objectName().toStdString() << " and "
                << controls[j]->objectName().toStdString();
    }
}

TEST_F(TillLayout, TheDisplaysAreLargeEnoughForArmsLengthAndNothingIsClipped)
{
    for (const QString& name : {u"FlblTPrice01"_s, u"FlblTPrice02"_s, u"FlblGPrice"_s}) {
        const auto* display = Find<QLabel>(u"frmSale"_s, name);
        EXPECT_GE(display->font().pointSize(), 24) << name.toStdString();
        EXPECT_TRUE(display->font().bold());
        EXPECT_GE(display->width(), display->fontMetrics().horizontalAdvance(u"-¥999,999.9"_s));
    }
    EXPECT_GE(Box(u"txtRPrice"_s)->font().pointSize(), 24);
    for (const QWidget* control : Controls()) {
        const auto* label = qobject_cast<const QLabel*>(control);
        if (!label)
            continue;
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()))
            << label->objectName().toStdString();
    }
}

TEST_F(TillLayout, TheWindowFitsASmallScreen)
{
    EXPECT_LE(m_form->width(), 980);
    EXPECT_LE(m_form->height(), 620);
}
