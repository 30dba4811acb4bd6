#include "help/istruzioni.h"

#include "support/test_files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumetra;

namespace {

class Istruzioni : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        QDir(dir.path()).mkdir(QStringLiteral("bin"));
        setIstruzioniExecutableFolder(dir.filePath(QStringLiteral("bin")));
        x_istruzioni() = {};
    }
    void TearDown() override
    {
        setIstruzioniExecutableFolder(QString());
        x_istruzioni() = {};
    }
    void writeManual(const QByteArray &bytes)
    {
        QDir(dir.path()).mkdir(QStringLiteral("Resources"));
        test::writeBytes(dir.filePath(QStringLiteral("Resources/istruzioni.rtf")), bytes);
    }

    QTemporaryDir dir;
};

} // namespace

TEST_F(Istruzioni, ReadOnceARunFromTheResourcesBesideTheExecutablesFolder)
{
    // Bytes as they are: the RTF declares its own encoding.
    const QByteArray manual("{\\rtf1 Citt\xe0\r\n}");
    writeManual(manual);
    EXPECT_FALSE(x_istruzioni().loaded);
    EXPECT_EQ(istruzioni(), manual);
    EXPECT_TRUE(x_istruzioni().loaded);
    writeManual("{\\rtf1 nuovo}");
    EXPECT_EQ(istruzioni(), manual);
}

TEST_F(Istruzioni, MissingFolderOrFileGivesAnEmptyTextForTheWholeRun)
{
    EXPECT_EQ(istruzioni(), QByteArray());
    EXPECT_TRUE(x_istruzioni().loaded);
    writeManual("{\\rtf1 tardi}");
    EXPECT_EQ(istruzioni(), QByteArray());

    x_istruzioni() = {};
    QFile::remove(dir.filePath(QStringLiteral("Resources/istruzioni.rtf")));
    EXPECT_EQ(istruzioni(), QByteArray());
}

TEST_F(Istruzioni, NotBesideTheExecutableItself)
{
    test::writeBytes(dir.filePath(QStringLiteral("bin/istruzioni.rtf")), "{\\rtf1 qui}");
    QDir(dir.filePath(QStringLiteral("bin"))).mkdir(QStringLiteral("Resources"));
    test::writeBytes(dir.filePath(QStringLiteral("bin/Resources/istruzioni.rtf")), "{\\rtf1 qui}");
    EXPECT_EQ(istruzioni(), QByteArray());
}
