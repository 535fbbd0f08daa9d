#include "core/common/Messages.h"

#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

using namespace Qt::StringLiterals;

const QString SystemTitle = u"系统提示"_s;

namespace {

/// Message boxes on the active window, which gets the keyboard back afterwards.
class BoxPresenter : public MessagePresenter {
public:
    void Inform(const QString& title, const QString& text) override
    {
        Run(QMessageBox::Information, title, text, QMessageBox::Ok);
    }

    bool Ask(const QString& title, const QString& text) override
    {
        return Run(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No) ==
               QMessageBox::Yes;
    }

    QString ChooseFile(const FileQuestion& question) override
    {
        const NestedLoop loop;
        const QPointer<QWidget> below = QApplication::activeWindow();
        QFileDialog dialog(below, question.title);
        Word(dialog, question);
        const bool isChosen = dialog.exec() == QDialog::Accepted;
        if (below)
            below->activateWindow();
        return isChosen ? dialog.selectedFiles().value(0) : QString();
    }

private:
    /// The same words, keys and filters on every desktop, so not the desktop's own dialog.
    static void Word(QFileDialog& dialog, const FileQuestion& question)
    {
        dialog.setObjectName(u"dlgFile"_s);
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setOption(QFileDialog::HideNameFilterDetails);
        dialog.setAcceptMode(question.isSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        dialog.setFileMode(question.isSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        dialog.setLabelText(QFileDialog::LookIn, u"位置："_s);
        dialog.setLabelText(QFileDialog::FileName, u"文件名(&N)："_s);
        dialog.setLabelText(QFileDialog::FileType, u"文件类型："_s);
        dialog.setLabelText(QFileDialog::Accept, question.isSave ? u"保存(&S)"_s : u"打开(&O)"_s);
        dialog.setLabelText(QFileDialog::Reject, u"取消(&C)"_s);
        const QStringList parts = question.filter.split(u'|');
        QStringList filters;
        for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
            filters << parts[i] + u" ("_s + parts[i + 1] + u')';
        dialog.setNameFilters(filters);
        if (question.isSave)
            dialog.setDefaultSuffix(parts.value(1).section(u'.', -1));
        const QFileInfo start(question.start);
        dialog.setDirectory(start.isDir()                                ? start.absoluteFilePath()
                            : start.isAbsolute() && start.dir().exists() ? start.absolutePath()
                                                                         : QDir::homePath());
        if (!start.isDir() && !start.fileName().isEmpty())
            dialog.selectFile(start.fileName());
    }

    static int Run(QMessageBox::Icon icon, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons)
    {
        const NestedLoop loop;
        const QPointer<QWidget> below = QApplication::activeWindow();
        QMessageBox box(icon, title, text, buttons, below);
        box.setObjectName(u"msgBox"_s);
        box.setTextFormat(Qt::PlainText);
        Caption(box, QMessageBox::Ok, u"确定(&O)"_s);
        Caption(box, QMessageBox::Yes, u"是(&Y)"_s);
        Caption(box, QMessageBox::No, u"否(&N)"_s);
        const int answer = box.exec();
        if (below)
            below->activateWindow();
        return answer;
    }

    static void Caption(QMessageBox& box, QMessageBox::StandardButton button, const QString& caption)
    {
        if (QAbstractButton* found = box.button(button))
            found->setText(caption);
    }
};

MessagePresenter* replacement = nullptr;

MessagePresenter& Presenter()
{
    static BoxPresenter boxes;
    return replacement ? *replacement : boxes;
}

} // namespace

void SetMessagePresenter(MessagePresenter* presenter)
{
    replacement = presenter;
}

void ShowInfo(const QString& text, const QString& title)
{
    Presenter().Inform(title, text);
}

bool AskYesNo(const QString& text, const QString& title)
{
    return Presenter().Ask(title, text);
}

QString AskFile(const FileQuestion& question)
{
    return Presenter().ChooseFile(question);
}

void ShowErrorMessage(const RunTimeError& error)
{
    const QString advice = error.Advice();
    ShowInfo(advice.isEmpty() ? error.Description() : error.Description() + u"\r\n"_s + advice);
}
