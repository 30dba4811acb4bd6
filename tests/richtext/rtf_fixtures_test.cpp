// Documents written by LibreOffice Writer (sources and the script that makes
// them: tests/data/rtf/sources, scripts/make-rtf-fixtures.sh). Every stretch of
// their text sits in a group of its own; the document's fonts, colours and
// alignments reach it, while the style sheet, the information group and the
// pictures are dropped. LibreOffice writes each accented letter twice, as \u
// and as its fallback \'hh, and both stay, as they do in any foreign file.

#include "richtext/rtf_reader.h"

#include "support/rtf_describe.h"
#include "support/test_files.h"

#include <gtest/gtest.h>

using namespace lumetra;

TEST(RtfFixtures, LibreOfficeDocumentsRead)
{
    struct Case {
        const char *file;
        const char *runs;
        const char *alignments;
        std::vector<const char *> dropped; // texts of the groups that must not show
    };
    const Case cases[] = {
        {"lettera.rtf",
         "<b @12 Arial>Nota spese|<@12 Arial>¶Egregio cliente, le invio la |<b @12 Arial>parcella|"
         "<@12 Arial> per la causa |<i @12 Arial>Rossi contro Bianchi|<@12 Arial>.¶Il valore della controversia "
         "èè di |<@16 Arial>25.900 \u0080|<@12 Arial>, |<u @12 Arial>giàà|<@12 Arial> versato in parte.¶|"
         "<i @10 Liberation Serif>Cittàà, lìì 16/11/2011¶",
         "2113",
         {"Normal", "Chiusa", "Lettera al cliente", "Studio di prova", "tariffa", "Times New Roman", "LibreOffice"}},
        {"promemoria.rtf",
         "<b>Promemoria|¶Voci |<b>in grassetto|, |<i>in corsivo| e |<@18>grandi|: perchéé, piùù, èè.¶"
         "Testo dopo l'immagine.¶",
         "211",
         {"Documento con immagine", "Studio di prova", "89504e47", "pngblip", "Heading", "HTML"}},
        {"testo.rtf",
         "<@10 Liberation Mono>Prima riga semplice.¶Seconda riga: cittàà, perchéé, \u0080 10.¶¶"
         "Dopo una riga vuota {graffe} e \\ barra.¶",
         "1111",
         {"Preformatted", "Default"}},
    };
    for (const auto &c : cases) {
        StyledText t;
        SetRTFData(t, test::readBytes(test::dataPath(QStringLiteral("rtf/") + QString::fromUtf8(c.file))));
        EXPECT_EQ(test::describe(t), QString::fromUtf8(c.runs)) << c.file;
        EXPECT_EQ(test::alignments(t), QString::fromUtf8(c.alignments)) << c.file;
        for (const char *text : c.dropped)
            EXPECT_FALSE(t.Text().contains(QString::fromUtf8(text))) << c.file << ": " << text;
    }
}
