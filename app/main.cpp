#include "app/StartProgram.h"
#include "core/base/Version.h"
#include "core/common/Handlers.h"
#include "core/common/HeldKeys.h"
#include "core/common/Waiting.h"
#include "core/forms/Skin.h"
#include "core/forms/WindowRegistry.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Handlers catch their own failures. What escapes them all is taken here, where events are dispatched:
/// one box, and the program goes on.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        bool result = false;
        try {
            result = QApplication::notify(receiver, event);
        } catch (...) {
            const std::exception_ptr failure = std::current_exception();
            RunHandler([&failure] { std::rethrow_exception(failure); });
        }
        return result;
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && qstrcmp(argv[1], "--version") == 0) { // before anything asks for a display
        std::printf("orvane %s\n", qPrintable(ProgramVersion()));
        return 0;
    }
    Application application(argc, argv);
    QApplication::setApplicationName(u"orvane"_s);
    QApplication::setApplicationVersion(ProgramVersion());
    qInfo("orvane %s", qPrintable(ProgramVersion()));
    // A window that is loaded but not shown keeps the process alive; the registry tells the end.
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    QTranslator words;
    if (words.load(u"qtbase_zh_CN"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&words);
    InstallSkin(application);
    WatchHeldKeys(application);
    InstallWaitCursor();

    RegisterWindows();
    Windows().SetAllUnloadedHandler([] { QApplication::quit(); });
    return StartProgram() ? QApplication::exec() : 1;
}
