#include "core/bill_file.h"
#include "core/encodings.h"
#include "support/test_files.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

using namespace lumetra;

namespace {

const QChar CR(13);

Tabella tableOf(int rows)
{
    Tabella t;
    for (int i = 0; i < rows; ++i)
        t.addRow();
    return t;
}

TestaParcella esempioTesta()
{
    TestaParcella testa;
    testa.editField1 = QStringLiteral("Causa Comune di Milano contro Tizio e Caio.") + CR
        + QStringLiteral("Oggetto: Causa etc. etc.");
    testa.editField2 = QStringLiteral("Spett.le") + CR + QStringLiteral("Comune di Siracusa") + CR
        + QStringLiteral("Piazza Duomo, 1");
    testa.editQuantum = QStringLiteral("25000.00");
    testa.iva = true;
    testa.rite = true;
    return testa;
}

} // namespace

TEST(BillFile, WorkedExampleIsWrittenByteForByte)
{
    Tabella dati = tableOf(3);
    dati.at(2, 0) = QStringLiteral("2");
    dati.at(2, 53) = QStringLiteral("95");
    dati.at(2, 54) = QStringLiteral("3");
    dati.at(2, 55) = QStringLiteral("Studio della controversia");
    dati.at(3, 0) = QStringLiteral("-150");
    dati.at(3, 53) = QStringLiteral("150");
    const QByteArray written = scriviParcella(esempioTesta(), dati);
    EXPECT_EQ(written, test::readBytes(test::dataPath(QStringLiteral("parcella/esempio.qX9"))));
    EXPECT_FALSE(written.contains('\n'));
    EXPECT_EQ(scriviParcella(esempioTesta(), dati), written); // saving twice, same bytes

    const LetturaParcella letta = leggiParcella(written, 3);
    ASSERT_EQ(letta.esito, EsitoLettura::Letta);
    EXPECT_EQ(letta.testa.editField1, esempioTesta().editField1);
    EXPECT_EQ(letta.testa.editField2, esempioTesta().editField2);
    EXPECT_EQ(letta.testa.editQuantum, QStringLiteral("25000.00"));
    EXPECT_TRUE(letta.testa.iva);
    EXPECT_TRUE(letta.testa.rite);
    Tabella back = tableOf(3);
    applicaRighe(letta.righe, back);
    for (int r = 1; r <= 3; ++r)
        for (int c : {0, 53, 54, 55})
            EXPECT_EQ(back.at(r, c), dati.at(r, c)) << r << "," << c;
}

TEST(BillFile, OptionsCode)
{
    struct Case {
        const char *code;
        bool iva, rite;
    };
    const Case cases[] = {{"0", false, false}, {"20", true, false}, {"40", false, true}, {"60", true, true},
                          {"10", false, false}, {"", false, false}, {"60 ", false, false}};
    for (const auto &c : cases) {
        bool iva = true, rite = true;
        leggiCodiceOpzioni(QString::fromLatin1(c.code), iva, rite);
        EXPECT_EQ(iva, c.iva) << c.code;
        EXPECT_EQ(rite, c.rite) << c.code;
        if (QByteArray(c.code) != "10" && QByteArray(c.code) != "" && QByteArray(c.code) != "60 ") {
            EXPECT_EQ(codiceOpzioni(c.iva, c.rite), QString::fromLatin1(c.code));
        }
    }
}

