#include "document/composer.h"

#include "bill_table.h"
#include "core/bill_file.h"
#include "document/layout.h"
#include "support/test_files.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

namespace {

const QChar CR(13);
QString q(const char *s) { return QString::fromUtf8(s); }
QString blanks(int n) { return QString(n, QLatin1Char(' ')); }
const QString RULE = blanks(77) + QString(14, QChar(0x2014));
const QDate kOggi(2011, 11, 16);

// A money line as the reader sees it: description, fields, amount and " €".
QString L(const char *description, const char *amount, const char *field1 = "", const char *field2 = "")
{
    const QString d = q(" ") + q(description) + q(" ");
    return d + blanks(55 - int(d.size())) + giustifica_testo(q(field1), 6) + giustifica_testo(q(field2), 14)
        + giustifica_testo(q(amount) + q(" €"), 16);
}

// User data from index 0 on; the rest stays empty.
Utenza ut(std::initializer_list<QString> values)
{
    Utenza u;
    std::copy(values.begin(), values.end(), u.begin());
    return u;
}

Utenza utenzaEsempio()
{
    return ut({ QString(), q("Avv. Tizio Caio"), q("Via Roma 1"), q("98100 Messina"), q("090 123456"), QString(),
        QString(), q("01234567890"), q("TZICAI70A01F158X") });
}

struct Richiesta {
    int elab = 0;
    bool iva = true;
    bool rite = true;
    Utenza utenza = utenzaEsempio();
    QString cliente = q("Spett.le") + CR + q("Comune di Siracusa");
    QString oggetto = q("Causa");
    QString valore = q("10000");
    QDate oggi = kOggi;
};

Documento componi(const Tabella &dati, const Richiesta &r = {})
{
    return Crea_testo({ .dati = dati,
        .editQuantum = r.valore,
        .utenza = r.utenza,
        .editField1 = r.oggetto,
        .editField2 = r.cliente,
        .iva = r.iva,
        .rite = r.rite,
        .elab = r.elab,
        .oggi = r.oggi });
}

// The paragraphs of block r, as sty_f places them.
QStringList blocco(const Documento &doc, int r)
{
    const QStringList paragraphs = doc.testo.split(CR);
    QStringList out;
    for (int i = doc.sty_f[size_t(r)][0]; i <= doc.sty_f[size_t(r)][1]; ++i)
        out << paragraphs.at(i);
    return out;
}

// What the styled text builder relies on: the blocks follow one another
// without gaps (a "Fattura" repeats block 3 as block 4), the last one ends at
// the last line end, and the zone ends are line ends at the ends of blocks 3,
// 5 and 6.
void verificaStyF(const Documento &doc, int elab)
{
    const StyMap &s = doc.sty_f;
    const QString &t = doc.testo;
    EXPECT_EQ(s[0][0], 0);
    for (int r = 1; r <= 6; ++r) {
        if (elab == 1 && r == 4) {
            EXPECT_EQ(s[4][0], s[3][0]);
            EXPECT_EQ(s[4][1], s[3][1]);
        } else {
            EXPECT_EQ(s[size_t(r)][0], s[size_t(r - 1)][1] + 1) << "row " << r;
        }
    }
    EXPECT_EQ(s[6][1], int(t.count(CR)) - 1);
    const int zoneEnds[3][2] = { { 0, 3 }, { 1, 5 }, { 2, 6 } };
    for (const auto &z : zoneEnds) {
        const int pos = s[size_t(z[0])][2];
        ASSERT_TRUE(pos >= 0 && pos < t.size());
        EXPECT_EQ(t.at(pos), CR) << "zone " << z[0];
        EXPECT_EQ(int(t.left(pos + 1).count(CR)), s[size_t(z[1])][1] + 1) << "zone " << z[0];
    }
    for (int r = 3; r <= 9; ++r)
        EXPECT_EQ(s[size_t(r)][2], 0);
    for (int r = 7; r <= 9; ++r)
        EXPECT_EQ(s[size_t(r)], (std::array<int, 3> {}));
}

StyMap leggiStyF(const QString &path)
{
    StyMap map {};
    const QStringList lines = QString::fromUtf8(readBytes(path)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (int r = 0; r < int(lines.size()) && r < 10; ++r) {
        const QStringList cells = lines[r].split(QLatin1Char(' '));
        for (int c = 0; c < 3; ++c)
            map[size_t(r)][size_t(c)] = cells.at(c).toInt();
    }
    return map;
}

// The worked example: tariff, user data and bill as the program keeps them.
struct Esempio {
    Tabella dati;
    Utenza utenza;
    TestaParcella testa;
};

Esempio caricaEsempio()
{
    const QString dir = dataPath(QStringLiteral("golden/nota_e_fattura/"));
    Esempio e { caricaTabella(readBytes(dir + QStringLiteral("tariffe_database.txt"))),
        leggiUtenza(readBytes(dir + QStringLiteral("utenza.txt"))), {} };
    const LetturaParcella bill = leggiParcella(readBytes(dir + QStringLiteral("parcella.qX9")), e.dati.contatore());
    EXPECT_EQ(bill.esito, EsitoLettura::Letta);
    e.testa = bill.testa;
    applicaRighe(bill.righe, e.dati);
    return e;
}

// The bill of the worked example of the running totals, without the stamp.
Tabella billEsempio()
{
    return tabella({
        { "Spese", "Spese di notifica", "-50", "50", "2" },
        { "Diritti", "Esame e studio della pratica", "1", "200" },
        { "Onorari giudiziali", "Studio della controversia", "2", "800" },
        { "Acconti", "Acconto già percepito, da detrarre", "-500", "500" },
    });
}

} // namespace

TEST(CreaTesto, GoldenDocumentsByteForByte)
{
    const Esempio e = caricaEsempio();
    ASSERT_TRUE(e.testa.iva && e.testa.rite);
    const QString dir = dataPath(QStringLiteral("golden/nota_e_fattura/"));
    struct Case {
        int elab;
        const char *name;
        double t10;
        double t11;
    };
    for (const Case &c : { Case { 0, "nota_spese", 886.5, 761.5 }, Case { 1, "fattura", 888.31, 763.31 } }) {
        const Documento doc = Crea_testo({ .dati = e.dati,
            .editQuantum = e.testa.editQuantum,
            .utenza = e.utenza,
            .editField1 = e.testa.editField1,
            .editField2 = e.testa.editField2,
            .iva = e.testa.iva,
            .rite = e.testa.rite,
            .elab = c.elab,
            .oggi = kOggi });
        const QString expected = QString::fromUtf8(readBytes(dir + q(c.name) + q(".txt")));
        EXPECT_EQ(doc.testo, expected) << c.name;
        EXPECT_EQ(doc.testo.toUtf8(), expected.toUtf8()) << c.name;
        EXPECT_EQ(doc.sty_f, leggiStyF(dir + q(c.name) + q(".sty_f"))) << c.name;
        verificaStyF(doc, c.elab);
        EXPECT_DOUBLE_EQ(doc.totale[10], c.t10) << c.name;
        EXPECT_DOUBLE_EQ(doc.totale[11], c.t11) << c.name;
        EXPECT_DOUBLE_EQ(doc.marcaimporto, 1.81) << c.name;
    }
}

TEST(CreaTesto, TotalsOfTheWorkedExampleInTheirOrder)
{
    const Tabella dati = billEsempio();
    struct Case {
        bool iva;
        std::array<double, 16> totale;
    };
    const Case cases[] = {
        { true, { 1100, 100, 200, 800, 125, 1225, 625, 650, 0, -500, 886.5, 761.5 } },
        { false, { 1100, 100, 200, 800, 125, 1225, 625, 650, 0, -500, 750, 625 } },
    };
    for (const auto &c : cases) {
        for (int elab : { 0, 1 }) {
            Richiesta r;
            r.iva = c.iva;
            r.elab = elab;
            const Documento doc = componi(dati, r);
            for (size_t i = 0; i < 16; ++i)
                EXPECT_NEAR(doc.totale[i], c.totale[i], 1e-9) << "iva " << c.iva << " slot " << i;
        }
    }
}

TEST(CreaTesto, SummaryLinesLettersAndBases)
{
    struct Case {
        const char *why;
        Tabella dati;
        bool iva;
        bool rite;
        int elab;
        QStringList block5;
        double t10;
        double t11;
    };
    const Voce diritti { "Diritti", "Esame", "1", "200" };
    const Voce spese { "Spese", "Notifica", "1", "100" };
    const QString vuota = q(" ");
    const QString riepilogo = q(" RIEPILOGO :");
    const Case cases[] = {
        { "empty bill with rite: the net line alone, at zero", tabella({ { "Spese", "x" } }), true, true, 0,
            { L("TOTALE NETTO A PAGARE", ",00"), vuota }, 0, 0 },
        { "empty bill without rite: an empty block", tabella({}), true, false, 0, {}, 0, 0 },
        { "spese alone: no refund, no total line, no taxes, no withholding", tabella({ spese }), true, true, 0,
            { riepilogo, vuota, L("(A) SPESE:", "100,00"), vuota, RULE, L("TOTALE LORDO", "100,00"), vuota, RULE,
                L("TOTALE NETTO A PAGARE", "100,00"), vuota },
            100, 100 },
        { "diritti alone: the refund counts for no total line, I.V.A. is (F)", tabella({ diritti }), true, true, 0,
            { riepilogo, vuota, L("(A) DIRITTI:", "200,00"), vuota,
                L("(B) Rimborso spese forf. (12,50% di A)", "25,00", "12,50%", "200,00"),
                L("(C) C.P.A. (4% di A+B)", "9,00", "4,00%", "225,00"), vuota,
                L("(F) I.V.A. (21% di A+B+C)", "49,14", "21,00%", "234,00"), RULE,
                L("TOTALE LORDO", "283,14"), vuota,
                L("Ritenuta d'acconto (20% di A+B)", "-45,00", "20,00%", "225,00"), vuota + RULE,
                L("TOTALE NETTO A PAGARE", "238,14"), vuota },
            283.14, 238.14 },
        { "without I.V.A.: the fixed sentence, the gross total is the base plus C.P.A.", tabella({ diritti }),
            false, true, 1,
            { L("(A) DIRITTI:", "200,00"), vuota,
                L("(B) Rimborso spese forf. (12,50% di A)", "25,00", "12,50%", "200,00"),
                L("(C) C.P.A. (4% di A+B)", "9,00", "4,00%", "225,00"), vuota,
                q(" (Importo non imponibile ai sensi dell'art.1, c.100 L.244/2007)"), RULE,
                L("TOTALE LORDO", "234,00"), vuota,
                L("Ritenuta d'acconto (20% di A+B)", "-45,00", "20,00%", "225,00"), vuota + RULE,
                L("TOTALE NETTO A PAGARE", "189,00"), vuota },
            234, 189 },
        { "without withholding the gross line is the net amount", tabella({ diritti }), false, false, 1,
            { L("(A) DIRITTI:", "200,00"), vuota,
                L("(B) Rimborso spese forf. (12,50% di A)", "25,00", "12,50%", "200,00"),
                L("(C) C.P.A. (4% di A+B)", "9,00", "4,00%", "225,00"), vuota,
                q(" (Importo non imponibile ai sensi dell'art.1, c.100 L.244/2007)"), RULE,
                L("TOTALE NETTO A PAGARE", "234,00"), vuota },
            234, 0 },
        { "advance received equal to the base: the spese alone make the gross amount",
            tabella({ spese, diritti, { "Acconti", "Acconto già percepito, da detrarre", "-225", "225" } }), true,
            true, 0,
            { riepilogo, vuota, L("(A) SPESE:", "100,00"), vuota, L("(B) DIRITTI:", "200,00"), vuota,
                L("(C) Rimborso spese forf. (12,50% di B)", "25,00", "12,50%", "200,00"), RULE,
                L("TOTALE (A+B+C)", "325,00"), vuota, L("(A) Acconto già percepito, da detrarre", "-225,00") + q(" "),
                vuota, RULE, L("TOTALE LORDO", "100,00"), vuota, RULE, L("TOTALE NETTO A PAGARE", "100,00"),
                vuota },
            100, 100 },
        { "advance received over the base: taxes negative, withholding positive",
            tabella({ diritti, { "Acconti", "Acconto già percepito, da detrarre", "-325", "325" } }), true, true, 1,
            { L("(A) DIRITTI:", "200,00"), vuota,
                L("(B) Rimborso spese forf. (12,50% di A)", "25,00", "12,50%", "200,00"),
                L("(A) Acconto già percepito, da detrarre", "-325,00") + q(" "), vuota,
                L("(C) C.P.A. (4% di A+B-Acc.)", "-4,00", "4,00%", "-100,00"), vuota,
                L("(F) I.V.A. (21% di A+B+C-Acc.)", "-21,84", "21,00%", "-104,00"), RULE,
                L("TOTALE LORDO", "-125,84"), vuota,
                L("Ritenuta d'acconto (20% di A+B-Acc.)", "20,00", "20,00%", "-100,00"), vuota + RULE,
                L("TOTALE NETTO A PAGARE", "-105,84"), vuota },
            -125.84, -105.84 },
        { "an advance requested alone: line A, bases A and A+B", 
            tabella({ { "Acconti", "Acconto da richiedere", "-1000", "1000" } }), true, true, 1,
            { L("(A) Acconto da richiedere", "1000,00"), vuota, L("(B) C.P.A. (4% di A)", "40,00", "4,00%", "1000,00"),
                vuota, L("(F) I.V.A. (21% di A+B)", "218,40", "21,00%", "1040,00"), RULE,
                L("TOTALE LORDO", "1258,40"), vuota,
                L("Ritenuta d'acconto (20% di A)", "-200,00", "20,00%", "1000,00"), vuota + RULE,
                L("TOTALE NETTO A PAGARE", "1058,40"), vuota },
            1258.4, 1058.4 },
        { "with advances requested the bases stay A and A+B whatever the lines",
            tabella({ diritti, { "Acconti", "Acconto da richiedere", "-100", "100" } }), true, false, 0,
            { L("(A) Acconto da richiedere", "100,00"), vuota, riepilogo, vuota, L("(B) DIRITTI:", "200,00"), vuota,
                L("(C) Rimborso spese forf. (12,50% di B)", "25,00", "12,50%", "200,00"), RULE,
                L("TOTALE (A+B+C)", "325,00"), vuota, L("(D) C.P.A. (4% di A)", "13,00", "4,00%", "325,00"), vuota,
                L("(F) I.V.A. (21% di A+B)", "70,98", "21,00%", "338,00"), RULE,
                L("TOTALE NETTO A PAGARE", "408,98"), vuota },
            408.98, 0 },
        { "two stamps on a Fattura: one line, the last composed, outside all bases",
            tabella({ spese, { "Spese", "Marca da bollo", "-1,81", "1,81" },
                { "Diritti", "Marca da bollo", "-2", "2", "1", "Bollo" } }),
            true, false, 1,
            { L("(A) SPESE:", "100,00"), vuota, vuota, L("Bollo", "2,00"), RULE, L("TOTALE NETTO A PAGARE", "102,00"),
                vuota },
            102, 0 },
        { "a stamp on a Nota spese is nowhere", tabella({ spese, { "Spese", "Marca da bollo", "-1,81", "1,81" } }),
            true, false, 0,
            { riepilogo, vuota, L("(A) SPESE:", "100,00"), vuota, RULE, L("TOTALE NETTO A PAGARE", "100,00"), vuota },
            100, 0 },
    };
    for (const auto &c : cases) {
        Richiesta r;
        r.iva = c.iva;
        r.rite = c.rite;
        r.elab = c.elab;
        const Documento doc = componi(c.dati, r);
        EXPECT_EQ(blocco(doc, 5), c.block5) << c.why;
        EXPECT_NEAR(doc.totale[10], c.t10, 1e-9) << c.why;
        EXPECT_NEAR(doc.totale[11], c.t11, 1e-9) << c.why;
        verificaStyF(doc, c.elab);
    }
}

TEST(CreaTesto, SenderBlockAndMissingData)
{
    struct Case {
        const char *why;
        Utenza utenza;
        int elab;
        QStringList block0;
        QString place;
    };
    const QString n = q("Avv. N");
    const QString vuota = q(" ");
    const Case cases[] = {
        { "no user data at all", {}, 0, { q("MANCA UTENTE!"), vuota }, q("MANCA LUOGO!") },
        { "telephone without fax", ut({ {}, n, {}, {}, q("1") }), 0, { n, q("Tel.: 1"), vuota }, q("MANCA LUOGO!") },
        { "fax without telephone", ut({ {}, n, {}, {}, {}, q("2") }), 0, { n, q("Fax.: 2"), vuota },
            q("MANCA LUOGO!") },
        { "telephone and fax", ut({ {}, n, {}, {}, q("1"), q("2") }), 0, { n, q("Tel.: 1 / Fax.: 2"), vuota },
            q("MANCA LUOGO!") },
        { "a town of digits only shows in the sender's block, not as the place",
            ut({ {}, n, q("Via X"), q("00100"), {}, {}, q("m@x.it") }), 0,
            { n, q("Via X"), q("00100"), q("E-mail: m@x.it"), vuota }, q("MANCA LUOGO!") },
        { "tax numbers of a Nota spese, each only if filled", ut({ {}, n, {}, q("Roma"), {}, {}, {}, {}, q("CF") }), 0,
            { n, q("Roma"), q("C.Fiscale.: CF"), vuota }, q("Roma") },
        { "a Fattura moves the tax numbers under the title", ut({ {}, n, {}, {}, {}, {}, {}, q("IVA"), q("CF") }), 1,
            { n, vuota }, q("MANCA LUOGO!") },
    };
    for (const auto &c : cases) {
        Richiesta r;
        r.utenza = c.utenza;
        r.elab = c.elab;
        const Documento doc = componi(tabella({}), r);
        EXPECT_EQ(blocco(doc, 0), c.block0) << c.why;
        EXPECT_EQ(blocco(doc, 1).at(0), c.place) << c.why;
        EXPECT_EQ(blocco(doc, 6), (QStringList { vuota, c.block0.at(0) + q(" ") })) << c.why;
        verificaStyF(doc, c.elab);
    }
}

TEST(CreaTesto, TitleSubjectAndClient)
{
    Richiesta r;
    r.elab = 1;
    r.utenza = ut({ {}, q("Avv. N") });
    r.cliente = QString();
    r.oggetto = QString();
    r.valore = q("Indeterminabile");
    r.oggi = QDate(2009, 1, 5);
    Documento doc = componi(tabella({}), r);
    EXPECT_EQ(blocco(doc, 1), (QStringList { q("MANCA LUOGO!"), q("Lì 05/01/09"), q(" "), q("MANCA ASSISTITO!"), q(" ") }));
    EXPECT_EQ(blocco(doc, 2), (QStringList { q("FATTURA N. XX/2009"), q("P.IVA.: "), q("C.Fiscale.: "), q(" ") }));
    EXPECT_EQ(blocco(doc, 3),
        (QStringList { q("MANCA OGGETTO!"), q("VALORE DELLA CONTROVERSIA: Indeterminabile €"), q(" ") }));

    r.elab = 0;
    r.valore = QString();
    r.oggetto = q("Causa") + CR + q("seconda riga");
    doc = componi(tabella({}), r);
    EXPECT_EQ(blocco(doc, 2), (QStringList { q("NOTA SPESE - COMPETENZE"), q(" ") }));
    EXPECT_EQ(blocco(doc, 3),
        (QStringList { q("Causa"), q("seconda riga"), q("VALORE DELLA CONTROVERSIA:  €"), q(" ") }));
    // A Nota spese with no items keeps one blank line as its sections.
    EXPECT_EQ(blocco(doc, 4), (QStringList { q(" ") }));
    verificaStyF(doc, 0);
}

TEST(CreaTesto, AClientOfThreeLinesMovesTheLaterParagraphsByTwo)
{
    const Tabella dati = billEsempio();
    for (int elab : { 0, 1 }) {
        Richiesta r;
        r.elab = elab;
        r.cliente = q("Spett.le");
        const Documento one = componi(dati, r);
        r.cliente = q("Spett.le") + CR + q("Comune di Siracusa") + CR + q("Piazza Duomo, 1");
        const Documento three = componi(dati, r);
        EXPECT_EQ(three.sty_f[0][1], one.sty_f[0][1]);
        EXPECT_EQ(three.sty_f[1][1], one.sty_f[1][1] + 2);
        for (size_t row = 2; row <= 6; ++row) {
            EXPECT_EQ(three.sty_f[row][0], one.sty_f[row][0] + 2) << row;
            EXPECT_EQ(three.sty_f[row][1], one.sty_f[row][1] + 2) << row;
        }
        verificaStyF(three, elab);
        EXPECT_EQ(blocco(three, 1).mid(3, 3),
            (QStringList { q("Spett.le"), q("Comune di Siracusa"), q("Piazza Duomo, 1") }));
    }
}

TEST(CreaTesto, SectionsOfANotaSpese)
{
    const Tabella dati = tabella({
        { "Onorari giudiziali", "Studio", "-0,01", "0,01" },
        { "Diritti", "Redazione di comparse conclusionali e memorie illustrative di replica in grado di appello",
            "1", "80", "2" },
    });
    const Documento doc = componi(dati);
    // Labels keep their ": " and bear no letter; a section of one line has no total.
    EXPECT_EQ(blocco(doc, 4),
        (QStringList { q(" "), q("DIRITTI: "), q(" Redazione di comparse conclusionali e memorie "),
            q(" illustrative di replica in grado di appello") + blanks(11) + q("   2 X         80,00 =      160,00 €"),
            q(" "), q("ONORARI: "), L("Studio", "100,00"), q(" ") }));
    EXPECT_EQ(blocco(doc, 5).mid(2, 3), (QStringList { L("(A) DIRITTI:", "160,00"), q(" "), L("(B) ONORARI:", "100,00") }));
    verificaStyF(doc, 0);
}

TEST(CreaTesto, PlaceIsScannedOutOfTheTown)
{
    struct Case {
        const char *town;
        const char *place;
    };
    const Case cases[] = {
        { "00100 Roma", "Roma" },
        { "98100 Messina", "Messina" },
        { "Reggio Emilia", "Reggio" },
        { "San Remo", "San" },
        { "Firenze", "Firenze" },
        { "Forlì", "Forl" },
        { "Città di Castello", "Citt" },
        { "00100", "" },
        { "", "" },
        { " Roma", "Roma" },
        { "00100  Roma Nord", "Roma" },
        { "Roma-Nord", "RomaNord" },
        { "[Roma]_^`", "[Roma]_^`" },
        { "Az{|}~", "Az" },
    };
    for (const auto &c : cases)
        EXPECT_EQ(estrai_luogo(q(c.town)), q(c.place)) << c.town;
}
