// SPDX-License-Identifier: GPL-3.0-or-later
// The user's work is never lost: saves that fail leave the old file and the
// bill as they were, no field can break the lines of a saved file, and a
// failure inside a handler is told once and leaves the window as it was.

#include "advance/ui/fin_acconto.h"
#include "app/menubar.h"
#include "core/bill_file.h"
#include "core/failure.h"
#include "core/ui/fin_dati_utente.h"
#include "document/ui/fin_elaborazione.h"
#include "editor/ui/finestra_fixture.h"

#include <QClipboard>
#include <functional>
#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace lumetra;
using namespace lumetra::test;

namespace {

class Failures : public FinestraTest {
protected:
    // A bill saved as Causa.qX9, then changed on the screen.
    void SetUp() override
    {
        FinestraTest::SetUp();
        valore(u("10000"));
        scegli(kDiritti, 0);
        spunta(Listbox1, riga(Listbox1, kEsameStudio), 4);
        fake.saveAnswers = {folderPath(u("Causa.qX9"))};
        App::instance()->ArchivioRegistracome_Action();
        saved = readBytes(folderPath(u("Causa.qX9")));
        digita(EditField1, u("Causa contro Tizio"));
        ASSERT_TRUE(globali().modificato);
    }

    // Saves with "Registra", as the menu does, from the event loop; true when
    // the failure was told, the bill is still modified and the window is there.
    bool registraFallisce(const char *reason)
    {
        QStringList failures;
        App::failureSink() = [&](const QString &message) { failures << message; };
        QMetaObject::invokeMethod(App::instance(), &App::ArchivioRegistra_Action, Qt::QueuedConnection);
        settle();
        return failures.size() == 1 && failures[0].contains(u(reason)) && globali().modificato && w->isVisible();
    }

    QByteArray saved;
};

} // namespace

TEST_F(Failures, ASaveThatFailsIsToldAndLeavesTheOldFileWhole)
{
    QDir(dir.path()).mkdir(u("sparita"));
    std::vector<std::tuple<const char *, std::function<int()>, std::function<int()>>> cases = {
        // The folder removed between the choice of the file and the save.
        {"(cartella o file inesistente)",
         [&] {
             globali().file_attuale = folderPath(u("sparita/Causa.qX9"));
             return QDir(folderPath(u("sparita"))).removeRecursively() ? 0 : 1;
         },
         [&] { return 0; }},
    };
#ifdef Q_OS_UNIX
    // A file size limit and a second user exist on Unix alone.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const QByteArray folder = dir.path().toLocal8Bit();
    const bool root = geteuid() == 0;
    // The system cuts the write half way, as on a disk that fills up.
    cases.insert(cases.begin(),
                 {{"(file troppo grande)",
                   [&] {
                       const rlimit limit{100, before.rlim_max};
                       std::signal(SIGXFSZ, SIG_IGN);
                       return setrlimit(RLIMIT_FSIZE, &limit);
                   },
                   [&] {
                       std::signal(SIGXFSZ, SIG_DFL);
                       return setrlimit(RLIMIT_FSIZE, &before);
                   }},
                  // A folder that cannot be written: root writes anywhere, so as nobody.
                  {"(permesso negato)", [&] { return root ? seteuid(65534) : chmod(folder.constData(), 0555); },
                   [&] { return root ? seteuid(0) : chmod(folder.constData(), 0700); }}});
#endif
    for (const auto &[reason, prepare, restore] : cases) {
        ASSERT_EQ(prepare(), 0) << reason;
        const bool told = registraFallisce(reason);
        ASSERT_EQ(restore(), 0) << reason;
        EXPECT_TRUE(told) << reason;
        EXPECT_EQ(readBytes(folderPath(u("Causa.qX9"))), saved) << reason;
    }
}

TEST_F(Failures, ALineBreakPastedIntoAOneLineFieldOrCellBecomesABlank)
{
    QApplication::clipboard()->setText(u("12\n3\r4"));
    const auto incolla = [](QLineEdit *field) {
        field->clear();
        field->paste();
        return field->text();
    };
    EXPECT_EQ(incolla(EditQuantum), u("12 3 4"));
    EXPECT_EQ(incolla(EditCerca), u("12 3 4"));
    EditCerca->clear(); // the listing back
    for (int i = 1; i <= 8; ++i)
        EXPECT_EQ(incolla(fin_dati_utente::instance().EditFute[size_t(i)]), u("12 3 4")) << i;
    EXPECT_EQ(incolla(fin_acconto::instance().EditQNL[0]), u("12 3 4"));

    // The cells that take typing: the name and quantity of a bill row, an own amount.
    for (auto [list, column] : {std::pair{Listbox2, 1}, std::pair{Listbox2, 3}, std::pair{Listbox1, 6}}) {
        list->setCellType(0, column, TipoModificabile);
        list->EditCell(0, column);
        QLineEdit *editor = list->viewport()->findChildren<QLineEdit *>().last();
        incolla(editor);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
        EXPECT_EQ(list->Cell(0, column), u("12 3 4")) << column;
    }
    // What reaches the file is one line a field.
    App::instance()->ArchivioRegistra_Action();
    EXPECT_EQ(readBytes(folderPath(u("Causa.qX9"))).count('\r'), saved.count('\r'));
}

