// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/bill_file.h"
#include "support/test_files.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

using namespace lumetra;
using lumetra::test::u;

namespace {

Tabella tableOf(int rows)
{
    Tabella t;
    for (int i = 0; i < rows; ++i)
        t.addRow();
    return t;
}

} // namespace

TEST(BillFile, WorkedExampleIsWrittenByteForByteAndReadBack)
{
    const TestaParcella testa{u("Causa Comune di Milano contro Tizio e Caio.\rOggetto: Causa etc. etc."),
                              u("Spett.le\rComune di Siracusa\rPiazza Duomo, 1"), u("25000.00"), true, true};
    Tabella dati = tableOf(3);
    const std::tuple<int, int, const char *> cells[] = {
        {2, 0, "2"}, {2, 53, "95"}, {2, 54, "3"}, {2, 55, "Studio della controversia"}, {3, 0, "-150"}, {3, 53, "150"}};
    for (const auto &[r, c, text] : cells)
        dati.at(r, c) = u(text);
    const QByteArray written = scriviParcella(testa, dati);
    EXPECT_EQ(written, test::readBytes(test::dataPath(QStringLiteral("parcella/esempio.qX9"))));
    Tabella back = tableOf(3);
    ASSERT_EQ(apriParcella(written, back).esito, EsitoLettura::Letta);
    EXPECT_EQ(scriviParcella(apriParcella(written, back).testa, back), written); // head and rows came back
}

TEST(BillFile, ReadingQuirks)
{
    // The header is compared case-blind; an empty heading and client come back empty; an options code that is
    // not 20, 40 or 60 clears both options.
    for (const auto &[code, iva, rite] : {std::tuple{"20", true, false}, {"40", false, true}, {"60 ", false, false}}) {
        Tabella none;
        const LetturaParcella l
            = apriParcella(QByteArray("***parcella***\r\r**********\r\r**********\r\r") + code + '\r', none);
        EXPECT_TRUE(l.esito == EsitoLettura::Letta && l.testa.editField1.isEmpty() && l.testa.editField2.isEmpty());
        EXPECT_EQ(std::pair(l.testa.iva, l.testa.rite), std::pair(iva, rite)) << code;
    }
    // Fewer rows than the table: the rest come back empty.
    Tabella dati = tableOf(2);
    apriParcella("***PARCELLA***\r**********\r**********\r10\r0\r1\r0\r1\r\r", dati);
    EXPECT_EQ(QStringList({dati.at(1, 0), dati.at(1, 54), dati.at(2, 0), dati.at(2, 54)}),
              (QStringList{u("1"), u("1"), {}, {}}));

    // Mac Roman text comes back; a widget's LF becomes the file's line end; a line break in a one-line field
    // is written as a blank, so no line shifts.
    const auto roundTrip = [](const char *field1, const char *field2, const char *value) {
        Tabella none;
        const TestaParcella t
            = apriParcella(scriviParcella({u(field1), u(field2), u(value), false, false}, none), none).testa;
        return QStringList{t.editField1, t.editField2, t.editQuantum};
    };
    EXPECT_EQ(roundTrip("l'unità — € 5", "riga 1\nriga 2", "1000\r\n50"),
              (QStringList{u("l'unità — € 5"), u("riga 1\rriga 2"), u("1000  50")}));
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
