#include "core/common/HeldKeys.h"
#include "core/forms/Skin.h"
#include "tests/support/PrintServer.h"
#include "tests/support/TestServer.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

/// Qt's warnings tell of broken connections and wrong threads: each one fails the test that caused it.
/// What the off-screen platform cannot do is not among them.
void Listen(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
{
    const bool isPlatform = text.startsWith(u"This plugin does not support") ||
                            text.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR");
    if (isPlatform)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    if (type == QtWarningMsg || type == QtCriticalMsg)
        ADD_FAILURE() << text.toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Listen);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    InstallSkin(application);
    WatchHeldKeys(application);
    PrintServer::UseNone();
    ::testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
    TestServer::Instance().Stop();
    return result;
}
