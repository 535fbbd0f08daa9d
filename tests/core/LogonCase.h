#pragma once

#include "core/base/ProgramFiles.h"
#include "core/common/Messages.h"
#include "core/gateway/DataGateway.h"
#include "core/logon/frmDBC.h"
#include "core/logon/frmLogon.h"
#include "core/logon/frmMultiLogon.h"
#include "core/logon/frmSpash.h"
#include "core/session/Session.h"
#include "core/session/SessionControl.h"
#include "tests/support/WindowTest.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QTimer>

/// Stands in for the main window: its load starts the session, its closing ends it.
class FakeMain : public QWidget, public Form {
public:
    explicit FakeMain(QWidget* owner) : QWidget(owner) { resize(300, 200); }
    QWidget* Widget() override { return this; }
    void OnLoad() override { StartSession(); }

protected:
    void closeEvent(QCloseEvent* event) override
    {
        QWidget::closeEvent(event);
        if (Windows().Find(QStringLiteral("frmMain")) != this)
            return;
        Windows().Unloaded(this);
        deleteLater();
    }
};

/// A program that has just been started: no connection, no session, the logon windows known.
class LogonCase : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Gateway().CloseConnection();
        Session::Reset();
        Session::WindowSlotFree = true;
        Windows().Register(QStringLiteral("frmLogon"), [](QWidget* owner) { return new frmLogon(owner); });
        Windows().Register(QStringLiteral("frmMultiLogon"),
                           [](QWidget* owner) { return new frmMultiLogon(owner); });
        Windows().Register(QStringLiteral("frmDBC"), [](QWidget* owner) { return new frmDBC(owner); });
        Windows().Register(QStringLiteral("frmSpash"), [](QWidget* owner) { return new frmSpash(owner); });
        Windows().Register(QStringLiteral("frmMain"), [](QWidget* owner) { return new FakeMain(owner); });
        Windows().SetAllUnloadedHandler([this] { ++m_ends; });
        m_dataIni = ReadFile(QStringLiteral("Data/Data.ini"));
    }

    void TearDown() override
    {
        Windows().SetAllUnloadedHandler(nullptr);
        WindowTest::TearDown();
    }

    static bool IsLoaded(const QString& name) { return Windows().Find(name) != nullptr; }
    static bool IsShown(const QString& name)
    {
        return IsLoaded(name) && Windows().Find(name)->Widget()->isVisible();
    }

    QString ReadFile(const QString& name) const
    {
        QFile file(ProgramFolder() + QLatin1Char('/') + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    void RemoveFile(const QString& name)
    {
        EXPECT_TRUE(QFile::remove(ProgramFolder() + QLatin1Char('/') + name));
    }

    /// Data.ini as it was, with other texts for some of its parts.
    void ChangeDataIni(const QString& before, const QString& after)
    {
        ASSERT_TRUE(m_dataIni.contains(before));
        m_dataIni.replace(before, after);
        WriteProgramFile(QStringLiteral("Data/Data.ini"), m_dataIni);
    }
    /// Nobody answers where Data.ini points to.
    void UnplugServer()
    {
        ChangeDataIni(TestServer::Instance().Socket(), QStringLiteral("/nowhere/mysql.sock"));
    }

    void SetClockToServersToday() { SetClock(Value(QStringLiteral("SELECT CONCAT(CURDATE(),' 10:00:00')"))); }

    void AddUser(const QString& values)
    {
        Db().Run(QStringLiteral("INSERT INTO User_List (UserID,UserName,UserPWD,UserIP,bolIP) VALUES (%1)")
                     .arg(values));
    }
    QString Sessions()
    {
        return Value(QStringLiteral(
            "SELECT IFNULL(GROUP_CONCAT(CONCAT(UserID,' ',CheckID) ORDER BY LogTime,UserID),'') "
            "FROM User_Status"));
    }

    int m_ends = 0; ///< how often the process would have ended

private:
    QString m_dataIni;
};
