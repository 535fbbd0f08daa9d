#include "tests/tour/TableWatch.h"

using namespace Qt::StringLiterals;

namespace {

/// A decimal column's text without its trailing zeros.
QString Plain(const QString& value)
{
    QString text = value;
    if (text.contains(u'.') && text.endsWith(u'0')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text;
}

} // namespace

TableWatch::TableWatch(const QString& database) : m_connection(database)
{
    for (const QStringList& row : m_connection.Rows(u"SHOW TABLES"_s)) {
        const QString table = row[0];
        m_tables << table;
        for (const QStringList& column : m_connection.Rows(u"SHOW COLUMNS FROM "_s + table))
            m_columns[table] << column[0];
        m_seen[table] = Rows(table);
    }
}

QStringList TableWatch::Rows(const QString& table)
{
    QStringList lines;
    for (const QStringList& row : m_connection.Rows(u"SELECT * FROM "_s + table)) {
        QString line = table + u' ';
        for (qsizetype i = 0; i < row.size(); ++i) {
            const QString value = Plain(row[i]);
            if (!value.isEmpty() && value != u"0")
                line += u' ' + m_columns[table][i] + u'=' + value;
        }
        lines << line;
    }
    return lines;
}

QStringList TableWatch::Changes()
{
    QStringList changes;
    for (const QString& table : std::as_const(m_tables)) {
        const QStringList now = Rows(table);
        QStringList gone = m_seen[table];
        QStringList come;
        for (const QString& line : now) {
            if (!gone.removeOne(line))
                come << line;
        }
        for (const QString& line : std::as_const(gone))
            changes << u"- "_s + line;
        for (const QString& line : std::as_const(come))
            changes << u"+ "_s + line;
        m_seen[table] = now;
    }
    return changes;
}
