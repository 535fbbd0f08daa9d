#pragma once

#include <QString>

/// The longest value that is read from an ini file, in characters; the rest is cut off.
inline constexpr int IniValueLength = 255;

/// The value of a key, or `fallback` when file, section or key is missing. Section and key ignore case
/// and the first match counts. Blanks around the value and one pair of enclosing quotes are removed. A
/// ";" starts a comment at the start of a line only, since connection texts are full of them. UTF-8 and
/// GB18030 files are both read.
/// @throws RunTimeError, naming the file, when it is there and cannot be read.
QString ReadIniValue(const QString& file, const QString& section, const QString& key,
                     const QString& fallback = QString());

/// Writes the value of a key, keeping every other line, its order, the comments and the file's
/// encoding. File and section are created when missing; line breaks in the value become blanks.
/// @throws RunTimeError, naming the file, when it cannot be read or written; the old file then stands
/// untouched.
void WriteIniValue(const QString& file, const QString& section, const QString& key, const QString& value);

/// Copies the file to its name with ".old" behind it, open to nobody to whom the file is not, in the place of
/// an earlier copy. Does nothing where no file stands. @throws RunTimeError when the copy cannot be made.
void KeepOldIni(const QString& file);
