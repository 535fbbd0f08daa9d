#include "reports/BiffRecords.h"

#include <algorithm>

namespace {
constexpr std::uint16_t Sst = 0x00fc;
constexpr std::uint16_t Continue = 0x003c;
constexpr qsizetype RecordHead = 4;
constexpr qsizetype StringHead = 3; // length and flags
constexpr qsizetype LongestLetter = 4;
} // namespace

BiffRecords& BiffRecords::Begin(std::uint16_t kind)
{
    m_begin = m_bytes.size();
    m_bytes.append(static_cast<char>(kind & 0xff)).append(static_cast<char>(kind >> 8));
    m_bytes.append(2, '\0');
    return *this;
}

BiffRecords& BiffRecords::Byte(std::uint8_t value)
{
    m_bytes.append(static_cast<char>(value));
    CountIn();
    return *this;
}

BiffRecords& BiffRecords::Word(std::uint16_t value)
{
    m_bytes.append(static_cast<char>(value & 0xff)).append(static_cast<char>(value >> 8));
    CountIn();
    return *this;
}

BiffRecords& BiffRecords::Long(std::uint32_t value)
{
    return Word(static_cast<std::uint16_t>(value)).Word(static_cast<std::uint16_t>(value >> 16));
}

BiffRecords& BiffRecords::Words(std::initializer_list<std::uint16_t> values)
{
    for (const std::uint16_t value : values)
        Word(value);
    return *this;
}

BiffRecords& BiffRecords::Letters(QStringView text, bool isWide)
{
    for (const QChar letter : text) {
        m_bytes.append(static_cast<char>(letter.unicode() & 0xff));
        if (isWide)
            m_bytes.append(static_cast<char>(letter.unicode() >> 8));
    }
    CountIn();
    return *this;
}

qsizetype BiffRecords::Room() const
{
    return MostBytes - (m_bytes.size() - m_begin - RecordHead);
}

void BiffRecords::Patch(qsizetype position, std::uint32_t value)
{
    for (int byte = 0; byte < 4; ++byte)
        m_bytes[position + byte] = static_cast<char>((value >> (8 * byte)) & 0xff);
}

void BiffRecords::CountIn()
{
    const qsizetype length = m_bytes.size() - m_begin - RecordHead;
    m_bytes[m_begin + 2] = static_cast<char>(length & 0xff);
    m_bytes[m_begin + 3] = static_cast<char>(length >> 8);
}

bool IsWide(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter.unicode() > 0xff; });
}

std::uint32_t SharedStrings::NumberOf(const QString& text)
{
    ++m_uses;
    if (const auto known = m_numbers.constFind(text); known != m_numbers.cend())
        return *known;
    const auto number = static_cast<std::uint32_t>(m_texts.size());
    m_numbers.insert(text, number);
    m_texts.append(text);
    return number;
}

void SharedStrings::Write(BiffRecords& records) const
{
    records.Begin(Sst).Long(m_uses).Long(static_cast<std::uint32_t>(m_texts.size()));
    for (const QString& text : m_texts) {
        const bool isWide = IsWide(text);
        // The head of a string is never torn, and a letter stands behind it.
        if (records.Room() < StringHead + LongestLetter)
            records.Begin(Continue);
        records.Word(static_cast<std::uint16_t>(text.size())).Byte(isWide);
        for (QStringView rest = text; !rest.isEmpty();) {
            qsizetype fits = std::min(rest.size(), records.Room() / (isWide ? 2 : 1));
            if (fits < rest.size() && rest[fits - 1].isHighSurrogate())
                --fits; // readers decode each piece by itself
            records.Letters(rest.first(fits), isWide);
            rest = rest.sliced(fits);
            if (!rest.isEmpty())
                records.Begin(Continue).Byte(isWide);
        }
    }
}
