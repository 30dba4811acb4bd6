#include "core/failure.h"
#include "editor/bill.h"
#include "tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

TEST(BillView, CellKindsAndTheTotalRow)
{
    Tabella dati = tariffaPiccola();
    EXPECT_EQ(vistaParcella(dati, u("3000"), Prestabilito).righe.at(1)[ParTotale].testo, u("0"));

    dati.at(kEsameStudio, kColStato) = u("2");
    dati.at(kNotifica, kColStato) = u("-20");
    dati.at(kNotifica, kColNome) = u("Notifiche a mezzo posta");
    const VistaParcella v = vistaParcella(dati, u("3000"), Prestabilito);
    ASSERT_EQ(v.righe.size(), 4u);
    QString kinds;
    for (const Cella &c : v.righe[1])
        kinds += QString::number(c.tipo) + QString::number(c.allineamento) + u(c.grassetto && c.corsivo ? "B" : "")
            + u(c.spunta ? "V" : "") + u(" ");
    EXPECT_EQ(kinds, u("12 30 12 32B 13 23V "));
    EXPECT_EQ(v.righe[0][ParVoce].testo, u("Notifiche a mezzo posta"));
    EXPECT_EQ(v.righe[1][ParVoce].testo, u("Esame e studio della pratica")); // never with " (*)"
    EXPECT_EQ(v.righe[2], RigaParcella{});
    EXPECT_EQ(v.righe[3][ParImporto], (Cella{u("TOTALE:"), TipoTesto, AllineaDestra}));
    EXPECT_EQ(v.righe[3][ParTotale], (Cella{u("320"), TipoTesto, AllineaDestra, false, true}));
}

TEST(BillView, UnitValuesAndTheValueOfTheDispute)
{
    struct Case {
        int row;
        const char *stato, *quantita, *valore;
        int modo;
        const char *shown, *col53; // shown: coefficient|amount|total
    };
    const Case cases[] = {
        {kEsameDocumenti, "2", "1", "8000", Prestabilito, "0,02|160|160", "0,02"}, // max past the limit
        {kEsameDocumenti, "3", "1", "8000", Prestabilito, "0,015|120|120", "0,015"},
        {kEsameDocumenti, "-1", "1", "8000", Prestabilito, "1|8000|8000", "1"}, // own 1 is a coefficient
        {kEsameDocumenti, "-1,01", "1", "8000", Prestabilito, "1|1,01|1,01", "1,01"}, // own 1,01 is euro
        {kEsameDocumenti, "-0,5", "1", "", Prestabilito, "0,5|0|0", "0,5"},
        {kEsameDocumenti, "1", "3", "Importante", Importante, "1|90|270", "90"},
        {kEsameDocumenti, "2", "due", "3000", Prestabilito, "1|60|0", "60"}, // letters as quantity
        {kAccontoPercepito, "-500", "2", "3000", Prestabilito, "1|-500|-1000", "500"}, // advance received
        // The band search reads the value with Val, the amounts with CDbl; a
        // point typed for the cents is the decimal mark to both.
        {kEsameDocumenti, "-0,5", "1", "12.5", Prestabilito, "0,5|6,25|6,25", "0,5"},
        {kEsameDocumenti, "2", "1", "12000.50", Prestabilito, "0,02|240,01|240,01", "0,02"},
        {kEsameDocumenti, "2", "1", "150.000", Prestabilito, "1|20|20", "20"}, // the band of 150
        {kEsameDocumenti, "-1.5", "1", "3000", Prestabilito, "1|1,5|1,5", "1,5"}, // euro, no coefficient
        {kEsameDocumenti, "-50", "1.5", "3000", Prestabilito, "1|50|75", "50"},
    };
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        dati.at(c.row, kColStato) = u(c.stato);
        dati.at(c.row, kColQuantita) = u(c.quantita);
        const VistaParcella v = vistaParcella(dati, u(c.valore), c.modo);
        ASSERT_EQ(v.righe.size(), 3u) << c.stato;
        const auto &r = v.righe[0];
        EXPECT_EQ(r[ParCoefficiente].testo + u("|") + r[ParImporto].testo + u("|") + r[ParTotale].testo, u(c.shown))
            << c.stato << " " << c.valore;
        EXPECT_EQ(v.righe[2][ParTotale].testo, r[ParTotale].testo) << c.stato;
        EXPECT_EQ(dati.at(c.row, kColValore), u(c.col53)) << c.stato;
    }
}

TEST(BillView, UnknownStatesKeepColumn53AndBrokenRowsFail)
{
    Tabella dati = tariffaPiccola();
    dati.at(kEsameDocumenti, kColStato) = u("4");
    dati.at(kEsameDocumenti, kColValore) = u("33");
    EXPECT_EQ(vistaParcella(dati, u("3000"), Prestabilito).righe.at(0)[ParImporto].testo, u("33"));
    EXPECT_EQ(dati.at(kEsameDocumenti, kColValore), u("33"));

    Tabella rotta = tabella({{u("Spese"), u("Spese"), u("Rotta"), QString(), u("100"), u("1"), u("2")}});
    rotta.at(1, kColStato) = u("-5");
    EXPECT_NO_THROW(vistaParcella(rotta, u("50"), Prestabilito));
    EXPECT_THROW(vistaParcella(rotta, u("500"), Prestabilito), UnhandledFailure);
}

TEST(Pick, WritesStateAndUnitValue)
{
    struct Case {
        int casella;
        const char *cell, *stato, *col53;
    };
    const Case cases[] = {{RicMin, "30", "1", "30"},
                          {RicMed, "15,5", "3", "15,5"},
                          {RicPers, "", "-", ""},
                          {RicPers, "-5", "--5", "-5"},
                          {-1, "60", "0", "0"}};
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        dati.at(kEsameDocumenti, kColQuantita) = u("3");
        dati.at(kEsameDocumenti, kColNome) = u("Nome");
        scegliVoce(dati, kEsameDocumenti, c.casella, u(c.cell));
        EXPECT_EQ(dati.at(kEsameDocumenti, kColStato) + u("/") + dati.at(kEsameDocumenti, kColValore),
                  u(c.stato) + u("/") + u(c.col53));
        EXPECT_EQ(dati.at(kEsameDocumenti, kColQuantita) + dati.at(kEsameDocumenti, kColNome), u("3Nome"));
    }
}
