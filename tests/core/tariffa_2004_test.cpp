// The tariff the program ships: D.M. 127/2004 in Resources/tariffe_database.txt.

#include "core/tariff.h"
#include "core/text_functions.h"
#include "support/test_files.h"
#include "tariffa/sorgente_tariffa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

using namespace lumetra;
using lumetra::test::readBytes;

namespace {

QString u(const char *s) { return QString::fromUtf8(s); }

const QString kSorgente = QStringLiteral(LUMETRA_SOURCE_DIR "/tools/tariffa/tariffa_2004.tsv");
const QString kSpedito = QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/tariffe_database.txt");

const Tabella &tariffa()
{
    static const Tabella dati = caricaTabella(readBytes(kSpedito));
    return dati;
}

// The entries of the category menus, which are the keys of the file.
const std::map<QString, std::vector<QString>> &categorie()
{
    static const std::map<QString, std::vector<QString>> lists = {
        {u("Spese"), {u("Spese")}},
        {u("Diritti"),
         {u("Processo di cognizione e procedimenti speciali e camerali"), u("Processo di esecuzione"),
          u("Procedimenti speciali"), u("Diritto di vacazione"), u("Prestazioni dell'avvocato domiciliario"),
          u("Indennità di trasferta"), u("Diritti di collazione degli scritti"), u("Altro")}},
        {u("Onorari giudiziali"),
         {u("Giudici di pace"), u("Tribunale, organi equiparati e organi di giustizia tributaria"),
          u("Organi di giustizia amministrativa di primo grado"),
          u("Corte d'appello e alla commissione tributaria regionale"),
          u("Corte di cassazione e altre mag. superiori, ivi compreso tribunale comunitario di prima istanza"),
          u("Corte costituzionale e Corte europea per i diritti dell'uomo, Corte di giustizia Cee"),
          u("Procedimenti speciali, procedure esecutive e procedimenti tavolari"), u("Trasferte"), u("Altro")}},
        {u("Ambito penale"),
         {u("Giudice di pace"), u("Gip E Gup"), u("Trib. monocratico e magistrato di sorveglianza"),
          u("Tribunale collegiale"), u("Corte d'appello e tribunale di sorveglianza"),
          u("Corte d'assise e d'assise d'appello"), u("Magistrature superiori"), u("Altro")}},
        {u("Ambito stragiudiziale"), {u("Prestazioni di consulenza"), u("Prestazioni di assistenza")}},
        {u("Acconti"), {u("Acconti")}},
    };
    return lists;
}

bool speciale(const QString &s) { return s.startsWith(u("> ")) || s == u("INDET.") || s == u("IMPORT."); }

// The limit columns a record fills: 5, 8, ... up to its last band.
std::vector<int> colonneLimite(const Tabella &dati, int r)
{
    std::vector<int> out;
    for (int c = kColPrimaFascia; c <= 50 && !dati.at(r, c).isEmpty(); c += 3)
        out.push_back(c);
    return out;
}

QString descrivi(const Tabella &dati, int r)
{
    return QStringLiteral("riga %1 (%2 / %3)").arg(r).arg(dati.at(r, 2), dati.at(r, 3));
}

int rigaDi(const char *categoria, const char *sottocategoria, const char *voce)
{
    const Tabella &dati = tariffa();
    int trovata = 0;
    for (int r = 1; r <= dati.contatore(); ++r)
        if (dati.at(r, 1) == u(categoria) && dati.at(r, 2) == u(sottocategoria) && dati.at(r, 3) == u(voce)) {
            EXPECT_EQ(trovata, 0) << "item twice: " << voce;
            trovata = r;
        }
    EXPECT_NE(trovata, 0) << "item missing: " << voce;
    return trovata;
}

} // namespace