namespace {

// An own tariff, which users may put in their data folder, with one more item whose bands end at 100: a value
// above that reads past column 55, and fails wherever the item is listed or priced.
class HandlerFailures : public FinestraTest {
protected:
    void SetUp() override
    {
        FinestraTest::SetUp();
        QDir(dir.path()).mkdir(u("utente"));
        writeFile(u("utente/tariffe_database.txt"),
                  readBytes(dataPath(u("tariffa_piccola.txt")))
                      + "**********\nDiritti\nProcesso di cognizione e procedimenti speciali e camerali\n"
                        "Voce senza fascia aperta\n\n100\n1\n2\n**********\n");
        ASSERT_TRUE(carica_dati());
        App::failureSink() = [this](const QString &message) { failures << message; };
        scegli(kDiritti, 0);
        valore(u("50"));
        ASSERT_EQ(Listbox1->ListCount(), 3);
    }

    QStringList failures;
};

} // namespace

// After the one "Errore imprevisto", the field filters, reprices and marks the bill as changed as before it.
TEST_F(HandlerFailures, AFieldWorksOnAfterAFailureInItsHandler)
{
    spunta(Listbox1, riga(Listbox1, kEsameStudio), 3); // Min: 100 up to 1000, 200 up to 10000
    digita(EditQuantum, u("0")); // 500: listing the new item fails
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures[0].startsWith(u("Errore imprevisto: indice fuori dai limiti della tabella tariffe")))
        << failures[0].toStdString();
    scegli(kOnorari); // the item out of the listing
    globali().modificato = false;
    digita(EditQuantum, u("0x,5")); // 5000, a letter dropped, a comma that becomes a point
    EXPECT_EQ(EditQuantum->Text(), u("5000.5"));
    EXPECT_EQ(Listbox2->Cell(0, 4), u("200"));
    EXPECT_TRUE(globali().modificato);
    EXPECT_EQ(failures.size(), 1);
}

// A bill opened while its value fails to list: one message, and the open stops there, so the bill is not taken
// for saved.
TEST_F(HandlerFailures, ACommandStopsWhereAHandlerItRaisedFailed)
{
    writeFile(u("Causa.qX9"), scriviParcella({u("Causa"), u("Cliente"), u("500"), true, true}, dati()));
    digita(EditField1, u("modifiche"));
    fake.openAnswers = {folderPath(u("Causa.qX9"))};
    continua();
    App::instance()->menuBar()->item(u("ArchivioApri"))->trigger();
    EXPECT_EQ(failures.size(), 1) << failures.join(u("\n")).toStdString();
    EXPECT_EQ(avvisi, 1);
    EXPECT_EQ(EditQuantum->Text(), u("500"));
    EXPECT_TRUE(globali().modificato);
}

// A document that fails to compose leaves the main window on the screen: it goes only once the document stands.
TEST_F(HandlerFailures, ADocumentThatFailsToComposeLeavesTheMainWindow)
{
    const auto apri = w->apriDocumento;
    bool nascosta = false;
    w->apriDocumento = [&](const std::function<void()> &composto) {
        if (nascosta)
            return apri(composto);
        throw UnhandledFailure(u("composizione fallita"));
    };
    QTest::mouseClick(w->findChild<QPushButton *>(u("PushCrea0")), Qt::LeftButton);
    EXPECT_EQ(failures, QStringList{u("Errore imprevisto: composizione fallita")});
    EXPECT_TRUE(w->isVisible());
    // Once it composes, the main window makes way for the output window, and comes back after it.
    nascosta = true;
    onNextModal([&](QWidget *modal) {
        EXPECT_FALSE(w->isVisible());
        modal->close();
    });
    QTest::mouseClick(w->findChild<QPushButton *>(u("PushCrea0")), Qt::LeftButton);
    EXPECT_TRUE(w->isVisible() && !fin_elaborazione::exists());
    w->apriDocumento = apri;
}

// "Dati Utente..": the new data become current only once they are on the disk.
TEST_F(FinestraTest, UserDataThatFailToSaveStayAsTheyWere)
{
    QStringList failures;
    App::failureSink() = [&](const QString &message) { failures << message; };
    globali().utenza[1] = u("Avv. Tizio Caio");
    QDir(dir.path()).mkdir(u("utenza.txt")); // where utenza.txt is to go, a folder: the save fails
    App::instance()->ArchivioDatiUtente_Action();
    fin_dati_utente &form = fin_dati_utente::instance();
    EXPECT_EQ(QApplication::activeModalWidget(), &form); // modal from the menu too
    form.EditFute[1]->setText(u("Avv. Sempronio"));
    form.PushBreg->click();
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(globali().utenza[1], u("Avv. Tizio Caio"));
    EXPECT_TRUE(form.isVisible()); // the user can try again
    delete &form;
}
