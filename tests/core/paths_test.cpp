#include "core/paths.h"
#include "support/test_files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumetra;
using namespace Qt::StringLiterals;

namespace {

// A program in <root>/bin, its user's data in <root>/utente.
class Paths : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(root.isValid());
        QDir(root.path()).mkpath(u"bin"_s);
        setExecutableFolder(root.filePath(u"bin"_s));
        setUserDataFolder(root.filePath(u"utente"_s));
    }
    void TearDown() override
    {
        setExecutableFolder({});
        setUserDataFolder({});
    }
    void put(const QString &relative)
    {
        QDir(root.path()).mkpath(QFileInfo(root.filePath(relative)).path());
        test::writeBytes(root.filePath(relative), "x");
    }
    QString at(const QString &found) const
    {
        return found.isEmpty() ? u"-"_s : QDir(root.path()).relativeFilePath(found);
    }

    QTemporaryDir root;
};

} // namespace

TEST_F(Paths, ShippedDataBesideTheProgramThenInABundleThenInstalled)
{
    // Files present, in the order they are added; where the manual is found after each.
    const std::pair<const char *, const char *> steps[] = {
        {"", "-"},
        {"share/lumetra/istruzioni.rtf", "share/lumetra/istruzioni.rtf"},
        {"Resources/istruzioni.rtf", "Resources/istruzioni.rtf"},
        {"bin/Resources/istruzioni.rtf", "Resources/istruzioni.rtf"},
        {"bin/istruzioni.rtf", "bin/istruzioni.rtf"},
    };
    for (const auto &[file, found] : steps) {
        if (*file)
            put(QString::fromUtf8(file));
        EXPECT_EQ(at(shippedFile(u"istruzioni.rtf"_s)), QString::fromUtf8(found)) << file;
    }
}

TEST_F(Paths, TheUsersOwnFiles)
{
    // The tariff: the user's own copy wins over the shipped one.
    EXPECT_EQ(at(tariffFile()), u"-"_s);
    put(u"share/lumetra/tariffe_database.txt"_s);
    EXPECT_EQ(at(tariffFile()), u"share/lumetra/tariffe_database.txt"_s);
    put(u"utente/tariffe_database.txt"_s);
    EXPECT_EQ(at(tariffFile()), u"utente/tariffe_database.txt"_s);

    // utenza.txt: in the user's folder, even before it exists, unless a
    // portable copy stands beside the program.
    EXPECT_EQ(at(userFile()), u"utente/utenza.txt"_s);
    put(u"bin/utenza.txt"_s);
    EXPECT_EQ(at(userFile()), u"bin/utenza.txt"_s);
}