TEST(Tariffa2004, ShippedFileIsWhatTheGeneratorMakesOfTheTable)
{
    const FileTariffe file = generaFileTariffe(readBytes(kSorgente));
    ASSERT_TRUE(file.errori.isEmpty()) << file.errori.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(file.bytes == readBytes(kSpedito))
        << "Resources/tariffe_database.txt is out of date: run `ninja aggiorna_tariffa`";
}

TEST(Tariffa2004, EveryItemCarriesTheKeysOfTheMenus)
{
    const Tabella &dati = tariffa();
    std::map<QString, int> perCategoria;
    for (int r = 1; r <= dati.contatore(); ++r) {
        const auto lista = categorie().find(dati.at(r, 1));
        ASSERT_NE(lista, categorie().end()) << descrivi(dati, r).toStdString();
        EXPECT_NE(std::find(lista->second.begin(), lista->second.end(), dati.at(r, 2)), lista->second.end())
            << descrivi(dati, r).toStdString();
        EXPECT_FALSE(dati.at(r, 3).trimmed().isEmpty()) << r;
        ++perCategoria[dati.at(r, 1)];
        // At most 52 lines: the bill's columns keep their pre-sets.
        EXPECT_EQ(dati.at(r, kColValore), u("0")) << r;
        EXPECT_EQ(dati.at(r, kColQuantita), u("1")) << r;
        EXPECT_EQ(dati.at(r, kColNome), QString()) << r;
    }
    const std::map<QString, int> attese = {
        {u("Spese"), 12},         {u("Diritti"), 77},
        {u("Onorari giudiziali"), 58}, {u("Ambito penale"), 120},
        {u("Ambito stragiudiziale"), 12}, {u("Acconti"), 2},
    };
    EXPECT_EQ(perCategoria, attese);
}

TEST(Tariffa2004, EveryValueSelectsABandInEveryKindOfValue)
{
    const Tabella &dati = tariffa();
    for (int r = 1; r <= dati.contatore(); ++r) {
        const std::vector<int> limiti = colonneLimite(dati, r);
        std::vector<double> valori = {0, 1e12};
        for (int c : limiti)
            if (!speciale(dati.at(r, c)))
                valori.insert(valori.end(), {CDbl(dati.at(r, c)), CDbl(dati.at(r, c)) + 0.01});
        for (double q : valori) {
            for (int modo : {Prestabilito, Indeterminabile, Importante}) {
                int c = 0;
                ASSERT_NO_THROW(c = cerca_scaglione(dati, r, q, modo))
                    << descrivi(dati, r).toStdString() << " q=" << q << " modo=" << modo;
                ASSERT_TRUE(std::find(limiti.begin(), limiti.end(), c) != limiti.end())
                    << descrivi(dati, r).toStdString() << " q=" << q << " modo=" << modo << " c=" << c;
                const QString &limite = dati.at(r, c);
                QString atteso; // the band's limit as the value requires it
                if (modo == Indeterminabile) {
                    atteso = u("INDET.");
                } else if (modo == Importante) {
                    atteso = u("IMPORT.");
                } else {
                    // The first band whose limit is not below the value, or the open one.
                    for (int l : limiti) {
                        const QString &s = dati.at(r, l);
                        if (s.startsWith(u("> ")) || (!speciale(s) && CDbl(s) >= q)) {
                            atteso = s;
                            break;
                        }
                    }
                }
                EXPECT_EQ(limite, atteso) << descrivi(dati, r).toStdString() << " q=" << q << " modo=" << modo;
            }
        }
    }
}

