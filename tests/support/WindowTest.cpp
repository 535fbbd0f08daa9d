#include "tests/support/WindowTest.h"

#include "core/base/Clock.h"
#include "core/base/ProgramFiles.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <utility>

using namespace Qt::StringLiterals;

WindowTest::WindowTest() : m_programFolder(m_folder.path())
{}

WindowTest::~WindowTest() = default;

void WindowTest::SetUp()
{
    SetProgramDirectory(m_programFolder);
    QDir(m_programFolder).mkpath(u"Data"_s);
    WriteProgramFile(u"Config.ini"_s,
                     u"[Define]\nAccNum=1\nClient=\nUserName=\nPaperSize=9\nSplashTime=20\n"_s);
    WriteProgramFile(
        u"Data/Data.ini"_s,
        u"[DataProp]\nServerName=localhost\nUserID=root\nPWD=\nDataBase=%1\n[DBType]\nDrive=MYSQL\n"
        "[MYSQL]\nConnStr=%2\n"_s.arg(m_database.Name(), m_database.ConnectionText()));
    m_side = std::make_unique<SideConnection>(m_database.Name());

    SetClock(u"2026-03-09 10:00:00"_s);
    SetMessagePresenter(&boxes);
    Session::Reset();
    Session::DataIniPath = ProgramPath(u"\\Data\\Data.ini"_s);
    Session::CurrentUserID = u"01"_s;
    Session::CurrentUserName = u"管理员"_s;
    Session::WindowSlotFree = true;
    Gateway().OpenConnection(Session::DataIniPath);
    ASSERT_EQ(Gateway().LastError(), QString());
    Gateway().SetStatementObserver([this](const QString& statement) { BeforeStatement(statement); });
}

void WindowTest::TearDown()
{
    Settle();
    Windows().DropAll();
    Settle();
    boxes.Verify();
    SetMessagePresenter(nullptr);
    Gateway().SetStatementObserver(nullptr);
    Gateway().CloseConnection();
    Clock::Set(std::nullopt);
    SetProgramDirectory(QString());
    Session::Reset();
}

int WindowTest::Count(const QString& table, const QString& where)
{
    return Value(u"SELECT COUNT(*) FROM %1 WHERE %2"_s.arg(table, where)).toInt();
}

SideConnection& WindowTest::Db()
{
    Repair();
    return *m_side;
}

void WindowTest::Repair()
{
    if (!m_repair.isEmpty())
        m_side->Run(std::exchange(m_repair, QString()));
}

QStringList WindowTest::TakeStatements()
{
    return std::exchange(m_statements, {});
}

void WindowTest::FailStatement(int n, Refusal how)
{
    m_failIn = n;
    m_refusal = how;
}

void WindowTest::BeforeStatement(const QString& statement)
{
    m_statements << statement;
    Repair();
    if (m_failIn > 0 && --m_failIn == 0)
        Sabotage(statement);
}

void WindowTest::Sabotage(const QString& statement)
{
    const QStringList words = statement.split(u' ');
    const QString& verb = words[0];
    const QString table = verb == u"UPDATE"   ? words[1]
                          : verb == u"SELECT" ? statement.section(u" FROM "_s, 1).section(u' ', 0, 0)
                                              : words[2];
    switch (m_refusal) {
    case Refusal::Signalled:
        ASSERT_NE(verb, u"SELECT"_s) << "a select cannot be signalled: " << statement.toStdString();
        m_side->Run(
            u"CREATE TRIGGER sabotage BEFORE %1 ON %2 FOR EACH ROW SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT='演练故障'"_s
                .arg(verb, table));
        m_repair = u"DROP TRIGGER sabotage"_s;
        break;
    case Refusal::MissingTable:
        m_side->Run(u"RENAME TABLE %1 TO %1_away"_s.arg(table));
        m_repair = u"RENAME TABLE %1_away TO %1"_s.arg(table);
        break;
    case Refusal::LostLink:
        for (const QStringList& row : m_side->Rows(
                 u"SELECT ID FROM information_schema.PROCESSLIST WHERE DB='%1' AND ID<>CONNECTION_ID()"_s.arg(
                     m_database.Name())))
            m_side->Run(u"KILL "_s + row[0]);
        break;
    }
}

QWidget* WindowTest::Open(const QString& name)
{
    Form* form = Windows().Show(name, nullptr);
    if (!form) {
        ADD_FAILURE() << name.toStdString() << " did not open";
        return nullptr;
    }
    form->Widget()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form->Widget()));
    Settle();
    return form->Widget();
}

void WindowTest::WriteProgramFile(const QString& name, const QString& text)
{
    QFile file(m_programFolder + u'/' + name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
    file.write(text.toUtf8());
}

void WindowTest::SetClock(const QString& moment)
{
    Clock::Set(QDateTime::fromString(moment, u"yyyy-MM-dd HH:mm:ss"_s));
}
