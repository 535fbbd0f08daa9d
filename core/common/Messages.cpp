#include "core/common/Messages.h"

#include "core/common/Handlers.h"

#include <QApplication>
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

private:
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

void ShowErrorMessage(const QString& description)
{
    ShowInfo(description);
}
