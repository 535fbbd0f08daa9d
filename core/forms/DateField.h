#pragma once

#include <QDateEdit>

/// A day, typed or picked from a calendar, "yyyy-MM-dd". Typing fills year, month and day in turn; Page Up
/// and Page Down go a day back and on, with Ctrl a month. Up and Down are left to the window, which moves
/// between its fields with them.
class DateField : public QDateEdit {
    Q_OBJECT

public:
    explicit DateField(QWidget* parent = nullptr);

    /// The day that the field shows, "yyyy-mm-dd", also while it is being typed.
    QString Day();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void GoBy(int step, bool isMonths);

    bool m_hasMovedOn = false; ///< the last digit filled its part of the date
};
