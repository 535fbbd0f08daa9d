#include "tests/reports/conditions/ConditionCase.h"

#include "reports/ConditionFrames.h"
#include "reports/frmSearchCond.h"

#include <QApplication>
#include <QComboBox>

using namespace Qt::StringLiterals;

void ConditionCase::SetUp()
{
    WindowTest::SetUp();
    ReportProbe::onShow = nullptr;
    Windows().Register(u"frmMain"_s, [](QWidget*) { return new FrameProbe; });
    Windows().Register(u"frmReport"_s, [](QWidget* owner) { return new ReportProbe(owner); });
    Windows().Register(u"frmSearchCond"_s, [](QWidget* owner) { return new frmSearchCond(owner); });
    Windows().Load(u"frmMain"_s, nullptr);
    Db().Run(
        u"DELETE FROM Store; INSERT INTO Store (Store) VALUES ('A仓'),('B仓');"
        "DELETE FROM PRD_Sort; INSERT INTO PRD_Sort (SortID,SortName) VALUES ('02','苹果'),('01','蜜梨');"
        "DELETE FROM Fee_Type; INSERT INTO Fee_Type (FeeID,FeeName) VALUES ('02','水电'),('01','运费');"
        "DELETE FROM Sales; INSERT INTO Sales (SalesID,SalesName) VALUES ('S2','小王-东区'),('S1','小李');"
        "DELETE FROM User_List; INSERT INTO User_List (UserID,UserName,bolSearch) VALUES "
        "('02','小陈','0'),('01','管理员','1')"_s);
}

void ConditionCase::Ask(const QString& report)
{
    Session::CurrentMenuKey = report;
    Open(u"frmSearchCond"_s);
}

void ConditionCase::Give(const QString& answer)
{
    if (qobject_cast<QComboBox*>(QApplication::focusWidget())) {
        for (int i = 0; i <= answer.mid(1).toInt(); ++i)
            Press(Qt::Key_Down);
    } else if (answer == u"x") {
        Press(Qt::Key_Space);
    } else {
        Type(answer);
    }
}

void ConditionCase::AnswerUpTo(const QString& last, const QHash<QString, QString>& answers)
{
    QStringList open = answers.keys();
    while (true) {
        const QString at = FocusName();
        if (open.removeOne(at))
            Give(answers.value(at));
        if (at == last)
            break;
        Press(Qt::Key_Return);
        if (FocusName() == at || !IsOpen()) {
            ADD_FAILURE() << "never came to " << last.toStdString() << " from " << at.toStdString();
            break;
        }
    }
    EXPECT_EQ(open, QStringList());
}

void ConditionCase::Answer(const QHash<QString, QString>& answers)
{
    const ConditionFrame& frame = *ConditionFrameOf(Session::CurrentMenuKey);
    const QString last = !frame.EndName().isEmpty()     ? frame.EndName()
                         : !frame.StartName().isEmpty() ? frame.StartName()
                                                        : frame.controls.back().name;
    AnswerUpTo(last, answers);
    TakeStatements();
    Press(Qt::Key_Return);
}
