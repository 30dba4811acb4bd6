// The tariff the program ships: D.M. 127/2004 in Resources/tariffe_database.txt.

#include "core/tariff.h"
#include "core/text_functions.h"
#include "editor/categories.h"
#include "support/test_files.h"
#include "tariffa/sorgente_tariffa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace lumetra;
using lumetra::test::readBytes;

namespace {

QString u(const char *s) { return QString::fromUtf8(s); }

const QString kSpedito = QStringLiteral(LUMETRA_SOURCE_DIR "/Resources/tariffe_database.txt");

const Tabella &tariffa()
{
    static const Tabella dati = caricaTabella(readBytes(kSpedito));
    return dati;
}

std::string descrivi(int r)
{
    return QStringLiteral("riga %1 (%2 / %3)").arg(r).arg(tariffa().at(r, 2), tariffa().at(r, 3)).toStdString();
}

// The row of an item, which must be there exactly once.
int rigaDi(const char *categoria, const char *sottocategoria, const char *voce)
{
    int trovata = 0, volte = 0;
    for (int r = 1; r <= tariffa().contatore(); ++r)
        if (tariffa().at(r, 1) == u(categoria) && tariffa().at(r, 2) == u(sottocategoria)
            && tariffa().at(r, 3) == u(voce)) {
            trovata = r;
            ++volte;
        }
    EXPECT_EQ(volte, 1) << voce;
    return trovata;
}

} // namespace

TEST(Tariffa2004, ShippedFileIsWhatTheGeneratorMakesOfTheTable)
{
    const FileTariffe file
        = generaFileTariffe(readBytes(QStringLiteral(LUMETRA_SOURCE_DIR "/tools/tariffa/tariffa_2004.tsv")));
    ASSERT_TRUE(file.errori.isEmpty()) << file.errori.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(file.bytes == readBytes(kSpedito))
        << "Resources/tariffe_database.txt is out of date: run `ninja aggiorna_tariffa`";
}

TEST(Tariffa2004, EveryItemCarriesTheKeysOfTheMenus)
{
    const Tabella &dati = tariffa();
    std::map<QString, int> perCategoria;
    for (int r = 1; r <= dati.contatore(); ++r) {
        const qsizetype i = vociCategoria().indexOf(dati.at(r, 1));
        ASSERT_GE(i, 2) << descrivi(r); // past "SELEZIONA" and the divider
        EXPECT_TRUE(sottocategorie(int(i)).voci.contains(dati.at(r, 2))) << descrivi(r);
        EXPECT_FALSE(dati.at(r, 3).trimmed().isEmpty()) << r;
        // At most 52 lines: the bill's columns keep their pre-sets "0", "1" and "".
        EXPECT_EQ(dati.at(r, kColValore) + u("|") + dati.at(r, kColQuantita) + dati.at(r, kColNome), u("0|1")) << r;
        ++perCategoria[dati.at(r, 1)];
    }
    const std::map<QString, int> attese = {{u("Spese"), 12},
                                           {u("Diritti"), 77},
                                           {u("Onorari giudiziali"), 58},
                                           {u("Ambito penale"), 120},
                                           {u("Ambito stragiudiziale"), 12},
                                           {u("Acconti"), 2}};
    EXPECT_EQ(perCategoria, attese);
    // Items the program looks for by name.
    rigaDi("Spese", "Spese", "Marca da bollo");
    rigaDi("Acconti", "Acconti", "Acconto da richiedere");
    rigaDi("Acconti", "Acconti", "Acconto già percepito, da detrarre");
}

