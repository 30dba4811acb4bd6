#include "core/bill_file.h"
#include "core/file_types.h"
#include "support/test_files.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

using namespace lumetra;

namespace {

QString u(const char *s) { return QString::fromUtf8(s); }

// Lines joined as the window's fields keep them, with character 13.
QString cr(std::initializer_list<const char *> lines)
{
    QStringList out;
    for (const char *line : lines)
        out << u(line);
    return out.join(QChar(13));
}

Tabella tableOf(int rows)
{
    Tabella t;
    for (int i = 0; i < rows; ++i)
        t.addRow();
    return t;
}

QByteArray salva(const QString &field1, const QString &field2)
{
    TestaParcella testa;
    testa.editField1 = field1;
    testa.editField2 = field2;
    return scriviParcella(testa, tableOf(0));
}

} // namespace

TEST(BillFile, WorkedExampleIsWrittenByteForByteAndReadBack)
{
    TestaParcella testa;
    testa.editField1 = cr({"Causa Comune di Milano contro Tizio e Caio.", "Oggetto: Causa etc. etc."});
    testa.editField2 = cr({"Spett.le", "Comune di Siracusa", "Piazza Duomo, 1"});
    testa.editQuantum = QStringLiteral("25000.00");
    testa.iva = testa.rite = true;
    Tabella dati = tableOf(3);
    const std::tuple<int, int, const char *> cells[] = {
        {2, 0, "2"}, {2, 53, "95"}, {2, 54, "3"}, {2, 55, "Studio della controversia"}, {3, 0, "-150"}, {3, 53, "150"}};
    for (const auto &[r, c, text] : cells)
        dati.at(r, c) = u(text);
    const QByteArray written = scriviParcella(testa, dati);
    EXPECT_EQ(written, test::readBytes(test::dataPath(QStringLiteral("parcella/esempio.qX9"))));

    const LetturaParcella letta = leggiParcella(written, 3);
    ASSERT_EQ(letta.esito, EsitoLettura::Letta);
    EXPECT_EQ(scriviParcella(letta.testa, dati), written); // every field of the head came back
    Tabella back = tableOf(3);
    applicaRighe(letta.righe, back);
    for (int r = 1; r <= 3; ++r)
        for (int c : {0, 53, 54, 55})
            EXPECT_EQ(back.at(r, c), dati.at(r, c)) << r << "," << c;
}

TEST(BillFile, OptionsCode)
{
    const std::tuple<const char *, bool, bool> cases[]
        = {{"0", false, false},  {"20", true, false}, {"40", false, true},  {"60", true, true},
           {"10", false, false}, {"", false, false},  {"60 ", false, false}};
    for (const auto &[code, iva, rite] : cases) {
        bool readIva = true, readRite = true;
        leggiCodiceOpzioni(u(code), readIva, readRite);
        EXPECT_EQ(std::pair(readIva, readRite), std::pair(iva, rite)) << code;
    }
    EXPECT_EQ(codiceOpzioni(true, false) + codiceOpzioni(false, true) + codiceOpzioni(true, true), u("204060"));
}

TEST(BillFile, ReadingQuirks)
{
    // Empty heading and client; the header is compared case-blind.
    const LetturaParcella empty = leggiParcella(QByteArray("***parcella***\r\r**********\r\r**********\r\r60\r"), 0);
    ASSERT_EQ(empty.esito, EsitoLettura::Letta);
    EXPECT_EQ(empty.testa.editField1 + empty.testa.editField2, QString());
    const std::pair<const char *, EsitoLettura> esiti[] = {
        {"PARCELLA\r", EsitoLettura::NonParcella},
        {"", EsitoLettura::NonParcella},
        {"***PARCELLA***\rtesto\r", EsitoLettura::SenzaFine},
        {"***PARCELLA***\ra\r**********\rb\r", EsitoLettura::SenzaFine},
    };
    for (const auto &[bytes, esito] : esiti)
        EXPECT_EQ(leggiParcella(QByteArray(bytes), 2).esito, esito) << bytes;

    // Fewer rows than the table: the rest come back empty. More: the tail is unread.
    const QByteArray shortFile("***PARCELLA***\r**********\r**********\r10\r0\r1\r0\r1\r\r");
    const LetturaParcella s = leggiParcella(shortFile, 2);
    ASSERT_EQ(s.righe.size(), 2u);
    EXPECT_EQ(s.righe[0], (StatoRiga{u("1"), u("0"), u("1"), {}}));
    EXPECT_EQ(s.righe[1], StatoRiga{});
    EXPECT_EQ(leggiParcella(shortFile, 1).righe.size(), 1u);

    // A heading line that is the terminator itself ends the section early.
    const LetturaParcella shifted = leggiParcella(salva(cr({"prima", "**********", "dopo"}), {}), 0);
    EXPECT_EQ(shifted.testa.editField1, QStringLiteral("prima"));
    EXPECT_EQ(shifted.testa.editField2, QStringLiteral("dopo"));

    // Mac Roman text comes back; a widget's LF becomes the file's line end.
    const QString text = u("Perizia sull'unità immobiliare — € 5");
    const LetturaParcella back = leggiParcella(salva(text, QStringLiteral("riga 1\nriga 2")), 0);
    EXPECT_EQ(back.testa.editField1, text);
    EXPECT_EQ(back.testa.editField2, cr({"riga 1", "riga 2"}));
}

TEST(BillFile, GarbageNeverCrashes)
{
    auto *rng = QRandomGenerator::global();
    for (int round = 0; round < 200; ++round) {
        QByteArray junk(int(rng->bounded(1, round < 190 ? 4096 : 3 * 1024 * 1024)), 0);
        for (char &c : junk)
            c = char(rng->bounded(256));
        if (round % 2 == 0) // with the sections terminated, the reader gets to the rows
            junk = "***PARCELLA***\r" + junk.left(junk.size() / 3) + "\r**********\r\r**********\r" + junk;
        const LetturaParcella r = leggiParcella(junk, 50);
        if (r.esito == EsitoLettura::Letta) {
            EXPECT_EQ(r.righe.size(), 50u);
        }
    }
}

TEST(FileTypes, ProposedNames)
{
    const std::tuple<const char *, const char *, const char *> cases[] = {
        {"", "Parcella.qX9", "Parcella.rtf"},
        {"Bozza.qX9", "Bozza.qX9", "Bozza.rtf"},
        {"Bozza", "Bozza.qX9", "Bozza.rtf"},
        {"Causa.QX9", "Causa.QX9", "Causa.rtf"},
        {"Causa.old", "Causa.old.qX9", "Causa.old.rtf"},
        {"qX9", "qX9.qX9", "qX9.rtf"},
        {".qx9", ".qx9", ".rtf"},
    };
    for (const auto &[nome, bill, rtf] : cases) {
        EXPECT_EQ(nomeProposto(u(nome)), u(bill)) << nome;
        EXPECT_EQ(nomePropostoRtf(u(nome)), u(rtf)) << nome;
    }
}
