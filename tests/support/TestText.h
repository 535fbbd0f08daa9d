#pragma once

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

QT_BEGIN_NAMESPACE
// How the test library prints the texts of a failed comparison.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << '[' << texts.join(QStringLiteral("\n ")).toStdString() << ']';
}
QT_END_NAMESPACE