TEST(BillFile, ReadingQuirks)
{
    // Empty heading and client: an empty line before each terminator.
    const LetturaParcella empty = leggiParcella(QByteArray("***parcella***\r\r**********\r\r**********\r\r60\r"), 0);
    ASSERT_EQ(empty.esito, EsitoLettura::Letta); // the header is compared case-blind
    EXPECT_EQ(empty.testa.editField1, QString());
    EXPECT_EQ(empty.testa.editField2, QString());

    EXPECT_EQ(leggiParcella(QByteArray("PARCELLA\r"), 2).esito, EsitoLettura::NonParcella);
    EXPECT_EQ(leggiParcella(QByteArray(), 2).esito, EsitoLettura::NonParcella);
    EXPECT_EQ(leggiParcella(QByteArray("***PARCELLA***\rtesto\r"), 2).esito, EsitoLettura::SenzaFine);
    EXPECT_EQ(leggiParcella(QByteArray("***PARCELLA***\ra\r**********\rb\r"), 2).esito, EsitoLettura::SenzaFine);

    // Fewer rows than the table: the rest come back empty. More: the tail is unread.
    const QByteArray shortFile("***PARCELLA***\r**********\r**********\r10\r0\r1\r0\r1\r\r");
    const LetturaParcella s = leggiParcella(shortFile, 2);
    ASSERT_EQ(s.righe.size(), 2u);
    EXPECT_EQ(s.righe[0][0], QStringLiteral("1"));
    EXPECT_EQ(s.righe[0][1], QStringLiteral("0"));
    EXPECT_EQ(s.righe[1], StatoRiga{});
    EXPECT_EQ(leggiParcella(shortFile, 1).righe.size(), 1u);

    // A heading line that is the terminator itself ends the section early.
    TestaParcella testa;
    testa.editField1 = QStringLiteral("prima") + CR + QStringLiteral("**********") + CR + QStringLiteral("dopo");
    const LetturaParcella shifted = leggiParcella(scriviParcella(testa, tableOf(0)), 0);
    EXPECT_EQ(shifted.testa.editField1, QStringLiteral("prima"));
    EXPECT_EQ(shifted.testa.editField2, QStringLiteral("dopo"));
}

TEST(BillFile, TextRoundTripsThroughMacRoman)
{
    TestaParcella testa;
    testa.editField1 = QString::fromUtf8("Perizia sull'unità immobiliare — € 5");
    testa.editField2 = QStringLiteral("riga 1\nriga 2"); // a widget's LF becomes the file's line end
    const LetturaParcella back = leggiParcella(scriviParcella(testa, tableOf(0)), 0);
    EXPECT_EQ(back.testa.editField1, testa.editField1);
    EXPECT_EQ(back.testa.editField2, QStringLiteral("riga 1") + CR + QStringLiteral("riga 2"));
}

TEST(BillFile, GarbageNeverCrashes)
{
    auto *rng = QRandomGenerator::global();
    for (int round = 0; round < 200; ++round) {
        QByteArray junk;
        const int size = int(rng->bounded(1, round < 190 ? 4096 : 3 * 1024 * 1024));
        junk.resize(size);
        for (char &c : junk)
            c = char(rng->bounded(256));
        if (round % 2 == 0) // with the sections terminated, the reader gets to the rows
            junk = "***PARCELLA***\r" + junk.left(size / 3) + "\r**********\r\r**********\r" + junk.mid(size / 3);
        const LetturaParcella r = leggiParcella(junk, 50);
        if (r.esito == EsitoLettura::Letta) {
            EXPECT_EQ(r.righe.size(), 50u);
        }
    }
}

#include "core/file_types.h"

TEST(FileTypes, ProposedNames)
{
    struct Case {
        const char *nome, *bill, *rtf;
    };
    const Case cases[] = {
        {"", "Parcella.qX9", "Parcella.rtf"},
        {"Bozza.qX9", "Bozza.qX9", "Bozza.rtf"},
        {"Bozza", "Bozza.qX9", "Bozza.rtf"},
        {"Causa.QX9", "Causa.QX9", "Causa.rtf"},
        {"Causa.old", "Causa.old.qX9", "Causa.old.rtf"},
        {"qX9", "qX9.qX9", "qX9.rtf"},
        {".qx9", ".qx9", ".rtf"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(nomeProposto(QString::fromUtf8(c.nome)), QString::fromUtf8(c.bill)) << c.nome;
        EXPECT_EQ(nomePropostoRtf(QString::fromUtf8(c.nome)), QString::fromUtf8(c.rtf)) << c.nome;
    }
    EXPECT_EQ(FileTypes::qRX9Lumetra().Extensions, QStringLiteral(".qX9"));
    EXPECT_EQ(FileTypes::TextRtf().filter(), QStringLiteral("text/rtf (*.rtf)"));
}
