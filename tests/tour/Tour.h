#pragma once

#include "tests/tour/TableWatch.h"

#include <QDir>
#include <QObject>
#include <QString>

#include <functional>

class QLineEdit;
class QWidget;

/// The hands and eyes of the tour: it presses keys, answers the real boxes, takes pictures of the screen,
/// prints what was written, and remembers what differed from what should be.
class Tour : public QObject {
    Q_OBJECT

public:
    Tour(const QDir& pictures, const QString& database);

    /// Says what comes next.
    void Step(const QString& title);
    /// A picture of the whole screen as "NN-name.png".
    void Picture(const QString& name);
    /// The same without letting the program work on first, for what is there for a moment only.
    void PictureAsItIs(const QString& name);
    /// Prints what the tables say that they did not say before.
    void PrintChanges();

    void Check(const QString& what, const QString& expected, const QString& actual);
    /// Compares one value of the database.
    void CheckValue(const QString& select, const QString& expected);
    /// Compares the text of a control of an open window.
    void CheckText(const QString& window, const QString& control, const QString& expected);

    /// Chooses an entry of the menu bar by keyboard: Alt+number, Down, Enter. Both are counted from 1.
    void ChooseMenu(int top, int entry);
    /// Waits until a window is there, active, and has the keyboard.
    QWidget* WaitForWindow(const QString& name);
    /// The next key brings a box with this text: take its picture, check it, answer it.
    void ExpectBox(const QString& text, const QString& picture = QString(), Qt::Key answer = Qt::Key_Return);
    /// Fails the tour when the expected box did not come.
    void CheckBoxCame();

    /// Checks how many documents were printed into a folder, and leaves them beside the pictures, as they
    /// are and as pictures.
    void KeepDocuments(const QString& folder, int expected);

    int Failures() const { return m_failures; }

private:
    void AnswerBox();

    QDir m_pictures;
    TableWatch m_watch;
    int m_pictureNumber = 0;
    int m_failures = 0;
    QString m_boxText;
    QString m_boxPicture;
    Qt::Key m_boxAnswer = Qt::Key_Return;
    bool m_awaitsBox = false;
};

/// Prints one line at once, so that a reader follows along.
void Say(const QString& line);
