#include "core/gateway/RecordSet.h"

#include "core/base/Numbers.h"
#include "core/base/RunTimeError.h"

QString Field::Text() const
{
    if (Value.isNull())
        return QString();
    return Value.typeId() == QMetaType::Double ? NumberText(Value.toDouble()) : Value.toString();
}

Field RecordSet::Fields(int index) const
{
    if (Eof())
        throw EndOfDataError();
    const Row& row = (*m_rows)[m_at];
    if (index < 0 || static_cast<std::size_t>(index) >= row.size())
        throw OutOfBoundsError();
    return Field{row[static_cast<std::size_t>(index)]};
}

void RecordSet::MoveNext()
{
    if (Eof())
        throw EndOfDataError();
    ++m_at;
}
