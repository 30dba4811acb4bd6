#include "core/tariff.h"
#include "tariffa/sorgente_tariffa.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {

QString u(const char *s) { return QString::fromUtf8(s); }

const char *kFisso = "Diritti|Altro|Voce||0|10|20|> 0|10|20|INDET.|10|20|IMPORT.|10|20";

} // namespace

TEST(SorgenteTariffa, RecordFaults)
{
    struct Case {
        const char *name;
        QString columns; // '|' between the columns
        const char *fault; // empty: the record is sound
    };
    QString diciassette = QStringLiteral("Diritti|Altro|Voce|");
    for (int i = 1; i <= 14; ++i)
        diciassette += QStringLiteral("|%1|1|2").arg(i);
    diciassette += QStringLiteral("|> 14|1|2|INDET.|1|2|IMPORT.|1|2");
    const Case cases[] = {
        {"value-independent item", u(kFisso), ""},
        {"bands, coefficients, IMPORT. before INDET.",
         u("Onorari giudiziali|Trasferte|Voce|Nota|5200|80|205|> 5200|0,000407|0,000975|IMPORT.|0|0|INDET.|210|1255"), ""},
        {"point as decimal mark", u("Diritti|Altro|Voce||600|1|2|> 600|0.02|0,03|INDET.|1|2|IMPORT.|1|2"),
         "colonna 8: minimo non numerico \"0.02\""},
        {"group sign in a limit", u("Diritti|Altro|Voce||1.600|1|2|> 1600|1|2|INDET.|1|2|IMPORT.|1|2"),
         "colonna 5: limite non valido \"1.600\""},
        {"missing figure left empty", u("Diritti|Altro|Voce||0||20|> 0|10|20|INDET.|10|20|IMPORT.|10|20"),
         "colonna 5: minimo non numerico \"\""},
        {"minimum above maximum", u("Diritti|Altro|Voce||0|909|450|> 0|10|20|INDET.|10|20|IMPORT.|10|20"),
         "colonna 5: minimo sopra il massimo"},
        {"open band first", u("Diritti|Altro|Voce||> 0|1|2|INDET.|1|2|IMPORT.|1|2"),
         "colonna 5: la fascia aperta non può essere la prima"},
        {"INDET. first", u("Diritti|Altro|Voce||INDET.|1|2|0|1|2|> 0|1|2|IMPORT.|1|2"),
         "colonna 5: \"INDET.\" non può essere la prima fascia"},
        {"no open band", u("Diritti|Altro|Voce||999999999999|1|2|INDET.|1|2|IMPORT.|1|2"),
         "manca la fascia aperta \"> ...\" che chiude la ricerca"},
        {"no IMPORT.", u("Diritti|Altro|Voce||0|1|2|> 0|1|2|INDET.|1|2"), "manca la fascia \"IMPORT.\""},
        {"INDET. twice", u("Diritti|Altro|Voce||0|1|2|> 0|1|2|INDET.|1|2|INDET.|1|2|IMPORT.|1|2"),
         "colonna 14: \"INDET.\" ripetuto"},
        {"limits not ascending", u("Diritti|Altro|Voce||1600|1|2|600|1|2|> 600|1|2|INDET.|1|2|IMPORT.|1|2"),
         "colonna 8: limite non crescente"},
        {"open band with another limit", u("Diritti|Altro|Voce||600|1|2|> 1600|1|2|INDET.|1|2|IMPORT.|1|2"),
         "colonna 8: la fascia aperta non ripete il limite precedente"},
        {"band by amount after the open one",
         u("Diritti|Altro|Voce||0|1|2|> 0|1|2|600|1|2|INDET.|1|2|IMPORT.|1|2"),
         "colonna 11: fascia per importo fuori posto"},
        {"band by amount after INDET.", u("Diritti|Altro|Voce||0|1|2|> 0|1|2|INDET.|1|2|600|1|2|IMPORT.|1|2"),
         "colonna 14: fascia per importo fuori posto"},
        {"incomplete last band", u("Diritti|Altro|Voce||0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2|600|1"),
         "l'ultima fascia non ha limite, minimo e massimo"},
        {"no band at all", u("Diritti|Altro|Voce|Nota"), "nessuna fascia di valore"},
        {"seventeen bands", diciassette, "più di 16 fasce (55 colonne, al massimo 52)"},
        {"empty category", u("|Altro|Voce||0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2"), "categoria vuota"},
        {"separator as a note", u("Diritti|Altro|Voce|**********|0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2"),
         "la colonna 4 è il separatore dei record"},
        {"carriage return in a note", u("Diritti|Altro|Voce|Una\rDue|0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2"),
         "la colonna 4 contiene un ritorno a capo"},
        {"character outside Mac Roman", u("Diritti|Altro|Voce → altra||0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2"),
         "la colonna 3 ha caratteri che Mac Roman non ha"},
    };
    for (const auto &c : cases) {
        const QStringList faults = difettiRecord(c.columns.split(QLatin1Char('|')));
        if (*c.fault == 0)
            EXPECT_TRUE(faults.isEmpty()) << c.name << ": " << faults.join(QStringLiteral("; ")).toStdString();
        else
            EXPECT_TRUE(faults.contains(u(c.fault)))
                << c.name << ": " << faults.join(QStringLiteral("; ")).toStdString();
    }
}

