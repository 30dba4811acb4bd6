// SPDX-License-Identifier: GPL-3.0-or-later
// Time from a keystroke in EditQuantum or EditCerca to both lists rebuilt
// (handler, listing, bill view and the fill of the two lists), with the
// shipped tariff and with a generated one of 20,000 rows, of which one
// sub-category lists 2,000 and 200 are on the bill.
//
//   bench_editor [repetitions]
//
// Runs offscreen unless QT_QPA_PLATFORM says otherwise. Prints the median,
// the 10th and 90th percentiles, and the median with the repaint that follows.

#include "app/app.h"
#include "core/encodings.h"
#include "core/globali.h"
#include "core/paths.h"
#include "core/ui/edit_field.h"
#include "editor/bill.h"
#include "editor/listing.h"
#include "editor/ui/finestra.h"
#include "editor/ui/listbox.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <map>
#include <vector>

using namespace lumetra;

namespace {

struct Stats {
    double p10, median, p90;
};

Stats stats(std::vector<double> ms)
{
    std::sort(ms.begin(), ms.end());
    auto at = [&](double f) { return ms[size_t(f * double(ms.size() - 1) + 0.5)]; };
    return {at(0.1), at(0.5), at(0.9)};
}

// A tariff of n rows: `listed` of them in Diritti / Processo di esecuzione,
// the rest spread over other sub-categories.
QByteArray generatedTariff(int n, int listed)
{
    // Ten other sub-categories share the rest, none as large as the listed one.
    const char *other[][2] = {{"Spese", "Spese"},
                              {"Diritti", "Procedimenti speciali"},
                              {"Diritti", "Diritto di vacazione"},
                              {"Diritti", "Altro"},
                              {"Onorari giudiziali", "Giudici di pace"},
                              {"Onorari giudiziali", "Trasferte"},
                              {"Ambito penale", "Tribunale collegiale"},
                              {"Ambito penale", "Gip E Gup"},
                              {"Ambito stragiudiziale", "Prestazioni di consulenza"},
                              {"Ambito stragiudiziale", "Prestazioni di assistenza"}};
    QStringList lines;
    int others = 0;
    for (int i = 0; i < n; ++i) {
        const bool inList = i % (n / listed) == 0;
        const int k = inList ? 0 : others++ % 10;
        lines << QString::fromUtf8(inList ? "Diritti" : other[k][0])
              << QString::fromUtf8(inList ? "Processo di esecuzione" : other[k][1])
              << QStringLiteral("Voce generata numero %1 per la prova dei tempi").arg(i)
              << (i % 3 == 0 ? QStringLiteral("Nota della voce %1").arg(i) : QString());
        lines << QStringLiteral("1000") << QStringLiteral("10") << QStringLiteral("20") << QStringLiteral("5000")
              << QStringLiteral("30") << QStringLiteral("60") << QStringLiteral("25000") << QStringLiteral("100")
              << QStringLiteral("250") << QStringLiteral("> 25000") << QStringLiteral("0,01") << QStringLiteral("0,02")
              << QStringLiteral("INDET.") << QStringLiteral("40") << QStringLiteral("80") << QStringLiteral("IMPORT.")
              << QStringLiteral("90") << QStringLiteral("150") << QStringLiteral("**********");
    }
    return toMacRoman(lines.join(QLatin1Char('\n')));
}

// Puts `count` rows on the bill, spread through the table, by every kind of pick.
void fillBill(int count)
{
    Tabella &dati = globali().dati;
    const int n = dati.contatore();
    if (n == 0)
        return;
    const char *states[] = {"1", "2", "3", "-75"};
    const int step = std::max(1, n / count);
    int placed = 0;
    for (int r = 1; r <= n && placed < count; r += step, ++placed)
        dati.at(r, kColStato) = QString::fromLatin1(states[placed % 4]);
}

// The main window's controls, found by name as the user finds them.
struct Controls {
    explicit Controls(finestra &w)
        : EditQuantum(w.findChild<EditLine *>(QStringLiteral("EditQuantum"))),
          EditCerca(w.findChild<EditLine *>(QStringLiteral("EditCerca"))),
          PopCatA(w.findChild<QComboBox *>(QStringLiteral("PopCatA"))),
          PopCatB(w.findChild<QComboBox *>(QStringLiteral("PopCatB"))),
          Listbox1(w.findChild<Listbox *>(QStringLiteral("Listbox1"))),
          Listbox2(w.findChild<Listbox *>(QStringLiteral("Listbox2")))
    {
    }
    EditLine *EditQuantum;
    EditLine *EditCerca;
    QComboBox *PopCatA;
    QComboBox *PopCatB;
    Listbox *Listbox1;
    Listbox *Listbox2;
};

// The largest sub-category of the loaded table, as PopCatA and PopCatB indexes.
std::pair<int, int> largestSubCategory(const Controls &w)
{
    std::map<std::pair<QString, QString>, int> counts;
    const Tabella &dati = globali().dati;
    for (int r = 1; r <= dati.contatore(); ++r)
        ++counts[{dati.at(r, kColCategoria), dati.at(r, kColSottocategoria)}];
    std::pair<int, int> best{0, 0};
    int bestCount = -1;
    for (int a = 2; a < w.PopCatA->count(); ++a) {
        w.PopCatA->setCurrentIndex(a);
        for (int b = 0; b < w.PopCatB->count(); ++b) {
            const auto it = counts.find({w.PopCatA->itemText(a), w.PopCatB->itemText(b)});
            if (it != counts.end() && it->second > bestCount) {
                bestCount = it->second;
                best = {a, b};
            }
        }
    }
    return best;
}

struct Timing {
    Stats handler;
    double withPaint;
};

// Alternately types a character and takes it away, timing each key press.
Timing timeKeys(QWidget *field, const QString &text, int repetitions)
{
    std::vector<double> ms;
    std::vector<double> painted;
    QElapsedTimer t;
    for (int i = -3; i < repetitions; ++i) {
        for (int k = 0; k < int(text.size()) * 2; ++k) {
            const bool back = k >= int(text.size());
            t.start();
            if (back)
                QTest::keyClick(field, Qt::Key_Backspace);
            else
                QTest::keyClick(field, text.at(k).toLatin1());
            const double handled = double(t.nsecsElapsed()) / 1e6;
            QCoreApplication::processEvents();
            const double shown = double(t.nsecsElapsed()) / 1e6;
            if (i >= 0) {
                ms.push_back(handled);
                painted.push_back(shown);
            }
        }
    }
    return {stats(ms), stats(painted).median};
}

void run(const char *name, int repetitions, int billRows)
{
    fillBill(billRows);
    finestra &window = App::instance()->mainWindow();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        std::printf("  (the window was not shown)\n");
    const Controls w(window);
    w.EditQuantum->setText(QStringLiteral("3000"));
    const auto [a, b] = largestSubCategory(w);
    w.PopCatA->setCurrentIndex(a);
    w.PopCatB->setCurrentIndex(b);
    std::printf("%s: %d tariff rows, %d listed (%s / %s), %d on the bill\n", name, globali().dati_contatore(),
                w.Listbox1->ListCount(), qPrintable(w.PopCatA->currentText()), qPrintable(w.PopCatB->currentText()),
                w.Listbox2->ListCount() - 2);

    w.EditQuantum->setFocus();
    QTest::keyClick(w.EditQuantum, Qt::Key_End);
    const Timing quantum = timeKeys(w.EditQuantum, QStringLiteral("12"), repetitions);
    w.EditCerca->setFocus();
    const Timing cerca = timeKeys(w.EditCerca, QStringLiteral("e"), repetitions * 2);
    if (w.EditQuantum->Text() != QStringLiteral("3000") || !w.EditCerca->Text().isEmpty())
        std::printf("  (the keys did not reach the fields)\n");
    // The logic alone, for the same listing and bill.
    std::vector<double> logic;
    QElapsedTimer t;
    const FiltroRicerca filtro{w.PopCatA->currentText(), w.PopCatB->currentText(), QString()};
    for (int i = 0; i < repetitions * 4; ++i) {
        t.start();
        const auto righe = righeRicerca(globali().dati, filtro, w.EditQuantum->Text(), 0);
        riprezza(globali().dati, w.EditQuantum->Text(), 0);
        const auto vista = vistaParcella(globali().dati, w.EditQuantum->Text());
        logic.push_back(double(t.nsecsElapsed()) / 1e6);
    }
    std::printf("  logic alone (listing and bill): median %.2f ms\n", stats(logic).median);
    std::printf("  EditQuantum: median %.2f ms (p10 %.2f, p90 %.2f); with repaint %.2f ms\n", quantum.handler.median,
                quantum.handler.p10, quantum.handler.p90, quantum.withPaint);
    std::printf("  EditCerca:   median %.2f ms (p10 %.2f, p90 %.2f); with repaint %.2f ms\n", cerca.handler.median,
                cerca.handler.p10, cerca.handler.p90, cerca.withPaint);
    delete &window;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    App app(argc, argv);
    const int repetitions = argc > 1 ? std::max(1, std::atoi(argv[1])) : 50;

    if (!carica_dati())
        return 1;
    run("shipped tariff", repetitions, std::max(1, globali().dati_contatore() / 10));

    QTemporaryDir dir;
    QFile f(dir.filePath(QStringLiteral("tariffe_database.txt")));
    if (!f.open(QIODevice::WriteOnly))
        return 1;
    f.write(generatedTariff(20000, 2000));
    f.close();
    setExecutableFolder(dir.path());
    if (!carica_dati())
        return 1;
    run("generated tariff", repetitions, 200);
    return 0;
}
