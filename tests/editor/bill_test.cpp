#include "core/failure.h"
#include "editor/bill.h"
#include "tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

// Rows of tariffa_piccola.txt.
constexpr int kNotifica = 1;        // Spese, all zero
constexpr int kEsameStudio = 4;     // Diritti: 1000 100-200, 10000 200-300, > 10000 0,02-0,03
constexpr int kEsameDocumenti = 6;  // Diritti: 1000 10-20, 5000 30-60, > 5000 0,01-0,02
constexpr int kStudioTribunale = 9; // Onorari: 5200 200-400, 25900 400-800
constexpr int kAccontoPercepito = 16;

QStringList colonna(const VistaParcella &v, int col)
{
    QStringList t;
    for (const auto &r : v.righe)
        t << r[size_t(col)].testo;
    return t;
}

} // namespace

TEST(BillView, WorkedExample)
{
    Tabella dati = tariffaPiccola();
    dati.at(kNotifica, kColStato) = u("-50");
    dati.at(kNotifica, kColQuantita) = u("2");
    dati.at(kEsameStudio, kColStato) = u("1");
    dati.at(kStudioTribunale, kColStato) = u("2");
    dati.at(kAccontoPercepito, kColStato) = u("-500");
    const VistaParcella v = vista_parcella(dati, u("10000"), Prestabilito);

    EXPECT_EQ(colonna(v, ParRif), (QStringList{u("1"), u("4"), u("9"), u("16"), QString(), QString()}));
    EXPECT_EQ(colonna(v, ParTotale), (QStringList{u("100"), u("200"), u("800"), u("-500"), QString(), u("600")}));
    EXPECT_EQ(colonna(v, ParImporto), (QStringList{u("50"), u("200"), u("800"), u("-500"), QString(), u("TOTALE:")}));
    EXPECT_DOUBLE_EQ(v.totale, 600);
    EXPECT_EQ(dati.at(kAccontoPercepito, kColValore), u("500"));

    // A coefficient item in the same bill.
    dati.at(kEsameDocumenti, kColStato) = u("1");
    const VistaParcella w = vista_parcella(dati, u("10000"), Prestabilito);
    EXPECT_EQ(w.righe[2][ParCoefficiente].testo, u("0,01"));
    EXPECT_EQ(w.righe[2][ParImporto].testo, u("100"));
}

TEST(BillView, CellKindsAndTheTotalRow)
{
    Tabella dati = tariffaPiccola();
    EXPECT_EQ(colonna(vista_parcella(dati, u("3000"), Prestabilito), ParTotale), (QStringList{QString(), u("0")}));

    dati.at(kEsameStudio, kColStato) = u("2");
    dati.at(kNotifica, kColStato) = u("-20");
    dati.at(kNotifica, kColNome) = u("Notifiche a mezzo posta");
    const VistaParcella v = vista_parcella(dati, u("3000"), Prestabilito);
    ASSERT_EQ(v.righe.size(), 4u);
    const RigaParcella &r = v.righe[1];
    const int types[] = {1, 3, 1, 3, 1, 2};
    const int aligns[] = {2, 0, 2, 2, 3, 3};
    for (int c = 0; c < 6; ++c) {
        EXPECT_EQ(r[size_t(c)].tipo, types[c]) << c;
        EXPECT_EQ(r[size_t(c)].allineamento, aligns[c]) << c;
        EXPECT_EQ(r[size_t(c)].grassetto && r[size_t(c)].corsivo, c == ParQuantita) << c;
        EXPECT_EQ(r[size_t(c)].spunta, c == ParTotale) << c;
    }
    EXPECT_EQ(colonna(v, ParVoce), (QStringList{u("Notifiche a mezzo posta"), u("Esame e studio della pratica"),
                                                QString(), QString()})); // never with " (*)"
    EXPECT_EQ(v.righe[2], RigaParcella{});
    EXPECT_EQ(v.righe[3][ParImporto], (Cella{u("TOTALE:"), TipoTesto, AllineaDestra}));
    EXPECT_EQ(v.righe[3][ParTotale], (Cella{u("320"), TipoTesto, AllineaDestra, false, true}));
}

TEST(BillView, UnitValuesAndTheValueOfTheDispute)
{
    struct Case {
        const char *name;
        int row;
        const char *stato, *quantita, *valore;
        int modo;
        const char *coefficiente, *importo, *totale, *col53;
    };
    const Case cases[] = {
        {"max in band 2", kEsameDocumenti, "2", "1", "3000", Prestabilito, "1", "60", "60", "60"},
        {"max past the limit", kEsameDocumenti, "2", "1", "8000", Prestabilito, "0,02", "160", "160", "0,02"},
        {"average of a coefficient", kEsameDocumenti, "3", "1", "8000", Prestabilito, "0,015", "120", "120",
         "0,015"},
        {"own amount stays", kEsameDocumenti, "-75", "1", "8000", Prestabilito, "1", "75", "75", "75"},
        {"own 1 is a coefficient", kEsameDocumenti, "-1", "1", "8000", Prestabilito, "1", "8000", "8000", "1"},
        {"own 1,01 is euro", kEsameDocumenti, "-1,01", "1", "8000", Prestabilito, "1", "1,01", "1,01", "1,01"},
        {"half of an empty value", kEsameDocumenti, "-0,5", "1", "", Prestabilito, "0,5", "0", "0", "0,5"},
        {"indeterminable band", kEsameDocumenti, "2", "1", "Indeterminabile", Indeterminabile, "1", "80", "80", "80"},
        {"important band", kEsameDocumenti, "1", "3", "Importante", Importante, "1", "90", "270", "90"},
        {"letters as quantity", kEsameDocumenti, "2", "due", "3000", Prestabilito, "1", "60", "0", "60"},
        {"advance received, twice", kAccontoPercepito, "-500", "2", "3000", Prestabilito, "1", "-500", "-1000",
         "500"},
        // The band search reads the value with Val, the amounts with CDbl.
        {"value with a point", kEsameDocumenti, "-0,5", "1", "12.5", Prestabilito, "0,5", "6", "6", "0,5"},
    };
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        dati.at(c.row, kColStato) = u(c.stato);
        dati.at(c.row, kColQuantita) = u(c.quantita);
        const VistaParcella v = vista_parcella(dati, u(c.valore), c.modo);
        ASSERT_EQ(v.righe.size(), 3u) << c.name;
        EXPECT_EQ(v.righe[0][ParCoefficiente].testo, u(c.coefficiente)) << c.name;
        EXPECT_EQ(v.righe[0][ParImporto].testo, u(c.importo)) << c.name;
        EXPECT_EQ(v.righe[0][ParTotale].testo, u(c.totale)) << c.name;
        EXPECT_EQ(v.righe[2][ParTotale].testo, u(c.totale)) << c.name;
        EXPECT_EQ(dati.at(c.row, kColValore), u(c.col53)) << c.name;
    }
}

