#pragma once

#include <QString>

/// The folder of the program, to which the texts of the ini files ("\Data\Data.ini") are appended as
/// they stand: the folder of the executable, unless a test has put another in its place.
QString ProgramDirectory();
void SetProgramDirectory(const QString& directory);

/// The file that a text such as "\Data\Data.ini" names under the program directory: "\" becomes "/",
/// and where no file has exactly that name, one that differs in case only is taken.
QString ProgramPath(const QString& relative);

/// True when a file (not a folder) stands at the path. An empty path has none.
bool FileExists(const QString& path);
