// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/paths.h"
#include "support/test_files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumetra;
using namespace Qt::StringLiterals;

// A program in <root>/bin, its user's data in <root>/utente. Files are added one by one; after each, where the
// manual, the tariff and utenza.txt are found ("-": nowhere).
TEST(Paths, ShippedDataAndTheUsersOwnFiles)
{
    QTemporaryDir root;
    setExecutableFolder(root.filePath(u"bin"_s));
    setUserDataFolder(root.filePath(u"utente"_s));
    const auto at
        = [&](const QString &found) { return found.isEmpty() ? u"-"_s : QDir(root.path()).relativeFilePath(found); };
    const std::pair<const char *, const char *> steps[] = {
        // utenza.txt is in the user's folder even before it exists.
        {"", "- - utente/utenza.txt"},
        {"share/lumetra/istruzioni.rtf", "share/lumetra/istruzioni.rtf - utente/utenza.txt"},
        {"Resources/istruzioni.rtf", "Resources/istruzioni.rtf - utente/utenza.txt"},
        {"share/lumetra/tariffe_database.txt",
         "Resources/istruzioni.rtf share/lumetra/tariffe_database.txt utente/utenza.txt"},
        // The user's own tariff wins over the shipped one; a portable utenza.txt beside the program is used there.
        {"utente/tariffe_database.txt", "Resources/istruzioni.rtf utente/tariffe_database.txt utente/utenza.txt"},
        {"bin/utenza.txt", "Resources/istruzioni.rtf utente/tariffe_database.txt bin/utenza.txt"},
    };
    for (const auto &[file, found] : steps) {
        if (*file) {
            QDir(root.path()).mkpath(QFileInfo(root.filePath(QString::fromUtf8(file))).path());
            test::writeBytes(root.filePath(QString::fromUtf8(file)), "x");
        }
        EXPECT_EQ(at(shippedFile(u"istruzioni.rtf"_s)) + u' ' + at(tariffFile()) + u' ' + at(userFile()),
                  QString::fromUtf8(found))
            << file;
    }
    setExecutableFolder({});
    setUserDataFolder({});
}
