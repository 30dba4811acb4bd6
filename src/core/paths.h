// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the program's files live. Data shipped with the program (the tariff,
// the manual) can lie in a folder the user cannot write; the user's own files
// live in the per-user data folder.

#include <QString>

namespace lumetra {

// The folder of the executable. Tests put the program elsewhere; an empty text
// restores the real one.
QString executableFolder();
void setExecutableFolder(const QString &folder);

// The per-user data folder (~/.local/share/lumetra on Linux, %APPDATA%\Lumetra
// on Windows, named after the application), created when a
// file is written there. Tests put it elsewhere; an empty text restores it.
QString userDataFolder();
void setUserDataFolder(const QString &folder);

// A file shipped with the program: beside the executable, then in
// ../Resources/ (an application bundle, or the build tree), then in
// ../share/lumetra/ (an installed program). Empty when it is nowhere.
QString shippedFile(const QString &name);

// tariffe_database.txt: the user's own copy in the per-user folder, if there is
// one, else the shipped one. Empty when there is none.
QString tariffFile();

// utenza.txt: beside the executable when one is there already (a portable
// copy), else in the per-user folder, whether it exists or not.
QString userFile();

} // namespace lumetra
