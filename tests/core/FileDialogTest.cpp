#include "core/common/Messages.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace {

class FileDialog : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        SetMessagePresenter(nullptr);
        WriteProgramFile(u"a.bmp"_s, u"x"_s);
        WriteProgramFile(u"b.jpg"_s, u"x"_s);
        WriteProgramFile(u"c.txt"_s, u"x"_s);
    }

    /// What AskFile gives when `work` is done in the dialog.
    QString Answer(const FileQuestion& question, const std::function<void(QFileDialog&)>& work)
    {
        QMetaObject::invokeMethod(
            qApp,
            [&work] {
                auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                if (!dialog) {
                    ADD_FAILURE() << "no file dialog";
                    return;
                }
                WaitFor([dialog] { return dialog->isActiveWindow(); });
                work(*dialog);
                if (dialog->isVisible()) {
                    ADD_FAILURE() << "the dialog is still open";
                    dialog->reject();
                }
            },
            Qt::QueuedConnection);
        const QString chosen = AskFile(question);
        Settle();
        return chosen;
    }

    QString Path(const QString& name) const { return ProgramFolder() + u'/' + name; }
};

const QString Pictures = u"Bitmaps （*.bmp）|*.bmp|JPEG Images （*.jpg）|*.jpg"_s;

} // namespace

TEST_F(FileDialog, OpeningGivesThePathOfAFileThatExists)
{
    const QString chosen = Answer(
        {.title = u"选图"_s, .filter = Pictures, .start = ProgramFolder()}, [this](QFileDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), u"选图"_s);
            EXPECT_EQ(dialog.nameFilters(),
                      (QStringList{u"Bitmaps （*.bmp） (*.bmp)"_s, u"JPEG Images （*.jpg） (*.jpg)"_s}));
            EXPECT_EQ(dialog.directory().path(), ProgramFolder());
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
            Type(u"a.bmp"_s);
            Press(Qt::Key_Return);
        });
    EXPECT_EQ(chosen, Path(u"a.bmp"_s));
}

TEST_F(FileDialog, EscapeChoosesNothing)
{
    EXPECT_EQ(Answer({.title = u"选图"_s, .filter = Pictures, .start = Path(u"a.bmp"_s)},
                     [](QFileDialog& dialog) {
                         EXPECT_TRUE(dialog.selectedFiles().value(0).endsWith(u"a.bmp"));
                         Press(Qt::Key_Escape);
                     }),
              QString());
}

TEST_F(FileDialog, AStartThatIsNowhereIsTheUsersOwnFolder)
{
    Answer({.title = u"选图"_s, .filter = Pictures, .start = u"/nowhere/x.bmp"_s}, [](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().path(), QDir::homePath());
        dialog.reject();
    });
}

TEST_F(FileDialog, SavingTakesANewNameAndGivesItTheEndingOfTheFilter)
{
    const QString chosen = Answer({.title = u"导出"_s,
                                   .filter = u"Excel文件 （*.xls）|*.xls"_s,
                                   .start = ProgramFolder(),
                                   .isSave = true},
                                  [](QFileDialog& dialog) {
                                      EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
                                      Type(u"销售表"_s);
                                      Press(Qt::Key_Return);
                                  });
    EXPECT_EQ(chosen, Path(u"销售表.xls"_s));
}

TEST_F(FileDialog, SavingGivesTheEndingOfTheFilterThatWasChosen)
{
    const QString chosen = Answer({.title = u"导出"_s,
                                   .filter = u"Excel文件 （*.xls）|*.xls|Excel 2007文件 （*.xlsx）|*.xlsx"_s,
                                   .start = ProgramFolder(),
                                   .isSave = true},
                                  [](QFileDialog& dialog) {
                                      Type(u"销售表"_s);
                                      auto* types = dialog.findChild<QComboBox*>(u"fileTypeCombo"_s);
                                      ASSERT_NE(types, nullptr);
                                      while (QApplication::focusWidget() != types)
                                          Press(Qt::Key_Tab);
                                      Press(Qt::Key_Down);
                                      EXPECT_EQ(types->currentIndex(), 1);
                                      while (FocusName() != u"fileNameEdit")
                                          Press(Qt::Key_Tab);
                                      Press(Qt::Key_Return);
                                  });
    EXPECT_EQ(chosen, Path(u"销售表.xlsx"_s));
}

TEST_F(FileDialog, SavingOverAFileIsLeftToWhoWritesIt)
{
    const QString chosen =
        Answer({.title = u"导出"_s, .filter = u"文字|*.txt"_s, .start = ProgramFolder(), .isSave = true},
               [](QFileDialog&) {
                   Type(u"c.txt"_s);
                   Press(Qt::Key_Return);
               });
    EXPECT_EQ(chosen, Path(u"c.txt"_s));
}