TEST(Tariffa2004, FiguresReadAsTheProgramUsesThem)
{
    const Tabella &dati = tariffa();
    for (int r = 1; r <= dati.contatore(); ++r) {
        const std::vector<int> limiti = colonneLimite(dati, r);
        const bool fisso = dati.at(r, kColPrimaFascia) == u("0");
        for (int c : limiti) {
            const double minimo = CDbl(dati.at(r, c + 1));
            const double massimo = CDbl(dati.at(r, c + 2));
            EXPECT_LE(minimo, massimo) << descrivi(dati, r).toStdString() << " c=" << c;
            // A figure of 1 or less multiplies the value of the dispute: only
            // bands by amount may hold one.
            const bool perValore = !fisso && dati.at(r, c) != u("INDET.") && dati.at(r, c) != u("IMPORT.");
            if (!perValore) {
                EXPECT_TRUE(minimo == 0 || minimo > 1) << descrivi(dati, r).toStdString() << " c=" << c;
                EXPECT_TRUE(massimo == 0 || massimo > 1) << descrivi(dati, r).toStdString() << " c=" << c;
            }
            // An item that doesn't depend on the value has one pair of figures.
            if (fisso) {
                EXPECT_EQ(dati.at(r, c + 1), dati.at(r, 6)) << descrivi(dati, r).toStdString();
                EXPECT_EQ(dati.at(r, c + 2), dati.at(r, 7)) << descrivi(dati, r).toStdString();
            }
        }
        if (fisso) {
            EXPECT_EQ(dati.at(r, 8), u("> 0")) << descrivi(dati, r).toStdString();
            EXPECT_EQ(limiti.size(), 4u) << descrivi(dati, r).toStdString();
        }
    }
}

TEST(Tariffa2004, NotesTellWhereAnOwnAmountIsNeeded)
{
    const Tabella &dati = tariffa();
    for (int r = 1; r <= dati.contatore(); ++r) {
        const QString &categoria = dati.at(r, 1);
        const QString &nota = dati.at(r, 4);
        // Expenses and advances are the user's amounts by nature; the zero
        // bands of the Giudici di pace are the law's ranges, which their note gives.
        if (categoria == u("Spese") || categoria == u("Acconti"))
            continue;
        if (dati.at(r, 2) == u("Giudici di pace")) {
            EXPECT_TRUE(nota.startsWith(u("Cause ")) || nota.startsWith(u("Per ogni udienza; cause ")))
                << descrivi(dati, r).toStdString();
            continue;
        }
        bool senzaCifre = false;
        for (int c : colonneLimite(dati, r))
            senzaCifre |= CDbl(dati.at(r, c + 1)) == 0 && CDbl(dati.at(r, c + 2)) == 0;
        if (senzaCifre) {
            EXPECT_TRUE(nota.contains(u("inserire un importo proprio nella colonna Pers.")))
                << descrivi(dati, r).toStdString();
        }
        // What is to be checked is checked against the decree.
        if (nota.contains(u("verific"))) {
            EXPECT_TRUE(nota.contains(u("D.M. 127/2004"))) << descrivi(dati, r).toStdString();
        }
    }
}

TEST(Tariffa2004, ItemsTheProgramTestsForArePresentOnce)
{
    rigaDi("Spese", "Spese", "Marca da bollo");
    rigaDi("Acconti", "Acconti", "Acconto da richiedere");
    rigaDi("Acconti", "Acconti", "Acconto già percepito, da detrarre");
}

