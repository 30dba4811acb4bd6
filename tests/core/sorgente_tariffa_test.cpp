#include "core/tariff.h"
#include "core/text_functions.h"
#include "tariffa/sorgente_tariffa.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {

QString u(const char *s) { return QString::fromUtf8(s); }

const char *kFisso = "Diritti|Altro|Voce||0|10|20|> 0|10|20|INDET.|10|20|IMPORT.|10|20";

} // namespace

TEST(SorgenteTariffa, RecordFaults)
{
    // '~' stands for "Diritti|Altro|Voce"; an empty fault: the record is sound.
    QString diciassette = u("~|");
    for (int i = 1; i <= 14; ++i)
        diciassette += QStringLiteral("|%1|1|2").arg(i);
    diciassette += u("|> 14|1|2|INDET.|1|2|IMPORT.|1|2");
    const std::pair<QString, const char *> cases[] = {
        {u(kFisso), ""},
        {u("Onorari giudiziali|Trasferte|Voce|Nota|5200|80|205|> 5200|0,000407|0,000975|IMPORT.|0|0|INDET.|210|1255"),
         ""}, // coefficients, IMPORT. before INDET.
        {u("~||600|1|2|> 600|0.02|0,03|INDET.|1|2|IMPORT.|1|2"), "colonna 8: minimo non numerico \"0.02\""},
        {u("~||1.600|1|2|> 1600|1|2|INDET.|1|2|IMPORT.|1|2"), "colonna 5: limite non valido \"1.600\""},
        {u("~||0||20|> 0|10|20|INDET.|10|20|IMPORT.|10|20"), "colonna 5: minimo non numerico \"\""},
        {u("~||0|909|450|> 0|10|20|INDET.|10|20|IMPORT.|10|20"), "colonna 5: minimo sopra il massimo"},
        {u("~||> 0|1|2|INDET.|1|2|IMPORT.|1|2"), "colonna 5: la fascia aperta non può essere la prima"},
        {u("~||INDET.|1|2|0|1|2|> 0|1|2|IMPORT.|1|2"), "colonna 5: \"INDET.\" non può essere la prima fascia"},
        {u("~||999999999999|1|2|INDET.|1|2|IMPORT.|1|2"), "manca la fascia aperta \"> ...\" che chiude la ricerca"},
        {u("~||0|1|2|> 0|1|2|INDET.|1|2"), "manca la fascia \"IMPORT.\""},
        {u("~||0|1|2|> 0|1|2|INDET.|1|2|INDET.|1|2|IMPORT.|1|2"), "colonna 14: \"INDET.\" ripetuto"},
        {u("~||1600|1|2|600|1|2|> 600|1|2|INDET.|1|2|IMPORT.|1|2"), "colonna 8: limite non crescente"},
        {u("~||600|1|2|> 1600|1|2|INDET.|1|2|IMPORT.|1|2"),
         "colonna 8: la fascia aperta non ripete il limite precedente"},
        {u("~||0|1|2|> 0|1|2|600|1|2|INDET.|1|2|IMPORT.|1|2"), "colonna 11: fascia per importo fuori posto"},
        {u("~||0|1|2|> 0|1|2|INDET.|1|2|600|1|2|IMPORT.|1|2"), "colonna 14: fascia per importo fuori posto"},
        {u("~||0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2|600|1"), "l'ultima fascia non ha limite, minimo e massimo"},
        {u("Diritti|Altro|Voce|Nota"), "nessuna fascia di valore"},
        {diciassette, "più di 16 fasce (55 colonne, al massimo 52)"},
        {u("|Altro|Voce||0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2"), "categoria vuota"},
        {u("~|**********|0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2"), "la colonna 4 è il separatore dei record"},
        {u("~|Una\rDue|0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2"), "la colonna 4 contiene un ritorno a capo"},
        {u("Diritti|Altro|Voce → altra||0|1|2|> 0|1|2|INDET.|1|2|IMPORT.|1|2"),
         "la colonna 3 ha caratteri che Mac Roman non ha"},
    };
    for (const auto &[columns, fault] : cases) {
        const QString record = QString(columns).replace(QLatin1Char('~'), u("Diritti|Altro|Voce"));
        const QStringList faults = difettiRecord(record.split(QLatin1Char('|')));
        EXPECT_TRUE(*fault ? faults.contains(u(fault)) : faults.isEmpty())
            << record.toStdString() << ": " << faults.join(QStringLiteral("; ")).toStdString();
    }
}

TEST(SorgenteTariffa, FileBytesLoadBackAsTheTable)
{
    // A byte order mark, a CR LF line, a blank line and trailing empty fields,
    // as a spreadsheet may save them.
    const QByteArray tabella
        = "\xef\xbb\xbf"
          "categoria\tsottocategoria\tvoce\tnota\tlimite1\n"
          "Spese\tSpese\tMarca da bollo\t\t0\t0\t0\t> 0\t0\t0\tINDET.\t0\t0\tIMPORT.\t0\t0\t\t\t\r\n"
          "\n"
          "Diritti\tAltro\tCaff\xc3\xa0\t\xe2\x82\xac 5\t600\t6\t6\t> 600\t0,02\t0,03\tINDET.\t0\t0\t"
          "IMPORT.\t0\t0\n";
    const FileTariffe file = generaFileTariffe(tabella);
    ASSERT_TRUE(file.errori.isEmpty()) << file.errori.join(QStringLiteral("; ")).toStdString();
    EXPECT_EQ(file.bytes,
              QByteArray("Spese\nSpese\nMarca da bollo\n\n0\n0\n0\n> 0\n0\n0\nINDET.\n0\n0\nIMPORT.\n0\n0\n"
                         "**********\n"
                         "Diritti\nAltro\nCaff\x88\n\xdb 5\n600\n6\n6\n> 600\n0,02\n0,03\nINDET.\n0\n0\n"
                         "IMPORT.\n0\n0\n**********\n"));

    const Tabella dati = caricaTabella(file.bytes);
    EXPECT_DOUBLE_EQ(CDbl(dati.at(2, cerca_scaglione(dati, 2, 1000, Prestabilito) + 2)), 0.03);
}

TEST(SorgenteTariffa, FaultsNameTheLineAndWriteNothing)
{
    const QByteArray header = "categoria\tsottocategoria\tvoce\tnota\n";
    const QByteArray sound = QByteArray(kFisso).replace('|', '\t') + "\n";
    const std::pair<QByteArray, const char *> cases[] = {
        {sound + sound, "riga 1: manca l'intestazione (categoria, sottocategoria, voce, nota, ...)"},
        {header, "la tabella non ha voci"},
        {header + sound + "\n" + QByteArray(sound).replace("> 0", "0"), "riga 4: colonna 8: limite non crescente"},
    };
    for (const auto &[tabella, fault] : cases) {
        const FileTariffe file = generaFileTariffe(tabella);
        EXPECT_TRUE(file.errori.contains(u(fault))) << file.errori.join(QStringLiteral("; ")).toStdString();
        EXPECT_TRUE(file.bytes.isEmpty()) << fault;
    }
}
