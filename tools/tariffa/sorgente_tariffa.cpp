// SPDX-License-Identifier: GPL-3.0-or-later
#include "tariffa/sorgente_tariffa.h"

#include "core/encodings.h"
#include "core/tariff.h"

#include <QRegularExpression>
#include <optional>
#include <vector>

namespace lumetra {

namespace {

const QString kIndet = QStringLiteral("INDET.");
const QString kImport = QStringLiteral("IMPORT.");
const QString kAperta = QStringLiteral("> ");
constexpr int kMaxColonne = 52; // 4 texts and 16 bands

// Figures as the program reads them with its decimal comma, and nothing else:
// a point would be read as a group sign, so "0.02" would become 0.
std::optional<double> cifra(const QString &text)
{
    static const QRegularExpression forma(QStringLiteral("^[0-9]+(,[0-9]+)?$"));
    if (!forma.match(text).hasMatch())
        return std::nullopt;
    return QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
}

QString testo(const QString &s) { return QLatin1Char('"') + s + QLatin1Char('"'); }

struct VoceSorgente {
    int riga = 0; // line of the table, from 1, for messages
    RecordTariffa record;
};

struct TabellaSorgente {
    std::vector<VoceSorgente> voci;
    QStringList errori;
};

TabellaSorgente leggiTabellaSorgente(const QByteArray &utf8)
{
    TabellaSorgente tabella;
    QString text = QString::fromUtf8(utf8);
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    const QStringList righe = text.split(QLatin1Char('\n'));
    if (!righe.first().startsWith(QStringLiteral("categoria\t")))
        tabella.errori << QStringLiteral("riga 1: manca l'intestazione (categoria, sottocategoria, voce, nota, ...)");
    for (int i = 1; i < righe.size(); ++i) {
        QString riga = righe[i];
        if (riga.endsWith(QLatin1Char('\r')))
            riga.chop(1);
        if (riga.trimmed().isEmpty())
            continue;
        QStringList campi = riga.split(QLatin1Char('\t'));
        while (!campi.isEmpty() && campi.last().isEmpty())
            campi.removeLast();
        tabella.voci.push_back({i + 1, campi});
    }
    if (tabella.voci.empty())
        tabella.errori << QStringLiteral("la tabella non ha voci");
    return tabella;
}

} // namespace

QStringList difettiRecord(const RecordTariffa &record)
{
    QStringList difetti;
    const int n = int(record.size());
    const QString nomi[] = {QStringLiteral("categoria"), QStringLiteral("sottocategoria"), QStringLiteral("voce")};
    for (int i = 0; i < 3; ++i)
        if (i >= n || record[i].trimmed().isEmpty())
            difetti << nomi[i] + QStringLiteral(" vuota");
    for (int i = 0; i < n; ++i) {
        const QString &campo = record[i];
        if (campo == kSeparatore)
            difetti << QStringLiteral("la colonna %1 è il separatore dei record").arg(i + 1);
        // The program's reader ends a line at CR too: the column would split.
        if (campo.contains(QLatin1Char('\r')))
            difetti << QStringLiteral("la colonna %1 contiene un ritorno a capo").arg(i + 1);
        if (fromMacRoman(toMacRoman(campo)) != campo)
            difetti << QStringLiteral("la colonna %1 ha caratteri che Mac Roman non ha").arg(i + 1);
    }
    if (n > kMaxColonne)
        difetti << QStringLiteral("più di 16 fasce (%1 colonne, al massimo %2)").arg(n).arg(kMaxColonne);
    if (n < kColPrimaFascia + 2) {
        difetti << QStringLiteral("nessuna fascia di valore");
        return difetti;
    }
    if ((n - kColPrimaFascia + 1) % 3 != 0)
        difetti << QStringLiteral("l'ultima fascia non ha limite, minimo e massimo");

    // Bands by amount, then the open band, then INDET. and IMPORT.
    enum Fase { Importi, DopoAperta, Finali } fase = Importi;
    std::optional<double> ultimoLimite;
    bool aperta = false, indet = false, import = false;
    for (int c = kColPrimaFascia; c + 2 <= n; c += 3) {
        const QString &limite = record[c - 1];
        const QString dove = QStringLiteral("colonna %1: ").arg(c);
        const auto minimo = cifra(record[c]);
        const auto massimo = cifra(record[c + 1]);
        if (!minimo)
            difetti << dove + QStringLiteral("minimo non numerico ") + testo(record[c]);
        if (!massimo)
            difetti << dove + QStringLiteral("massimo non numerico ") + testo(record[c + 1]);
        if (minimo && massimo && *minimo > *massimo)
            difetti << dove + QStringLiteral("minimo sopra il massimo");

        if (limite == kIndet || limite == kImport) {
            bool &visto = limite == kIndet ? indet : import;
            if (c == kColPrimaFascia)
                difetti << dove + testo(limite) + QStringLiteral(" non può essere la prima fascia");
            if (visto)
                difetti << dove + testo(limite) + QStringLiteral(" ripetuto");
            visto = true;
            fase = Finali;
        } else if (limite.startsWith(kAperta)) {
            const auto soglia = cifra(limite.mid(kAperta.size()));
            if (c == kColPrimaFascia)
                difetti << dove + QStringLiteral("la fascia aperta non può essere la prima");
            else if (fase != Importi)
                difetti << dove + QStringLiteral("fascia aperta fuori posto");
            else if (!soglia || !ultimoLimite || *soglia != *ultimoLimite)
                difetti << dove + QStringLiteral("la fascia aperta non ripete il limite precedente");
            aperta = true;
            fase = DopoAperta;
        } else {
            const auto valore = cifra(limite);
            if (!valore)
                difetti << dove + QStringLiteral("limite non valido ") + testo(limite);
            else if (fase != Importi)
                difetti << dove + QStringLiteral("fascia per importo fuori posto");
            else if (ultimoLimite && *valore <= *ultimoLimite)
                difetti << dove + QStringLiteral("limite non crescente");
            if (valore)
                ultimoLimite = valore;
        }
    }
    if (!aperta)
        difetti << QStringLiteral("manca la fascia aperta \"> ...\" che chiude la ricerca");
    if (!indet)
        difetti << QStringLiteral("manca la fascia \"INDET.\"");
    if (!import)
        difetti << QStringLiteral("manca la fascia \"IMPORT.\"");
    return difetti;
}

FileTariffe generaFileTariffe(const QByteArray &tabellaUtf8)
{
    FileTariffe file;
    const TabellaSorgente tabella = leggiTabellaSorgente(tabellaUtf8);
    file.errori = tabella.errori;
    QString testoFile;
    for (const VoceSorgente &voce : tabella.voci) {
        for (const QString &difetto : difettiRecord(voce.record))
            file.errori << QStringLiteral("riga %1: %2").arg(voce.riga).arg(difetto);
        for (const QString &campo : voce.record)
            testoFile += campo + QLatin1Char('\n');
        testoFile += kSeparatore + QLatin1Char('\n');
    }
    if (file.errori.isEmpty())
        file.bytes = toMacRoman(testoFile);
    return file;
}

} // namespace lumetra