TEST(Tariffa2004, VerifiedTablesGiveTheDecreesFigures)
{
    struct Case {
        const char *categoria;
        const char *sottocategoria;
        const char *voce;
        double valore;
        int modo;
        const char *limite;
        double minimo;
        double massimo;
    };
    const char *gdp = "Giudici di pace";
    const char *og = "Onorari giudiziali";
    const char *ap = "Ambito penale";
    const char *as = "Ambito stragiudiziale";
    const char *consulenza = "Prestazioni di consulenza";
    const char *assistenza = "Prestazioni di assistenza";
    const char *pareriScritti = "Pareri che importino informativa e studio particolare - pareri scritti";
    const Case cases[] = {
        {og, gdp, "Per l'intero giudizio", 600, Prestabilito, "600", 55, 190},
        {og, gdp, "Per l'intero giudizio", 600.01, Prestabilito, "> 600", 0, 0},
        {og, gdp, "Studio della controversia", 500, Prestabilito, "600", 0, 0},
        {og, gdp, "Studio della controversia", 1000, Prestabilito, "1600", 55, 145},
        {og, gdp, "Studio della controversia", 2600, Prestabilito, "2600", 75, 165},
        {og, gdp, "Studio della controversia", 30000, Prestabilito, "> 2600", 0, 0},
        {og, gdp, "Studio della controversia", 1000, Indeterminabile, "INDET.", 0, 0},
        {og, gdp, "Redazione delle difese (comparse conclusionali e repliche)", 2000, Prestabilito, "2600", 155, 325},
        {og, gdp, "Assistenza a ciascuna udienza di trattazione, escluse quelle in cui sono disposti semplici rinvii",
         1600, Prestabilito, "1600", 20, 25},
        {og, gdp, "Opera prestata per la conciliazione, ove avvenga in sede giudiziale", 1600.01, Prestabilito, "2600",
         60, 130},
        {ap, "Giudice di pace", "Corrispondenza e sessioni - Informativa anche telefonica o telematica", 1000,
         Prestabilito, "> 0", 6, 10},
        {ap, "Gip E Gup",
         "Corrispondenza e sessioni - In studio o in via telefonica o telematica con il cliente od un suo incaricato",
         0, Prestabilito, "0", 24, 65},
        {ap, "Tribunale collegiale",
         "Corrispondenza e sessioni - In studio o in via telefonica o telematica collegialmente con colleghi, "
         "consulenti, investigatori privati o fuori studio con gli stessi, con il cliente o con magistrati",
         0, Indeterminabile, "INDET.", 65, 129},
        {ap, "Trib. monocratico e magistrato di sorveglianza", "Esame e studio", 30000, Prestabilito, "> 0", 25, 45},
        {ap, "Corte d'assise e d'assise d'appello", "Esame e studio", 600000, Prestabilito, "> 0", 60, 120},
        {ap, "Magistrature superiori", "Esame e studio", 0, Importante, "IMPORT.", 75, 150},
        {as, consulenza,
         "Consultazioni orali che esauriscono la pratica e pareri, anche telefonici o telematici, che non importino "
         "informativa e studio particolare",
         1000, Prestabilito, "> 0", 15, 150},
        {as, consulenza, "Pareri che importino informativa e studio particolare - pareri orali", 1000, Prestabilito,
         "1600", 50, 120},
        {as, consulenza, pareriScritti, 30000, Prestabilito, "51700", 385, 1220},
        {as, consulenza, pareriScritti, 6000000, Prestabilito, "> 5164600", 0.000296, 0.00065},
        {as, consulenza, pareriScritti, 0, Indeterminabile, "INDET.", 385, 1525},
        {as, assistenza, "Posizione ad archivio", 30000, Prestabilito, "> 0", 13, 13},
        {as, assistenza, "Esame e studio della pratica", 600000, Prestabilito, "1549400", 1130, 2530},
        {as, assistenza, "Redazione di diffide, ricorsi, memorie, esposti, relazioni, denunce", 5000, Prestabilito,
         "5200", 50, 135},
        {as, assistenza, "Conferenze di trattazione in studio, anche telefoniche o telematiche", 1000, Prestabilito,
         "> 0", 35, 60},
        {as, assistenza, "Indennità di trasferta", 0, Importante, "IMPORT.", 10, 30},
    };
    const Tabella &dati = tariffa();
    for (const auto &c : cases) {
        const int r = rigaDi(c.categoria, c.sottocategoria, c.voce);
        if (r == 0)
            continue;
        const Fascia f = fascia(dati, r, c.valore, c.modo);
        EXPECT_EQ(dati.at(r, f.colonna), u(c.limite)) << c.voce << " q=" << c.valore;
        EXPECT_DOUBLE_EQ(f.minimo, c.minimo) << c.voce << " q=" << c.valore;
        EXPECT_DOUBLE_EQ(f.massimo, c.massimo) << c.voce << " q=" << c.valore;
    }
}
