// SPDX-License-Identifier: GPL-3.0-or-later
// The tariff generator of tools/tariffa, and the tariff the program ships: D.M. 127/2004 in
// Resources/tariffe_database.txt, generated from tools/tariffa/tariffa_2004.tsv.

#include "core/files.h"
#include "core/tariff.h"
#include "core/text_functions.h"
#include "editor/categories.h"
#include "support/test_files.h"
#include "tariffa/sorgente_tariffa.h"

#include <gtest/gtest.h>

using namespace lumetra;
using lumetra::test::readBytes;
using lumetra::test::u;

TEST(SorgenteTariffa, RecordFaults)
{
    // '~' stands for "Diritti|Altro|Voce|" and '#' for "|> 0|1|2|INDET.|1|2|IMPORT.|1|2"; an empty fault: sound.
    const std::pair<const char *, const char *> cases[] = {
        {"~|0|10|20#", ""},
        {"~|0|1|2|> 0|0.02|0,03|INDET.|1|2|IMPORT.|1|2", "colonna 8: minimo non numerico \"0.02\""},
        {"~|1.600|1|2#", "colonna 5: limite non valido \"1.600\""},
        {"~|1600|1|2|600|1|2#", "colonna 8: limite non crescente"},
        {"Diritti|Altro|Voce → altra||0|1|2#", "la colonna 3 ha caratteri che Mac Roman non ha"},
    };
    for (const auto &[columns, fault] : cases) {
        const QString record = u(columns)
                                   .replace(QLatin1Char('~'), u("Diritti|Altro|Voce|"))
                                   .replace(QLatin1Char('#'), u("|> 0|1|2|INDET.|1|2|IMPORT.|1|2"));
        const QStringList faults = difettiRecord(record.split(QLatin1Char('|')));
        EXPECT_TRUE(*fault ? faults.contains(u(fault)) : faults.isEmpty())
            << record.toStdString() << ": " << faults.join(QStringLiteral("; ")).toStdString();
    }
}

TEST(SorgenteTariffa, FileBytesLoadBackAsTheTable)
{
    // A byte order mark, a CR LF line, a blank line and trailing empty fields, as a spreadsheet may save them.
    const QByteArray row = "Diritti\tAltro\tCaff\xc3\xa0\t\xe2\x82\xac 5\t600\t6\t6\t> 600\t0,02\t0,03\tINDET.\t0\t0\t"
                           "IMPORT.\t0\t0";
    const FileTariffe file = generaFileTariffe("\xef\xbb\xbf"
                                               "categoria\tsottocategoria\tvoce\tnota\tlimite1\r\n\n"
                                               + row + "\t\t\n");
    ASSERT_TRUE(file.errori.isEmpty()) << file.errori.join(QStringLiteral("; ")).toStdString();
    EXPECT_EQ(file.bytes,
              "Diritti\nAltro\nCaff\x88\n\xdb 5\n600\n6\n6\n> 600\n0,02\n0,03\nINDET.\n0\n0\n"
              "IMPORT.\n0\n0\n**********\n");
    const Tabella dati = caricaTabella(file.bytes);
    EXPECT_DOUBLE_EQ(CDbl(dati.at(1, cerca_scaglione(dati, 1, 1000, Prestabilito) + 2)), 0.03);
    // Faults name the line, and nothing is written.
    const FileTariffe bad = generaFileTariffe("categoria\tvoce\n\n" + QByteArray(row).replace("> 600", "6"));
    EXPECT_TRUE(bad.bytes.isEmpty() && bad.errori.contains(u("riga 3: colonna 8: limite non crescente")));
}

