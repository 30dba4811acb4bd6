// The shipped manual, read as the help window reads it.

#include "richtext/rtf_reader.h"

#include "support/test_files.h"

#include <gtest/gtest.h>

using namespace lumetra;

TEST(Manual, TitleCentredHeadingsBoldAndLargerTextClean)
{
    StyledText t;
    SetRTFData(t, test::readBytes(QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/istruzioni.rtf")));
    const float body = 16;
    const StyleRun title = t.styleRun(0);
    EXPECT_EQ(title.text, QStringLiteral("Lumetra"));
    EXPECT_TRUE(title.style.bold && title.style.size > body);
    EXPECT_EQ(t.ParagraphAlignment(0), 2);
    EXPECT_EQ(t.ParagraphAlignment(1), 2);

    // The chapters, numbered in order, each a bold and larger run of its own at the left.
    QStringList headings;
    int chapter = 0;
    for (int i = 0, position = 0; i < t.StyleRunCount(); position += int(t.styleRun(i++).text.size())) {
        const StyleRun r = t.styleRun(i);
        if (position < t.paragraph(2).startPos)
            continue; // the title and its subtitle
        EXPECT_TRUE(r.style.size == body || r.style.bold) << r.text.toStdString();
        if (r.style.size > body && r.style.bold) {
            headings << r.text;
            if (r.text.startsWith(QString::number(chapter + 1) + QStringLiteral(". ")))
                ++chapter;
        }
    }
    EXPECT_EQ(chapter, 14);
    EXPECT_EQ(headings.size(), 15); // and "Indice"
    for (int p = 2; p < t.ParagraphCount(); ++p)
        EXPECT_EQ(t.ParagraphAlignment(p), 1) << p;

    const QString text = t.Text();
    for (const char *words : {"città", "più", "«MANCA UTENTE!»", "Importo in €", "Manuale d’uso — versione 1.5.1",
                              "13. La tariffa", "D.M. 8 aprile 2004, n. 127", "tariffe_database.txt"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(words))) << words;
    for (QChar c : text)
        EXPECT_TRUE(c == QChar(13) || (c >= QChar(32) && c != QChar(0xFFFD))) << int(c.unicode());
    for (char c : {'\\', '{', '}'})
        EXPECT_FALSE(text.contains(QLatin1Char(c)));
}
