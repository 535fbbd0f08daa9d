#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// A compound file, as office programs of the nineties keep their documents in, with one stream in it. What
/// is neither closed nor failed is left unfinished on the disk.
class OleFile {
public:
    /// Creates the file, or empties it. @throws RunTimeError like everything here, with why it cannot be
    /// written.
    OleFile(const QString& path, const char* stream);
    ~OleFile();
    OleFile(const OleFile&) = delete;
    OleFile& operator=(const OleFile&) = delete;

    void Write(const QByteArray& bytes);
    /// Finishes stream and file. Only now is everything known to be on the disk's side.
    void Close();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};
