#include "core/common/ColumnNames.h"

#include "core/base/RunTimeError.h"

ColumnNames::ColumnNames(const QString& names) : m_text(names), m_names(names.split(u','))
{}

int ColumnNames::At(const QString& name) const
{
    const qsizetype at = m_names.indexOf(name);
    if (at < 0)
        throw OutOfBoundsError();
    return static_cast<int>(at);
}
