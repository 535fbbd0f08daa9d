#include "core/forms/DateField.h"

#include "core/base/Clock.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLocale>

using namespace Qt::StringLiterals;

DateField::DateField(QWidget* parent) : QDateEdit(parent)
{
    // Before the calendar, which takes its words from here.
    setLocale(QLocale(QLocale::Chinese, QLocale::China));
    setDisplayFormat(u"yyyy-MM-dd"_s);
    setCalendarPopup(true);
    calendarWidget()->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    setDate(Clock::Now().date());
    setToolTip(u"直接输入日期；PgUp 前一天，PgDn 后一天，加 Ctrl 为一个月"_s);
}

QString DateField::Day()
{
    interpretText();
    return FormatDate(date());
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        GoBy(event->key() == Qt::Key_PageDown ? 1 : -1, event->modifiers() & Qt::ControlModifier);
        return;
    case Qt::Key_Minus:
    case Qt::Key_Slash:
    case Qt::Key_Period:
        if (m_hasMovedOn) { // the full year or month has done this already
            m_hasMovedOn = false;
            return;
        }
        break;
    default:
        break;
    }
    const QDateTimeEdit::Section before = currentSection();
    QDateEdit::keyPressEvent(event);
    m_hasMovedOn = currentSection() != before && event->text() >= u"0"_s && event->text() <= u"9"_s;
}

void DateField::GoBy(int step, bool isMonths)
{
    interpretText();
    const QDateTimeEdit::Section section = currentSection();
    setDate(isMonths ? date().addMonths(step) : date().addDays(step));
    setSelectedSection(section);
}