TEST(Tariffa2004, ShippedFileIsSoundAndWhatTheGeneratorMakesOfTheTable)
{
    const FileTariffe file
        = generaFileTariffe(readBytes(QStringLiteral(LUMETRA_SOURCE_DIR "/tools/tariffa/tariffa_2004.tsv")));
    ASSERT_TRUE(file.errori.isEmpty()) << file.errori.join(QLatin1Char('\n')).toStdString();
    const QByteArray shipped = readBytes(QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/tariffe_database.txt"));
    EXPECT_TRUE(file.bytes == shipped) << "Resources/tariffe_database.txt is out of date: run `ninja aggiorna_tariffa`";

    // Every row can be listed and keeps the bill's pre-sets. A figure of 1 or less multiplies the value of the
    // dispute: only bands by amount may hold one.
    const Tabella dati = caricaTabella(shipped);
    QStringList voci;
    for (int r = 1; r <= dati.contatore(); ++r) {
        const qsizetype i = vociCategoria().indexOf(dati.at(r, 1));
        ASSERT_GE(i, 2) << r; // past "SELEZIONA" and the divider
        EXPECT_TRUE(sottocategorie(int(i)).voci.contains(dati.at(r, 2))) << r << " " << dati.at(r, 2).toStdString();
        EXPECT_EQ(dati.at(r, kColValore) + dati.at(r, kColQuantita) + dati.at(r, kColNome), QStringLiteral("01")) << r;
        voci << dati.at(r, 1) + QLatin1Char('/') + dati.at(r, 3);
        for (int c = kColPrimaFascia; c <= 50 && !dati.at(r, c).isEmpty(); c += 3) {
            const bool perImporto = dati.at(r, kColPrimaFascia) != QStringLiteral("0")
                && dati.at(r, c) != QStringLiteral("INDET.") && dati.at(r, c) != QStringLiteral("IMPORT.");
            for (double figura : {CDbl(dati.at(r, c + 1)), CDbl(dati.at(r, c + 2))})
                EXPECT_TRUE(perImporto || figura == 0 || figura > 1) << r << " c=" << c;
        }
    }
    // Items the program looks for by name.
    for (const char *voce :
         {"Spese/Marca da bollo", "Acconti/Acconto da richiedere", "Acconti/Acconto già percepito, da detrarre"})
        EXPECT_EQ(voci.count(u(voce)), 1) << voce;
}

// Figures of the decree's tables, copied from an independent reading of them and not from
// tools/tariffa/tariffa_2004.tsv, so that a transcription slip in that table cannot pass by being regenerated.
// Each is looked up as the bill looks it up: the shipped file through the program's loader, the band by value
// and mode.
TEST(Tariffa2004, FiguresOfTheDecree)
{
    const char *og = "Onorari giudiziali", *gdp = "Giudici di pace",
               *trib = "Tribunale, organi equiparati e organi di giustizia tributaria",
               *cogn = "Processo di cognizione e procedimenti speciali e camerali", *strag = "Ambito stragiudiziale",
               *cons = "Prestazioni di consulenza", *assist = "Prestazioni di assistenza";
    const struct {
        const char *categoria, *sottocategoria, *voce;
        double valore;
        int modo;
        double minimo, massimo;
    } cases[] = {
        // Civil cases before the justice of the peace: a low band, its upper edge, and the band past it.
        {og, gdp, "Per l'intero giudizio", 500, Prestabilito, 55, 190},
        {og, gdp, "Studio della controversia", 1000, Prestabilito, 55, 145},
        {og, gdp, "Discussione in pubblica udienza o in camera di consiglio", 2600, Prestabilito, 75, 170},
        {og, gdp, "Discussione in pubblica udienza o in camera di consiglio", 2601, Prestabilito, 0, 0},
        // The ordinary court: a middle band, the open last band's coefficients, the two undetermined values.
        {og, trib, "Studio della controversia", 40000, Prestabilito, 210, 835},
        {og, trib, "Studio della controversia", 6000000, Prestabilito, 0.000407, 0.000975},
        {og, trib, "Redazione delle difese (comparse conclusionali e repliche)", 0, Indeterminabile, 410, 2440},
        {og, trib, "Redazione delle difese (comparse conclusionali e repliche)", 0, Importante, 410, 4880},
        // Diritti are fixed amounts, also in the open last band.
        {"Diritti", cogn, "Posizione e archivio", 100, Prestabilito, 23, 23},
        {"Diritti", cogn, "Per la disamina", 30000, Prestabilito, 19, 19},
        {"Diritti", cogn, "Posizione e archivio", 6000000, Prestabilito, 220, 220},
        // Criminal cases: figures that do not depend on the value.
        {"Ambito penale", "Giudice di pace", "Esame e studio", 10000, Prestabilito, 20, 35},
        {"Ambito penale", "Magistrature superiori", "Esame e studio", 0, Indeterminabile, 75, 150},
        // Out of court.
        {strag, cons, "Pareri che importino informativa e studio particolare - pareri scritti", 20000, Prestabilito,
         185, 755},
        {strag, cons, "Pareri che importino informativa e studio particolare - pareri scritti", 6000000, Prestabilito,
         0.000296, 0.00065},
        {strag, assist, "Esame e studio della pratica", 1600, Prestabilito, 70, 220},
    };
    const Tabella dati
        = caricaTabella(readWholeFile(QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/tariffe_database.txt")));
    for (const auto &c : cases) {
        int r = 0;
        for (int i = 1; i <= dati.contatore(); ++i)
            if (dati.at(i, 1) == u(c.categoria) && dati.at(i, 2) == u(c.sottocategoria) && dati.at(i, 3) == u(c.voce))
                r = i;
        ASSERT_GT(r, 0) << c.voce;
        const int col = cerca_scaglione(dati, r, c.valore, c.modo);
        EXPECT_EQ(std::pair(CDbl(dati.at(r, col + 1)), CDbl(dati.at(r, col + 2))), std::pair(c.minimo, c.massimo))
            << c.sottocategoria << " / " << c.voce << " at " << c.valore << " mode " << c.modo;
    }
}
