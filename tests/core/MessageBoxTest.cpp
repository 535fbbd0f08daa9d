#include "core/common/Messages.h"
#include "tests/support/Keys.h"
#include "tests/support/TestText.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// Looks at the next box while it stands, then answers it with Enter.
void LookAtNextBox(const std::function<void(QMessageBox&)>& look)
{
    QTimer::singleShot(0, qApp, [look] {
        WaitFor([] { return QApplication::activeModalWidget() != nullptr; });
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        look(*box);
        Press(Qt::Key_Return);
    });
}

} // namespace

TEST(MessageBox, TheWordsAreShownWhole)
{
    for (const QString& words :
         {u"编号不能为空！"_s, u"已超出购买方信用额度，可用信用额度为419元。"_s,
          u"真的要清空这些数据表吗？注意：清空过后数据将不可恢复！"_s,
          u"You have an error in your SQL syntax; check the manual that corresponds to your MariaDB server "
          "version for the right syntax to use near ''' at line 1"_s,
          u"数据库连接失败，错误信息如下：\r\nCan't connect to local server through socket"_s}) {
        LookAtNextBox([&words](QMessageBox& box) {
            const auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
            ASSERT_NE(label, nullptr);
            const int flags = Qt::AlignLeft | (label->wordWrap() ? Qt::TextWordWrap : 0);
            const QRect needed =
                label->fontMetrics().boundingRect(QRect(0, 0, label->width(), 9999), flags, words);
            EXPECT_LE(needed.width(), label->width()) << words.toStdString();
            EXPECT_LE(needed.height(), label->height()) << words.toStdString();
            EXPECT_LE(box.width(), 1000) << words.toStdString();
        });
        ShowInfo(words);
    }
}

TEST(MessageBox, ALongTextHasNoShortRest)
{
    for (const QString& words : {u"真的要清空这些数据表吗？注意：清空过后数据将不可恢复！"_s,
                                 u"单"_s.repeated(31), u"号"_s.repeated(90)}) {
        LookAtNextBox([&words](QMessageBox& box) {
            const auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
            ASSERT_NE(label, nullptr);
            const QFontMetrics metrics = label->fontMetrics();
            const int all = metrics.horizontalAdvance(words);
            const int perLine = label->width() / metrics.horizontalAdvance(words.left(1));
            const auto rest = words.size() % perLine;
            EXPECT_TRUE(all <= label->width() || rest == 0 || rest * 2 > perLine)
                << words.toStdString() << " leaves " << rest << " of " << perLine;
        });
        ShowInfo(words);
    }
}

TEST(MessageBox, YesIsTheDefaultExceptBeforeSomethingIsDestroyed)
{
    LookAtNextBox([](QMessageBox& box) {
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Yes));
        EXPECT_FALSE(box.iconPixmap().isNull());
    });
    EXPECT_TRUE(AskYesNo(u"真的要退出系统吗？"_s));
    LookAtNextBox([](QMessageBox& box) { EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No)); });
    EXPECT_FALSE(AskBeforeDestroying(u"真的要清空这些数据表吗？"_s)) << "by Enter";
    QTimer::singleShot(0, qApp, [] {
        WaitFor([] { return QApplication::activeModalWidget() != nullptr; });
        Press(Qt::Key_Y);
    });
    EXPECT_TRUE(AskBeforeDestroying(u"真的要清空这些数据表吗？"_s)) << "by its own key";
}
