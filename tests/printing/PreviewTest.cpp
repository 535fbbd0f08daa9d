#include "printing/ctlPreview.h"
#include "tests/support/WindowTest.h"

#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A preview of a known size on the screen, its parts by their names. Pixels; 15 twips each.
class Preview : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        preview.resize(500, 400);
        preview.show();
        preview.activateWindow();
        preview.setFocus();
        Settle();
    }
    template <typename Part = QWidget>
    Part* Named(const QString& name)
    {
        return preview.findChild<Part*>(name);
    }
    QScrollBar* Down() { return Named<QScrollBar>(u"VSPageDoc"_s); }
    QScrollBar* Across() { return Named<QScrollBar>(u"HSPageDoc"_s); }
    QWidget* Cover() { return Named(u"picPageCover"_s); }
    QWidget* Canvas() { return Named(u"picPageDoc"_s); }

    ctlPreview preview;
};

TEST_F(Preview, StartsWithItsStoredProperties)
{
    const ctlPreview fresh;
    const QColor face = fresh.palette().color(QPalette::Button);
    EXPECT_EQ(fresh.BackColor(), face.red() | face.green() << 8 | face.blue() << 16);
    EXPECT_EQ(fresh.Font().family(), fresh.font().family());
    EXPECT_EQ(fresh.BackStyle(), 1);
    EXPECT_EQ(fresh.BorderStyle(), 1);
    EXPECT_EQ(fresh.DrawStyle(), 0);
    EXPECT_EQ(fresh.DrawMode(), 13);
    EXPECT_FALSE(fresh.FontStrikethru());
    EXPECT_FALSE(fresh.FontUnderline());
}

TEST_F(Preview, ItsPartsStandInOrder)
{
    QStringList names;
    for (const QObject* part : preview.children())
        names << part->objectName();
    EXPECT_EQ(names, (QStringList{u"VSPageDoc"_s, u"HSPageDoc"_s, u"picPageCover"_s}));
    EXPECT_EQ(Canvas()->parentWidget(), Cover());
}

TEST_F(Preview, TheBarsStandAtTheCoversEdges)
{
    preview.StartDoc(1, 11907, 16832);
    EXPECT_EQ(Cover()->pos(), QPoint(0, 0));
    EXPECT_EQ(Cover()->width(), 500 - Down()->width());
    EXPECT_EQ(Cover()->height(), 400 - Across()->height());
    EXPECT_EQ(Down()->geometry().topLeft(), QPoint(Cover()->width(), 0));
    EXPECT_EQ(Down()->height(), Cover()->height());
    EXPECT_EQ(Across()->geometry().topLeft(), QPoint(0, Cover()->height()));
    EXPECT_EQ(Across()->width(), Cover()->width());
    EXPECT_EQ(Canvas()->pos(), QPoint(20, 20)); // three margins of 100 twips
}

TEST_F(Preview, TheBarsReachAsFarAsThePageAndSixMargins)
{
    preview.StartDoc(1, 11907, 16832);
    EXPECT_EQ(Across()->maximum(), 11907 - Cover()->width() * 15 + 600);
    EXPECT_EQ(Down()->maximum(), 16832 - Cover()->height() * 15 + 600);
    EXPECT_EQ(Down()->minimum(), 0);
    EXPECT_TRUE(Down()->isEnabled());

    Down()->setValue(3000);
    Across()->setValue(1500);
    EXPECT_EQ(Canvas()->pos(), QPoint((300 - 1500) / 15, (300 - 3000) / 15));
    preview.StartDoc(1, 11907, 16832);
    EXPECT_EQ(Down()->value(), 0);
    EXPECT_EQ(Across()->value(), 0);
    EXPECT_EQ(Canvas()->pos(), QPoint(20, 20));
}

TEST_F(Preview, APageThatFitsNeedsNoBars)
{
    preview.StartDoc(1, 3000, 3000);
    EXPECT_EQ(Across()->maximum(), 0);
    EXPECT_EQ(Down()->maximum(), 0);
    EXPECT_FALSE(Across()->isEnabled());
    EXPECT_FALSE(Down()->isEnabled());
}

TEST_F(Preview, ABarIsOffOnlyWithRoomForSixMargins)
{
    const int across = Cover()->width() * 15;
    const int down = Cover()->height() * 15;
    preview.StartDoc(1, across - 600, down - 601);
    EXPECT_TRUE(Across()->isEnabled());
    EXPECT_FALSE(Down()->isEnabled());
    EXPECT_EQ(Across()->maximum(), 0);
}

TEST_F(Preview, AHugePageKeepsTheBarsWithinSixteenBits)
{
    preview.StartDoc(4, 11907, 16832);
    const double range = 4 * 16832 - Cover()->height() * 15 + 600;
    ASSERT_GT(range, 32767);
    EXPECT_EQ(Down()->maximum(), 32767);
    Down()->setValue(32767);
    EXPECT_EQ(Canvas()->y(), qRound((300 - range) / 15)); // its end is reached all the same
    Down()->setValue(16000);
    EXPECT_EQ(Canvas()->y(), qRound((300 - 16000 * range / 32767) / 15));
}

TEST_F(Preview, ASmallControlKeepsItsCover)
{
    preview.StartDoc(1, 11907, 16832);
    const QSize before = Cover()->size();
    preview.resize(10, 20);
    Settle();
    EXPECT_EQ(Cover()->size(), before);
}

TEST_F(Preview, TheCoverShrinksToAHundredTwipsAcrossAndFourHundredDown)
{
    const int bar = Down()->width();
    preview.resize(bar + 7, bar + 27); // 105 and 405 twips
    EXPECT_EQ(Cover()->size(), QSize(7, 27));
    preview.resize(bar + 6, bar + 26); // 90 and 390
    EXPECT_EQ(Cover()->size(), QSize(7, 27));
}

TEST_F(Preview, TheKeysScrollIt)
{
    preview.StartDoc(1, 11907, 16832);
    Press(Qt::Key_Down);
    EXPECT_EQ(Down()->value(), 300);
    Press(Qt::Key_Up);
    EXPECT_EQ(Down()->value(), 0);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Down()->value(), Cover()->height() * 15);
    Press(Qt::Key_PageUp);
    EXPECT_EQ(Down()->value(), 0);
    Press(Qt::Key_End);
    EXPECT_EQ(Down()->value(), Down()->maximum());
    Press(Qt::Key_Home);
    Press(Qt::Key_Right);
    EXPECT_EQ(Across()->value(), 300);
    Press(Qt::Key_Left);
    EXPECT_EQ(Across()->value(), 0);
}

TEST_F(Preview, AClickOnThePageIsItsOwnEvent)
{
    const QSignalSpy clicks(&preview, &ctlPreview::Click);
    preview.StartDoc(1, 11907, 16832);
    Click(Cover()); // the page covers its middle
    Click(Canvas());
    EXPECT_GE(clicks.size(), 1);
}

TEST_F(Preview, TheOuterSizeCanBeSetByItself)
{
    preview.StartDoc(1, 3000, 4500);
    preview.SetPaperWidth(6000);
    EXPECT_EQ(preview.PaperWidth(), 6000);
    EXPECT_EQ(preview.ScaleWidth(), 3000);
    EXPECT_EQ(preview.Picture().size(), QSize(400, 300));
    preview.SetPaperHeight(9000);
    EXPECT_EQ(preview.Picture().size(), QSize(400, 600));
}

} // namespace
