#include "core/common/Messages.h"

#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

using namespace Qt::StringLiterals;

const QString SystemTitle = u"系统提示"_s;

namespace {

/// What opens while a key is down, the Enter of a save for instance, is not answered by it: only by a
/// key that is pressed anew.
class HeldKeysIgnored : public QObject {
public:
    explicit HeldKeysIgnored(QWidget& box)
    {
        box.installEventFilter(this);
        for (QWidget* control : box.findChildren<QWidget*>())
            control->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        return (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat()) ||
               QObject::eventFilter(watched, event);
    }
};

/// Message boxes on the active window, which gets the keyboard back afterwards.
class BoxPresenter : public MessagePresenter {
public:
    void Inform(const QString& title, const QString& text) override
    {
        Run(u'i', title, text, QMessageBox::Ok, QMessageBox::Ok);
    }

    bool Ask(const QString& title, const QString& text) override
    {
        return Run(u'?', title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) ==
               QMessageBox::Yes;
    }

    bool AskBeforeDestroying(const QString& title, const QString& text) override
    {
        return Run(u'!', title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
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
        return isChosen ? WithEnding(dialog, question) : QString();
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
            // Who writes the file asks: a name can reach him without this dialog.
            dialog.setOption(QFileDialog::DontConfirmOverwrite);
        const QFileInfo start(question.start);
        dialog.setDirectory(start.isDir()                                ? start.absoluteFilePath()
                            : start.isAbsolute() && start.dir().exists() ? start.absolutePath()
                                                                         : QDir::homePath());
        if (!start.isDir() && !start.fileName().isEmpty())
            dialog.selectFile(start.fileName());
    }

    /// A name to be written, with the ending of the filter chosen where it has none.
    static QString WithEnding(const QFileDialog& dialog, const FileQuestion& question)
    {
        QString chosen = dialog.selectedFiles().value(0);
        if (!question.isSave || !QFileInfo(chosen).suffix().isEmpty())
            return chosen;
        // The dialog names its filters without their patterns.
        const QStringList parts = question.filter.split(u'|');
        const qsizetype caption = std::max<qsizetype>(0, parts.indexOf(dialog.selectedNameFilter()));
        return chosen + u'.' + parts.value(caption + 1).section(u'.', -1);
    }

    static int Run(QChar sign, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons, QMessageBox::StandardButton usual)
    {
        const NestedLoop loop;
        const QPointer<QWidget> below = QApplication::activeWindow();
        QMessageBox box(QMessageBox::NoIcon, title, text, buttons, below);
        box.setObjectName(u"msgBox"_s);
        box.setTextFormat(Qt::PlainText);
        box.setIconPixmap(Sign(sign));
        box.setDefaultButton(usual);
        GiveRoom(box);
        Caption(box, QMessageBox::Ok, u"确定(&O)"_s);
        Caption(box, QMessageBox::Yes, u"是(&Y)"_s);
        Caption(box, QMessageBox::No, u"否(&N)"_s);
        const HeldKeysIgnored fresh(box);
        const int answer = box.exec();
        if (below)
            below->activateWindow();
        return answer;
    }

    /// A disc with the sign, in the colours of the toolbar; one that warns is red. The style's own icons
    /// are coarse beside it.
    static QPixmap Sign(QChar sign)
    {
        constexpr int side = 36; // pixels
        const qreal density = qApp->devicePixelRatio();
        QPixmap picture(QSize(side, side) * density);
        picture.setDevicePixelRatio(density);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(sign == u'!' ? QColor(0xb3, 0x26, 0x1e) : QColor(0x33, 0x44, 0x55));
        painter.drawEllipse(1, 1, side - 2, side - 2);
        QFont font = QApplication::font();
        font.setPixelSize(24);
        font.setBold(true);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(QRect(0, 0, side, side), Qt::AlignCenter, sign);
        return picture;
    }

    /// As wide as the text needs, up to two thirds of the screen; a longer text has lines of one length,
    /// so that no last character stands alone.
    static void GiveRoom(QMessageBox& box)
    {
        auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
        if (!label)
            return;
        label->ensurePolished();
        int needed = 0;
        for (const QString& line : box.text().split(u'\n'))
            needed = std::max(needed, label->fontMetrics().horizontalAdvance(line));
        const int most = QGuiApplication::primaryScreen()->availableSize().width() * 2 / 3 - 100;
        const int lines = (needed + most - 1) / std::max(1, most);
        // Characters break where they end, so a line is seldom full.
        const int slack = lines > 1 ? label->fontMetrics().averageCharWidth() * 3 : 4;
        label->setMinimumWidth(std::min(most, needed / std::max(1, lines) + slack));
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

bool AskBeforeDestroying(const QString& text, const QString& title)
{
    return Presenter().AskBeforeDestroying(title, text);
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
