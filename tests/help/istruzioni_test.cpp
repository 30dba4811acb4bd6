#include "core/paths.h"
#include "help/istruzioni.h"
#include "richtext/rtf_reader.h"

#include "support/test_files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace lumetra;
using namespace Qt::StringLiterals;

TEST(Istruzioni, ReadOnceARun)
{
    QTemporaryDir dir;
    QDir(dir.path()).mkpath(u"bin"_s);
    QDir(dir.path()).mkpath(u"Resources"_s);
    setExecutableFolder(dir.filePath(u"bin"_s));
    const QString path = dir.filePath(u"Resources/istruzioni.rtf"_s);

    // A missing manual is not looked for again.
    x_istruzioni() = {};
    EXPECT_EQ(istruzioni(), QByteArray());
    test::writeBytes(path, "{\\rtf1 tardi}");
    EXPECT_EQ(istruzioni(), QByteArray());

    // The bytes as they are, read at the first call only.
    const QByteArray manual("{\\rtf1 Citt\xe0\r\n}");
    test::writeBytes(path, manual);
    x_istruzioni() = {};
    EXPECT_EQ(istruzioni(), manual);
    test::writeBytes(path, "{\\rtf1 nuovo}");
    EXPECT_EQ(istruzioni(), manual);

    setExecutableFolder(QString());
    x_istruzioni() = {};
}

TEST(Istruzioni, ShippedManualReadsCleanWithItsChapters)
{
    StyledText t;
    SetRTFData(t, test::readBytes(QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/istruzioni.rtf")));
    EXPECT_EQ(t.StyleRun(0).text, u"Lumetra"_s);
    EXPECT_TRUE(t.StyleRun(0).style.bold && t.StyleRun(0).style.size > 16);
    EXPECT_EQ(t.ParagraphAlignment(0), 2);
    int chapter = 0; // numbered in order, each a bold and larger run of its own
    for (int i = 1; i < t.StyleRunCount(); ++i) {
        const StyleRun r = t.StyleRun(i);
        chapter += r.style.bold && r.style.size > 16 && r.text.startsWith(QString::number(chapter + 1) + u". "_s);
    }
    EXPECT_EQ(chapter, 14);
    const QString text = t.Text();
    for (const char *words : {"città", "«MANCA UTENTE!»", "Importo in €", "Manuale d’uso — versione 1.5.1"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(words))) << words;
    for (QChar c : text)
        EXPECT_TRUE(c == QChar(13) || (c >= QChar(32) && !QStringView(u"\\{}\uFFFD").contains(c))) << int(c.unicode());
}
