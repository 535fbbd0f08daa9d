#include "shell/frmAbout.h"

#include "ui_frmAbout.h"

#include "core/common/Messages.h"

#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

frmAbout::frmAbout(QWidget* owner) : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmAbout>())
{
    ui->setupUi(this);
    QFont font = ui->lblTitle->font();
    font.setPointSize(16);
    font.setBold(true);
    ui->lblTitle->setFont(font);
    OnPress(
        ui->cmdSysInfo, [this] { ShowSystemInformation(); }, QKeySequence(u"Alt+I"_s));
    OnPress(
        ui->cmdOK, [this] { close(); }, QKeySequence(u"Esc"_s));
}

frmAbout::~frmAbout() = default;

void frmAbout::ShowSystemInformation()
{
    // Whichever of the desktops' tools is installed.
    static const QStringList tools{u"kinfocenter"_s,          u"hardinfo2"_s,           u"hardinfo"_s,
                                   u"gnome-control-center"_s, u"mate-system-monitor"_s, u"xfce4-about"_s};
    for (const QString& tool : tools) {
        const QString path = QStandardPaths::findExecutable(tool);
        if (!path.isEmpty() && QProcess::startDetached(path, {}))
            return;
    }
    ShowInfo(u"此时系统信息不可用"_s);
}