TEST(BillView, UnknownStatesKeepColumn53)
{
    Tabella dati = tariffaPiccola();
    dati.at(kEsameDocumenti, kColStato) = u("4");
    dati.at(kEsameDocumenti, kColValore) = u("33");
    EXPECT_EQ(vista_parcella(dati, u("3000"), Prestabilito).righe.at(0)[ParImporto].testo, u("33"));
    EXPECT_EQ(dati.at(kEsameDocumenti, kColValore), u("33"));
}

TEST(BillView, ABrokenPickedRowFails)
{
    Tabella dati = tabella({{u("Spese"), u("Spese"), u("Rotta"), QString(), u("100"), u("1"), u("2")}});
    dati.at(1, kColStato) = u("-5");
    EXPECT_NO_THROW(vista_parcella(dati, u("50"), Prestabilito));
    EXPECT_THROW(vista_parcella(dati, u("500"), Prestabilito), UnhandledFailure);
}

TEST(Pick, WritesStateAndUnitValue)
{
    struct Case {
        int casella;
        const char *cell, *stato, *col53;
    };
    const Case cases[] = {{RicMin, "30", "1", "30"},       {RicMax, "60", "2", "60"},   {RicMed, "15,5", "3", "15,5"},
                          {RicPers, "75", "-75", "75"},    {RicPers, "", "-", ""},      {RicPers, "-5", "--5", "-5"},
                          {-1, "60", "0", "0"}};
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        dati.at(kEsameDocumenti, kColQuantita) = u("3");
        dati.at(kEsameDocumenti, kColNome) = u("Nome");
        scegli_voce(dati, kEsameDocumenti, c.casella, u(c.cell));
        EXPECT_EQ(dati.at(kEsameDocumenti, kColStato), u(c.stato)) << c.casella << c.cell;
        EXPECT_EQ(dati.at(kEsameDocumenti, kColValore), u(c.col53)) << c.casella << c.cell;
        EXPECT_EQ(dati.at(kEsameDocumenti, kColQuantita) + dati.at(kEsameDocumenti, kColNome), u("3Nome"));
    }

    Tabella acconti = tabella({{u("Acconti"), u("Acconti"), u("ACCONTO DA RICHIEDERE al cliente")},
                               {u("Acconti"), u("Acconti"), u("Acconto da richiede")},
                               {u("Acconti"), u("Acconti"), u("Acconto già percepito, da detrarre in parte")}});
    EXPECT_TRUE(acconto_da_richiedere(acconti, 1));
    EXPECT_FALSE(acconto_da_richiedere(acconti, 2));
    EXPECT_TRUE(acconto_percepito(acconti, 3));
    EXPECT_FALSE(acconto_percepito(acconti, 1));
}

TEST(BillEdits, RenameQuantityUntickNote)
{
    struct Case {
        const char *nome, *col55;
    };
    const Case cases[] = {{"Esame degli atti", "Esame degli atti"},
                          {"ESAME DEI DOCUMENTI", ""}, // the table's text in other letter case
                          {"Esame dei documenti ", "Esame dei documenti "}};
    for (const auto &c : cases) {
        Tabella dati = tariffaPiccola();
        rinomina_voce(dati, kEsameDocumenti, u(c.nome));
        EXPECT_EQ(dati.at(kEsameDocumenti, kColNome), u(c.col55)) << c.nome;
    }

    Tabella dati = tariffaPiccola();
    cambia_quantita(dati, kEsameDocumenti, u("tre"));
    EXPECT_EQ(dati.at(kEsameDocumenti, kColQuantita), u("tre"));
    dati.at(kEsameDocumenti, kColStato) = u("2");
    dati.at(kEsameDocumenti, kColNome) = u("Mio nome");
    togli_voce(dati, kEsameDocumenti);
    EXPECT_EQ(dati.at(kEsameDocumenti, kColStato) + dati.at(kEsameDocumenti, kColValore), u("00"));
    EXPECT_EQ(dati.at(kEsameDocumenti, kColQuantita), u("1"));
    EXPECT_EQ(dati.at(kEsameDocumenti, kColNome), u("Mio nome")); // kept for a later pick

    EXPECT_EQ(testo_nota(dati, kEsameDocumenti, u("Voce (*)")), u("Voce (*)\r* Una sola volta per grado"));
    EXPECT_EQ(testo_nota(dati, kEsameStudio, u("Voce")), u("Voce"));
    EXPECT_EQ(testo_nota(dati, riga_tariffa(QString()), QString()), QString()); // the rows under the items
}
