// SPDX-License-Identifier: GPL-3.0-or-later
// lumetra-render: turns a saved bill into the document the program would
// compose for it, as text, RTF, style map, bill list or tariff listing.
//
// The steps are the program's: load the tariff and the user data, open the
// bill as "Apri.." does, rebuild the bill list, then compose.

#include "core/bill_file.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/tariff.h"
#include "core/text_functions.h"
#include "core/user_data.h"
#include "core/value_filter.h"
#include "document/composer.h"
#include "document/crea_stile.h"
#include "editor/bill.h"
#include "editor/categories.h"
#include "editor/listing.h"
#include "richtext/rtf_writer.h"
#include "version.h"

#include <QCoreApplication>
#include <QDate>
#include <QFile>
#include <QHash>
#include <QStringList>
#include <cstdio>
#include <optional>
#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#endif

namespace {

using namespace lumetra;

const char *kUsage
    = "usage: lumetra-render --tariff FILE --user FILE --bill FILE [--mode 0|1|2] [--kind nota|fattura]\n"
      "                      [--date YYYY-MM-DD] [--decimal-mark ,|.]\n"
      "                      --output text|rtf|sty|bill|listing [--category TEXT --subcategory TEXT [--search TEXT]]\n"
      "       lumetra-render --help | --version\n";

const char *kVersion
    = "lumetra-render (Lumetra) %s\n"
      "License GPL-3.0-or-later: GNU GPL version 3 or later <https://www.gnu.org/licenses/gpl-3.0.html>.\n"
      "This is free software: you are free to change and redistribute it.\n"
      "There is NO WARRANTY, to the extent permitted by law.\n";

struct Options {
    bool help = false, version = false;
    QString tariff, user, bill;
    int mode = 0;
    int elab = 0;
    QDate date = QDate::currentDate();
    QChar decimalMark = QLatin1Char(',');
    QString output;
    std::optional<QString> category, subcategory, search;
};

struct UsageError {
    QString message;
};

struct ReadError {
    QString message;
};

Options parse(const QStringList &args)
{
    Options o;
    QHash<QString, QString> values;
    static const QStringList known
        = {QStringLiteral("--tariff"),       QStringLiteral("--user"),   QStringLiteral("--bill"),
           QStringLiteral("--mode"),         QStringLiteral("--kind"),   QStringLiteral("--date"),
           QStringLiteral("--decimal-mark"), QStringLiteral("--output"), QStringLiteral("--category"),
           QStringLiteral("--subcategory"),  QStringLiteral("--search")};
    for (int i = 1; i < args.size(); ++i) {
        const QString &flag = args[i];
        if (flag == QLatin1String("--help") || flag == QLatin1String("-h")) {
            o.help = true;
            return o;
        }
        if (flag == QLatin1String("--version")) {
            o.version = true;
            return o;
        }
        if (!known.contains(flag))
            throw UsageError{QStringLiteral("unknown argument: %1").arg(flag)};
        if (i + 1 >= args.size())
            throw UsageError{QStringLiteral("%1 needs a value").arg(flag)};
        if (values.contains(flag))
            throw UsageError{QStringLiteral("%1 given twice").arg(flag)};
        values.insert(flag, args[++i]);
    }
    for (const char *required : {"--tariff", "--user", "--bill", "--output"})
        if (!values.contains(QString::fromLatin1(required)))
            throw UsageError{QStringLiteral("%1 is required").arg(QString::fromLatin1(required))};
    o.tariff = values.value(QStringLiteral("--tariff"));
    o.user = values.value(QStringLiteral("--user"));
    o.bill = values.value(QStringLiteral("--bill"));
    o.output = values.value(QStringLiteral("--output"));
    static const QStringList outputs = {QStringLiteral("text"), QStringLiteral("rtf"), QStringLiteral("sty"),
                                        QStringLiteral("bill"), QStringLiteral("listing")};
    if (!outputs.contains(o.output))
        throw UsageError{QStringLiteral("--output must be one of text, rtf, sty, bill, listing")};
    if (values.contains(QStringLiteral("--mode"))) {
        const QString m = values.value(QStringLiteral("--mode"));
        if (m != QLatin1String("0") && m != QLatin1String("1") && m != QLatin1String("2"))
            throw UsageError{QStringLiteral("--mode must be 0, 1 or 2")};
        o.mode = m.toInt();
    }
    if (values.contains(QStringLiteral("--kind"))) {
        const QString k = values.value(QStringLiteral("--kind"));
        if (k != QLatin1String("nota") && k != QLatin1String("fattura"))
            throw UsageError{QStringLiteral("--kind must be nota or fattura")};
        o.elab = k == QLatin1String("fattura") ? 1 : 0;
    }
    if (values.contains(QStringLiteral("--date"))) {
        o.date = QDate::fromString(values.value(QStringLiteral("--date")), Qt::ISODate);
        if (!o.date.isValid())
            throw UsageError{QStringLiteral("--date must be YYYY-MM-DD")};
    }
    if (values.contains(QStringLiteral("--decimal-mark"))) {
        const QString d = values.value(QStringLiteral("--decimal-mark"));
        if (d != QLatin1String(",") && d != QLatin1String("."))
            throw UsageError{QStringLiteral("--decimal-mark must be , or .")};
        o.decimalMark = d[0];
    }
    if (values.contains(QStringLiteral("--category")))
        o.category = values.value(QStringLiteral("--category"));
    if (values.contains(QStringLiteral("--subcategory")))
        o.subcategory = values.value(QStringLiteral("--subcategory"));
    if (values.contains(QStringLiteral("--search")))
        o.search = values.value(QStringLiteral("--search"));
    if (o.category.has_value() != o.subcategory.has_value())
        throw UsageError{QStringLiteral("--category and --subcategory go together")};
    if (o.search && !o.category)
        throw UsageError{QStringLiteral("--search needs --category and --subcategory")};
    return o;
}

// The program's one door: a file it refuses ends the run with status 1.
QByteArray readFile(const QString &path)
{
    LetturaFile lettura = leggiFile(path);
    if (!lettura.rifiuto.isEmpty())
        throw ReadError{messaggioRifiuto(path, lettura.rifiuto)};
    return std::move(lettura.bytes);
}

void write(const QByteArray &bytes) { std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout); }