TEST(Tariffa2004, EveryLimitSelectsABandInEveryMode)
{
    const Tabella &dati = tariffa();
    for (int r = 1; r <= dati.contatore(); ++r) {
        std::vector<int> limiti; // 5, 8, ... up to the last band
        for (int c = kColPrimaFascia; c <= 50 && !dati.at(r, c).isEmpty(); c += 3)
            limiti.push_back(c);
        const bool fisso = dati.at(r, kColPrimaFascia) == u("0");
        std::vector<double> valori = {0, 1e12};
        for (int c : limiti) {
            valori.insert(valori.end(), {CDbl(dati.at(r, c)), CDbl(dati.at(r, c)) + 0.01});
            const double minimo = CDbl(dati.at(r, c + 1)), massimo = CDbl(dati.at(r, c + 2));
            EXPECT_LE(minimo, massimo) << descrivi(r) << " c=" << c;
            // A figure of 1 or less multiplies the value of the dispute: only bands by amount may hold one.
            if (fisso || dati.at(r, c) == u("INDET.") || dati.at(r, c) == u("IMPORT.")) {
                EXPECT_TRUE((minimo == 0 || minimo > 1) && (massimo == 0 || massimo > 1)) << descrivi(r) << " c=" << c;
            }
        }
        for (double q : valori)
            for (int modo : {Prestabilito, Indeterminabile, Importante}) {
                int c = 0;
                ASSERT_NO_THROW(c = cerca_scaglione(dati, r, q, modo)) << descrivi(r) << " q=" << q << " modo=" << modo;
                ASSERT_TRUE(std::find(limiti.begin(), limiti.end(), c) != limiti.end()) << descrivi(r) << " c=" << c;
                const QString &limite = dati.at(r, c);
                if (modo == Prestabilito)
                    EXPECT_TRUE(limite.startsWith(u("> ")) || CDbl(limite) >= q) << descrivi(r) << " q=" << q;
                else
                    EXPECT_EQ(limite, u(modo == Indeterminabile ? "INDET." : "IMPORT.")) << descrivi(r);
            }
    }
}

TEST(Tariffa2004, VerifiedTablesGiveTheDecreesFigures)
{
    const char *og = "Onorari giudiziali", *gdp = "Giudici di pace", *ap = "Ambito penale";
    const char *as = "Ambito stragiudiziale", *assistenza = "Prestazioni di assistenza";
    const char *studio = "Studio della controversia", *intero = "Per l'intero giudizio";
    const char *consulenza = "Prestazioni di consulenza";
    const char *pareri = "Pareri che importino informativa e studio particolare - pareri scritti";
    // category, subcategory, item, value, mode, the band's limit, minimum, maximum
    const std::tuple<const char *, const char *, const char *, double, int, const char *, double, double> cases[] = {
        {og, gdp, intero, 600, Prestabilito, "600", 55, 190},
        {og, gdp, intero, 600.01, Prestabilito, "> 600", 0, 0},
        {og, gdp, studio, 1000, Prestabilito, "1600", 55, 145},
        {og, gdp, studio, 2600, Prestabilito, "2600", 75, 165},
        {og, gdp, studio, 1000, Indeterminabile, "INDET.", 0, 0},
        {og, gdp, "Redazione delle difese (comparse conclusionali e repliche)", 2000, Prestabilito, "2600", 155, 325},
        {ap, "Giudice di pace", "Corrispondenza e sessioni - Informativa anche telefonica o telematica", 1000,
         Prestabilito, "> 0", 6, 10},
        {ap, "Trib. monocratico e magistrato di sorveglianza", "Esame e studio", 0, Prestabilito, "0", 25, 45},
        {ap, "Magistrature superiori", "Esame e studio", 0, Importante, "IMPORT.", 75, 150},
        {as, consulenza, pareri, 30000, Prestabilito, "51700", 385, 1220},
        {as, consulenza, pareri, 6000000, Prestabilito, "> 5164600", 0.000296, 0.00065},
        {as, consulenza, pareri, 0, Indeterminabile, "INDET.", 385, 1525},
        {as, assistenza, "Posizione ad archivio", 30000, Prestabilito, "> 0", 13, 13},
        {as, assistenza, "Esame e studio della pratica", 600000, Prestabilito, "1549400", 1130, 2530},
        {as, assistenza, "Indennità di trasferta", 0, Importante, "IMPORT.", 10, 30},
    };
    for (const auto &[categoria, sottocategoria, voce, valore, modo, limite, minimo, massimo] : cases) {
        const int r = rigaDi(categoria, sottocategoria, voce);
        if (r == 0)
            continue;
        const int c = cerca_scaglione(tariffa(), r, valore, modo);
        EXPECT_EQ(tariffa().at(r, c), u(limite)) << voce << " q=" << valore;
        EXPECT_DOUBLE_EQ(CDbl(tariffa().at(r, c + 1)), minimo) << voce << " q=" << valore;
        EXPECT_DOUBLE_EQ(CDbl(tariffa().at(r, c + 2)), massimo) << voce << " q=" << valore;
    }
}
