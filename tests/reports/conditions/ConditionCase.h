#pragma once

#include "core/forms/Form.h"
#include "tests/reports/conditions/ReportProbe.h"
#include "tests/support/WindowTest.h"

#include <QHash>
#include <QWidget>

/// What the main window was asked for.
class FrameProbe : public QWidget, public Form {
public:
    QWidget* Widget() override { return this; }
    void Hold(Form* window) override
    {
        held << window->Widget()->objectName();
        window->Widget()->show();
    }
    void EnableToolbar(const QStringList& buttons, bool /*enabled*/) override { enabled << buttons; }

    QStringList held;
    QStringList enabled;
};

/// The window of conditions over tables with two of everything, a probe for the report, one for the frame.
class ConditionCase : public WindowTest {
protected:
    void SetUp() override;

    /// Opens the window under a report's key, as the menu does.
    void Ask(const QString& report);
    /// Walks the shown controls by Enter. Where there is an answer it is given by keys: a text or a day is
    /// typed, "#1" goes down to the second entry of a combo box, "x" ticks. Ends with Enter in the last one.
    void Answer(const QHash<QString, QString>& answers);
    /// The same, up to the control, which has the focus then and has been answered.
    void AnswerUpTo(const QString& last, const QHash<QString, QString>& answers);

    bool IsOpen() const { return Windows().Find(QStringLiteral("frmSearchCond")) != nullptr; }
    template <typename Control = QLineEdit>
    Control* Its(const QString& control)
    {
        return Find<Control>(QStringLiteral("frmSearchCond"), control);
    }
    FrameProbe* Frame() { return static_cast<FrameProbe*>(Windows().Find(QStringLiteral("frmMain"))); }

private:
    void Give(const QString& answer);
};
