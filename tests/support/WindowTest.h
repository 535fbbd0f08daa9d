#pragma once

#include "core/forms/WindowRegistry.h"
#include "tests/support/BoxRecorder.h"
#include "tests/support/Keys.h"
#include "tests/support/TestServer.h"
#include "tests/support/TestText.h"

#include <QDateTime>
#include <QLineEdit>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// How a statement is made to fail.
enum class Refusal {
    Signalled, ///< the server refuses it with "演练故障": a message without quotes, which ErrInfo can hold
    MissingTable, ///< its table is away: the server's message carries quotes
    LostLink,     ///< the connection is cut just before it
};

/// A fresh database, a fresh program folder, a session of user 01 管理员, the clock stopped at 2026-03-09
/// 10:00:00, boxes recorded, statements logged. Windows that a test opened are destroyed at its end.
class WindowTest : public ::testing::Test {
protected:
    WindowTest();
    ~WindowTest() override;
    void SetUp() override;
    void TearDown() override;

    /// A connection beside the program's.
    SideConnection& Db();
    QString Value(const QString& select) { return Db().Value(select); }
    /// Number of rows, for "what changed and what did not".
    int Count(const QString& table, const QString& where = QStringLiteral("1=1"));

    /// Statements sent since the last call.
    QStringList TakeStatements();
    /// Makes the n-th statement from now (1 is the next) fail, that one only. What was put in its way is
    /// taken away before the next statement, or as soon as the test looks into the tables.
    void FailStatement(int n, Refusal how);

    /// Opens a window by its name as a menu would, and waits until it has the keyboard.
    QWidget* Open(const QString& name);
    /// A control of an open window.
    template <typename Control = QLineEdit>
    Control* Find(const QString& window, const QString& control)
    {
        Form* form = Windows().Find(window);
        auto* found = form ? form->Widget()->findChild<Control*>(control) : nullptr;
        EXPECT_NE(found, nullptr) << window.toStdString() << "." << control.toStdString();
        return found;
    }
    QString TextOf(const QString& window, const QString& control) { return Find(window, control)->text(); }

    const QString& ProgramFolder() const { return m_programFolder; }
    void WriteProgramFile(const QString& name, const QString& text);
    /// Stops the clock at "yyyy-mm-dd hh:mm:ss".
    void SetClock(const QString& moment);

    BoxRecorder boxes;

private:
    void BeforeStatement(const QString& statement);
    void Sabotage(const QString& statement);
    void Repair();

    TestDatabase m_database;
    QTemporaryDir m_folder;
    QString m_programFolder;
    std::unique_ptr<SideConnection> m_side;
    QStringList m_statements;
    int m_failIn = 0;
    Refusal m_refusal = Refusal::Signalled;
    QString m_repair;
};
