#include "app/StartProgram.h"
#include "bench/Workstation.h"
#include "core/forms/Skin.h"

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QTextStream>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// One round on one database. Several rounds, the two databases by turns, make the figures.
constexpr int Starts = 2;
constexpr int Keystrokes = 100;
constexpr int Saves = 40;
constexpr int Prints = 10;
constexpr int Fills = 4;
constexpr int WarmUps = Workstation::LotsInTurn;

void Measure(const QString& programFolder, QTextStream& samples)
{
    RegisterWindows();
    Workstation workstation(programFolder, samples);
    Memory memory;
    workstation.StartMainWindow(u"main window's first start"_s);
    memory.frame = Workstation::ResidentMemory();
    for (int i = 0; i < Starts; ++i) {
        workstation.CloseMainWindow();
        workstation.StartMainWindow(u"main window's start"_s);
    }
    workstation.OpenTill();
    memory.till = Workstation::ResidentMemory();
    workstation.TypePieces(WarmUps, true);
    workstation.TypePieces(Keystrokes, false);
    workstation.SaveTickets(WarmUps, true);
    workstation.SaveTickets(Saves, false);
    workstation.PrintTickets(Prints);
    workstation.CloseTill();
    workstation.PrintSettlements(Prints);
    workstation.FillGoodsList(Fills);
    memory.atEnd = Workstation::ResidentMemory();
    workstation.CloseMainWindow();
    Write(samples, memory);
}

/// What the off-screen platform cannot do is not worth a line each time.
void PassOverPlatform(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    if (!text.startsWith(u"This plugin does not support") &&
        !text.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR"))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// "TICKETS=FILE"
Measurement Named(const QString& argument)
{
    return ReadMeasurement(argument.section(u'=', 0, 0).toInt(), argument.section(u'=', 1));
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("CUPS_SERVER", "/nowhere"); // documents are measured without a queue
    qInstallMessageHandler(PassOverPlatform);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    InstallSkin(application);

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == u"measure") {
        QFile file(arguments[3]);
        if (!file.open(QIODevice::Append | QIODevice::Text))
            GiveUp(u"cannot write "_s + arguments[3]);
        QTextStream samples(&file);
        Measure(arguments[2], samples);
    } else if (arguments.size() == 4 && arguments[1] == u"table") {
        std::fputs(qUtf8Printable(Table(Named(arguments[2]), Named(arguments[3]))), stdout);
    } else {
        GiveUp(u"usage: orvane-bench measure FOLDER SAMPLES | table TICKETS=SAMPLES TICKETS=SAMPLES"_s);
    }
    return 0;
}
