// The shipped manual, read as the help window reads it.

#include "richtext/rtf_reader.h"

#include "support/test_files.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {

StyledText manual()
{
    StyledText t;
    SetRTFData(t, test::readBytes(QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/istruzioni.rtf")));
    return t;
}

float bodySize(const StyledText &t)
{
    // The size of most of the characters.
    std::map<float, int> count;
    for (int i = 0; i < t.StyleRunCount(); ++i)
        count[t.styleRun(i).style.size] += int(t.styleRun(i).text.size());
    return std::max_element(count.begin(), count.end(), [](auto a, auto b) { return a.second < b.second; })->first;
}

} // namespace

TEST(Manual, TitleCentredHeadingsBoldAndLarger)
{
    const StyledText t = manual();
    ASSERT_GT(t.ParagraphCount(), 100);
    const float body = bodySize(t);
    EXPECT_GE(body, 12);

    const StyleRun title = t.styleRun(0);
    EXPECT_EQ(title.text, QStringLiteral("Lumetra"));
    EXPECT_TRUE(title.style.bold);
    EXPECT_GT(title.style.size, body);
    EXPECT_EQ(t.ParagraphAlignment(0), 2);

    QStringList headings;
    for (int i = 0; i < t.StyleRunCount(); ++i) {
        const StyleRun r = t.styleRun(i);
        if (r.style.bold && r.style.size > body)
            headings << r.text;
    }
    const QStringList expected = {
        QStringLiteral("Lumetra"),
        QStringLiteral("Indice"),
        QStringLiteral("1. Per cominciare"),
        QStringLiteral("2. I dati dell’utente"),
        QStringLiteral("3. L’intestazione della parcella"),
        QStringLiteral("4. Le categorie e la ricerca"),
        QStringLiteral("5. Il valore della controversia"),
        QStringLiteral("6. Scegliere l’importo"),
        QStringLiteral("7. Quantità e nomi delle voci"),
        QStringLiteral("8. Gli acconti e il calcolatore"),
        QStringLiteral("9. I due documenti"),
        QStringLiteral("10. Le righe del riepilogo"),
        QStringLiteral("11. Registrare e riaprire le parcelle"),
        QStringLiteral("12. Copiare, stampare, registrare in RTF"),
        QStringLiteral("13. La tariffa"),
        QStringLiteral("14. I menu Modifica e Aiuto"),
    };
    EXPECT_EQ(headings, expected);
    // Headings stand at the left, each in a paragraph of its own.
    for (int p = 1; p < t.ParagraphCount(); ++p) {
        if (t.paragraph(p).startPos < 40)
            continue; // title and subtitle
        EXPECT_EQ(t.ParagraphAlignment(p), 1) << p;
    }
}

TEST(Manual, TextReadsClean)
{
    const QString text = manual().Text();
    for (const char *word : {"città", "è", "più", "«MANCA UTENTE!»", "Importo in €", "Manuale d’uso — versione 1.5.1",
                             "D.M. 8 aprile 2004, n. 127", "tariffe_database.txt", "Pers.", "Registra come..",
                             "Crea Nota Spese - Competenze", "Acconto già percepito, da detrarre"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(word))) << word;
    for (QChar c : text) {
        EXPECT_TRUE(c == QChar(13) || c >= QChar(32)) << int(c.unicode());
        EXPECT_NE(c, QChar(0xFFFD));
    }
    EXPECT_FALSE(text.contains(QLatin1Char('\\')));
    EXPECT_FALSE(text.contains(QLatin1Char('{')));
    EXPECT_FALSE(text.contains(QLatin1Char('}')));
}