int run(const Options &o)
{
    setNumberConvention(o.decimalMark == QLatin1Char('.') ? pointConvention() : italianConvention());

    Tabella dati = caricaTabella(readFile(o.tariff));
    Utenza utenza;
    if (QFile::exists(o.user))
        utenza = leggiUtenza(readFile(o.user));

    // "Apri..": the program's own path, the rows into the table and the head
    // for the fields; EditQuantum takes the value through its filter.
    const LetturaParcella lettura = apriParcella(readFile(o.bill), dati);
    if (lettura.esito == EsitoLettura::NonParcella)
        throw ReadError{QStringLiteral("%1 is not a bill").arg(o.bill)};
    if (lettura.esito == EsitoLettura::SenzaFine)
        throw ReadError{QStringLiteral("%1 ends inside a section").arg(o.bill)};
    const QString editQuantum = filtraValore(lettura.testa.editQuantum).value_or(lettura.testa.editQuantum);

    // As every rebuild of the lists ends: the bill repriced, then its list.
    riprezza(dati, editQuantum, o.mode);
    const VistaParcella vista = vistaParcella(dati, editQuantum);

    const auto documento = [&] {
        return Crea_testo({.dati = dati,
                           .editQuantum = editQuantum,
                           .utenza = utenza,
                           .editField1 = lettura.testa.editField1,
                           .editField2 = lettura.testa.editField2,
                           .iva = lettura.testa.iva,
                           .rite = lettura.testa.rite,
                           .elab = o.elab,
                           .oggi = o.date});
    };

    QByteArray out;
    if (o.output == QLatin1String("text")) {
        out = documento().testo.toUtf8();
    } else if (o.output == QLatin1String("rtf")) {
        const Documento doc = documento();
        out = RTFData(Crea_stile(doc.testo, doc.sty_f, o.elab, 9, 12));
    } else if (o.output == QLatin1String("sty")) {
        const Documento doc = documento();
        for (int r = 0; r <= 6; ++r) {
            const auto &row = doc.sty_f[size_t(r)];
            out += QStringLiteral("%1 %2 %3 %4\n").arg(r).arg(row[0]).arg(row[1]).arg(row[2]).toUtf8();
        }
    } else if (o.output == QLatin1String("bill")) {
        for (const RigaParcella &riga : vista.righe) {
            QStringList cells;
            for (const Cella &c : riga)
                cells << c.testo;
            out += cells.join(QLatin1Char('\t')).toUtf8() + '\n';
        }
    } else { // listing
        const FiltroRicerca filtro{o.category.value_or(vociCategoria().at(0)), o.subcategory.value_or(QString()),
                                   o.search.value_or(QString())};
        for (const RigaRicerca &riga : righeRicerca(dati, filtro, editQuantum, o.mode)) {
            QStringList cells;
            int ticked = 0;
            for (int c = 0; c < int(riga.size()); ++c) {
                cells << riga[size_t(c)].testo;
                if (c >= RicMin && riga[size_t(c)].spunta && ticked == 0)
                    ticked = c;
            }
            out += (cells.join(QLatin1Char('\t')) + QLatin1Char('\t') + QString::number(ticked)).toUtf8() + '\n';
        }
    }
    write(out);
    std::fflush(stdout);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
#ifdef Q_OS_WIN
    // The bytes as composed: a text-mode stream would add a carriage return
    // before every line feed.
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    QCoreApplication app(argc, argv);
    try {
        const Options o = parse(QCoreApplication::arguments());
        if (o.help)
            std::fputs(kUsage, stdout);
        else if (o.version)
            std::printf(kVersion, kVersione);
        else
            return run(o);
        return 0;
    } catch (const UsageError &e) {
        std::fprintf(stderr, "lumetra-render: %s\n%s", qPrintable(e.message), kUsage);
        return 2;
    } catch (const ReadError &e) {
        std::fprintf(stderr, "lumetra-render: %s\n", qPrintable(e.message));
        return 1;
    } catch (const std::exception &e) {
        std::fprintf(stderr, "lumetra-render: Errore imprevisto: %s\n", e.what());
        return 1;
    }
}
