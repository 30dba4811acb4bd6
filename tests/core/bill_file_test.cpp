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

QByteArray salva(const QString &field1, const QString &field2, const QString &value = {})
{
    return scriviParcella({field1, field2, value, false, false}, tableOf(0));
}

} // namespace

TEST(BillFile, WorkedExampleIsWrittenByteForByteAndReadBack)
{
    const TestaParcella testa{cr({"Causa Comune di Milano contro Tizio e Caio.", "Oggetto: Causa etc. etc."}),
                              cr({"Spett.le", "Comune di Siracusa", "Piazza Duomo, 1"}), u("25000.00"), true, true};
    Tabella dati = tableOf(3);
    const std::tuple<int, int, const char *> cells[] = {
        {2, 0, "2"}, {2, 53, "95"}, {2, 54, "3"}, {2, 55, "Studio della controversia"}, {3, 0, "-150"}, {3, 53, "150"}};
    for (const auto &[r, c, text] : cells)
        dati.at(r, c) = u(text);
    const QByteArray written = scriviParcella(testa, dati);
    EXPECT_EQ(written, test::readBytes(test::dataPath(QStringLiteral("parcella/esempio.qX9"))));

    Tabella back = tableOf(3);
    const LetturaParcella letta = apriParcella(written, back);
    ASSERT_EQ(letta.esito, EsitoLettura::Letta);
    EXPECT_EQ(scriviParcella(letta.testa, back), written); // the head and every row came back
}

TEST(BillFile, OptionsCodeReadAndWrittenBack)
{
    const std::tuple<const char *, bool, bool, const char *> cases[] = {
        {"0", false, false, "0"},  {"20", true, false, "20"}, {"40", false, true, "40"},  {"60", true, true, "60"},
        {"10", false, false, "0"}, {"", false, false, "0"},   {"60 ", false, false, "0"},
    };
    for (const auto &[code, iva, rite, written] : cases) {
        Tabella none;
        const QByteArray bytes = QByteArray("***PARCELLA***\r**********\r**********\r\r") + code + '\r';
        const TestaParcella testa = apriParcella(bytes, none).testa;
        EXPECT_EQ(std::pair(testa.iva, testa.rite), std::pair(iva, rite)) << code;
        EXPECT_TRUE(scriviParcella(testa, none).endsWith(QByteArray("\r") + written + '\r')) << code;
    }
}

TEST(BillFile, ReadingQuirks)
{
    // Empty heading and client; the header is compared case-blind.
    Tabella none;
    const LetturaParcella empty = apriParcella(QByteArray("***parcella***\r\r**********\r\r**********\r\r60\r"), none);
    ASSERT_EQ(empty.esito, EsitoLettura::Letta);
    EXPECT_EQ(empty.testa.editField1 + empty.testa.editField2, QString());

    // What is no bill, or ends inside a section, leaves the table as it was.
    const std::pair<const char *, EsitoLettura> esiti[] = {
        {"PARCELLA\r", EsitoLettura::NonParcella},
        {"", EsitoLettura::NonParcella},
        {"***PARCELLA***\rtesto\r", EsitoLettura::SenzaFine},
        {"***PARCELLA***\ra\r**********\rb\r", EsitoLettura::SenzaFine},
    };
    for (const auto &[bytes, esito] : esiti) {
        Tabella dati = tableOf(2);
        dati.at(1, 0) = u("2");
        EXPECT_EQ(apriParcella(QByteArray(bytes), dati).esito, esito) << bytes;
        EXPECT_EQ(dati.at(1, 0), u("2"));
    }

    // Fewer rows than the table: the rest come back empty. More: the tail is unread.
    const QByteArray shortFile("***PARCELLA***\r**********\r**********\r10\r0\r1\r0\r1\r\r");
    Tabella dati = tableOf(2);
    apriParcella(shortFile, dati);
    EXPECT_EQ(QStringList({dati.at(1, 0), dati.at(1, 54), dati.at(2, 0), dati.at(2, 54)}),
              (QStringList{u("1"), u("1"), {}, {}}));

    // A heading line that is the terminator itself ends the section early.
    const LetturaParcella shifted = apriParcella(salva(cr({"prima", "**********", "dopo"}), {}), none);
    EXPECT_EQ(shifted.testa.editField1, u("prima"));
    EXPECT_EQ(shifted.testa.editField2, u("dopo"));

    // Mac Roman text comes back; a widget's LF becomes the file's line end; a
    // line break in a one-line field is written as a blank, so no line shifts.
    const QString text = u("Perizia sull'unità immobiliare — € 5");
    const LetturaParcella back = apriParcella(salva(text, u("riga 1\nriga 2"), u("1000\r\n50")), none);
    EXPECT_EQ(back.testa.editField1, text);
    EXPECT_EQ(back.testa.editField2, cr({"riga 1", "riga 2"}));
    EXPECT_EQ(back.testa.editQuantum, u("1000  50"));
}

TEST(BillFile, GarbageNeverCrashes)
{
    QRandomGenerator rng(20111116); // a fixed corpus, the same at every run
    for (int round = 0; round < 100; ++round) {
        QByteArray junk(int(rng.bounded(1, round < 95 ? 4096 : 1024 * 1024)), 0);
        for (char &c : junk)
            c = char(rng.bounded(256));
        if (round % 2 == 0) // with the sections terminated, the reader gets to the rows
            junk = "***PARCELLA***\r" + junk.left(junk.size() / 3) + "\r**********\r\r**********\r" + junk;
        Tabella dati = tableOf(50);
        apriParcella(junk, dati);
        EXPECT_EQ(dati.contatore(), 50);
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
