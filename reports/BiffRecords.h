#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

#include <cstdint>
#include <initializer_list>

/// A row of BIFF8 records, the pieces that an .xls workbook is made of: each a number that says what it is,
/// its length, its bytes, little-endian.
class BiffRecords {
public:
    /// What one record holds at the most.
    static constexpr qsizetype MostBytes = 8224;

    /// Begins a record; what is added goes into it until the next one begins.
    BiffRecords& Begin(std::uint16_t kind);
    BiffRecords& Byte(std::uint8_t value);
    BiffRecords& Word(std::uint16_t value);
    BiffRecords& Long(std::uint32_t value);
    BiffRecords& Words(std::initializer_list<std::uint16_t> values);
    /// Letters as they stand in a string: one byte each where all fit, two otherwise.
    BiffRecords& Letters(QStringView text, bool isWide);
    /// A whole record of words.
    void Add(std::uint16_t kind, std::initializer_list<std::uint16_t> values) { Begin(kind).Words(values); }

    /// Bytes that the record under way has room for.
    qsizetype Room() const;
    const QByteArray& Bytes() const { return m_bytes; }
    qsizetype Size() const { return m_bytes.size(); }
    /// Overwrites four bytes: a place in the file that was not known yet.
    void Patch(qsizetype position, std::uint32_t value);

private:
    void CountIn();

    QByteArray m_bytes;
    qsizetype m_begin = 0; ///< where the record under way begins
};

/// True for a text that needs two bytes a letter.
bool IsWide(QStringView text);

/// The texts of a workbook, each kept once; cells name them by number.
class SharedStrings {
public:
    std::uint32_t NumberOf(const QString& text);
    /// The SST record, and CONTINUE records behind it as far as they are needed. A text that does not fit
    /// into the rest of a record goes on in the next one, behind a byte that says again how its letters
    /// are kept.
    void Write(BiffRecords& records) const;

private:
    QHash<QString, std::uint32_t> m_numbers;
    QList<QString> m_texts;
    std::uint32_t m_uses = 0;
};