TEST(SorgenteTariffa, FileBytesLoadBackAsTheTable)
{
    // A byte order mark, a CR LF line, a blank line and trailing empty fields,
    // as a spreadsheet may save them.
    const QByteArray tabella = "\xef\xbb\xbf"
                               "categoria\tsottocategoria\tvoce\tnota\tlimite1\n"
                               "Spese\tSpese\tMarca da bollo\t\t0\t0\t0\t> 0\t0\t0\tINDET.\t0\t0\tIMPORT.\t0\t0\t\t\t\r\n"
                               "\n"
                               "Diritti\tAltro\tCaff\xc3\xa0\t\xe2\x82\xac 5\t600\t6\t6\t> 600\t0,02\t0,03\tINDET.\t0\t0\t"
                               "IMPORT.\t0\t0\n";
    const FileTariffe file = generaFileTariffe(tabella);
    ASSERT_TRUE(file.errori.isEmpty()) << file.errori.join(QStringLiteral("; ")).toStdString();
    EXPECT_EQ(file.bytes, QByteArray("Spese\nSpese\nMarca da bollo\n\n0\n0\n0\n> 0\n0\n0\nINDET.\n0\n0\nIMPORT.\n0\n0\n"
                                     "**********\n"
                                     "Diritti\nAltro\nCaff\x88\n\xdb 5\n600\n6\n6\n> 600\n0,02\n0,03\nINDET.\n0\n0\n"
                                     "IMPORT.\n0\n0\n**********\n"));

    const Tabella dati = caricaTabella(file.bytes);
    ASSERT_EQ(dati.contatore(), 2);
    EXPECT_EQ(dati.at(2, 3), u("Caffà"));
    EXPECT_EQ(dati.at(2, 4), u("€ 5"));
    EXPECT_EQ(dati.at(2, 14), u("IMPORT."));
    EXPECT_EQ(dati.at(2, 17), QString());
    EXPECT_DOUBLE_EQ(fascia(dati, 2, 1000, Prestabilito).massimo, 0.03);
}

TEST(SorgenteTariffa, FaultsNameTheLineAndWriteNothing)
{
    struct Case {
        const char *name;
        QByteArray tabella;
        const char *fault;
    };
    const QByteArray header = "categoria\tsottocategoria\tvoce\tnota\n";
    const QByteArray sound = QByteArray(kFisso).replace('|', '\t') + "\n";
    const Case cases[] = {
        {"no header", sound + sound, "riga 1: manca l'intestazione (categoria, sottocategoria, voce, nota, ...)"},
        {"header only", header, "la tabella non ha voci"},
        {"bad line after a blank one", header + sound + "\n" + QByteArray(sound).replace("> 0", "0"),
         "riga 4: colonna 8: limite non crescente"},
    };
    for (const auto &c : cases) {
        const FileTariffe file = generaFileTariffe(c.tabella);
        EXPECT_TRUE(file.errori.contains(u(c.fault))) << c.name << ": "
                                                      << file.errori.join(QStringLiteral("; ")).toStdString();
        EXPECT_TRUE(file.bytes.isEmpty()) << c.name;
    }
}
