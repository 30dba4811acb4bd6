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
        QDir(dir.path()).mkpath(QStringLiteral("bin/Resources"));
        setIstruzioniExecutableFolder(dir.filePath(QStringLiteral("bin")));
        x_istruzioni() = {};
    }
    void TearDown() override
    {
        setIstruzioniExecutableFolder(QString());
        x_istruzioni() = {};
    }
    void write(const QString &path, const QByteArray &bytes)
    {
        QDir(dir.path()).mkdir(QStringLiteral("Resources"));
        test::writeBytes(dir.filePath(path), bytes);
    }

    QTemporaryDir dir;
};

} // namespace

TEST_F(Istruzioni, ReadOnceARunFromResourcesBesideTheExecutablesFolder)
{
    // Not from beside the executable, nor from a Resources folder inside its folder.
    write(QStringLiteral("bin/Resources/istruzioni.rtf"), "{\\rtf1 qui}");
    // The bytes as they are: the RTF declares its own encoding.
    const QByteArray manual("{\\rtf1 Citt\xe0\r\n}");
    write(QStringLiteral("Resources/istruzioni.rtf"), manual);
    EXPECT_EQ(istruzioni(), manual);
    EXPECT_TRUE(x_istruzioni().loaded);
    write(QStringLiteral("Resources/istruzioni.rtf"), "{\\rtf1 nuovo}");
    EXPECT_EQ(istruzioni(), manual);
}

TEST_F(Istruzioni, MissingManualIsNotLookedForAgain)
{
    EXPECT_EQ(istruzioni(), QByteArray());
    EXPECT_TRUE(x_istruzioni().loaded);
    write(QStringLiteral("Resources/istruzioni.rtf"), "{\\rtf1 tardi}");
    EXPECT_EQ(istruzioni(), QByteArray());
}
