#pragma once

#include "tests/support/WindowTest.h"

#include <QComboBox>

class QAbstractButton;

/// The settings window among all the windows of the program, over the seed rows, a background ini, a red
/// picture of 80 by 20 pixels (cover.png) and a printer of three papers: A4 (9), A5 (11), 结算纸 (256).
class ParameterWindow : public WindowTest {
protected:
    static const QString Name;

    void SetUp() override;
    void TearDown() override;

    /// Opens the settings; what that sends is not in the next TakeStatements.
    QWidget* OpenSettings();
    bool IsOpen() { return Windows().Find(Name) != nullptr; }

    /// Turns to page 1, 2 or 3 by its key.
    void Turn(int page);
    /// Sets the focus on a control, as a click would, with its text selected.
    void GoTo(const QString& control);
    /// Types over the text of a field of the page in front.
    void TypeInto(const QString& control, const QString& text);
    /// Turns a check or radio button on the page in front by the space bar.
    void Tick(const QString& control);
    /// Chooses in a list of the page in front by its arrow keys.
    void Choose(const QString& control, int index);
    /// Alt+S.
    void Submit();

    QString Text(const QString& control) { return TextOf(Name, control); }
    bool IsTicked(const QString& control);
    QComboBox* List(const QString& control) { return Find<QComboBox>(Name, control); }

    QString CoverIni(const QString& key) const;
    QString PaperSizeInIni() const;
    QString InFolder(const QString& file) const { return ProgramFolder() + u'/' + file; }
    /// Puts a file in an ini's place that can be read and never be written.
    void MakeUnwritable(const QString& ini);
};
