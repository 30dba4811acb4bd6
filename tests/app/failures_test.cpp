// The user's work is never lost: saves that fail leave the old file and the
// bill as they were, and no field can break the lines of a saved file.

#include "advance/ui/fin_acconto.h"
#include "core/ui/fin_dati_utente.h"
#include "editor/ui/finestra_fixture.h"

#include <QClipboard>
#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

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
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const QByteArray folder = dir.path().toLocal8Bit();
    const bool root = geteuid() == 0;
    QDir(dir.path()).mkdir(u("sparita"));
    const std::tuple<const char *, std::function<int()>, std::function<int()>> cases[] = {
        // The system cuts the write half way, as on a disk that fills up.
        {"(file troppo grande)",
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
         [&] { return root ? seteuid(0) : chmod(folder.constData(), 0700); }},
        // The folder removed between the choice of the file and the save.
        {"(cartella o file inesistente)",
         [&] {
             globali().file_attuale = folderPath(u("sparita/Causa.qX9"));
             return QDir(folderPath(u("sparita"))).removeRecursively() ? 0 : 1;
         },
         [&] { return 0; }},
    };
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

TEST_F(Failures, TheUserDataFormIsModalFromTheMenuToo)
{
    App::instance()->ArchivioDatiUtente_Action();
    ASSERT_TRUE(fin_dati_utente::exists());
    EXPECT_EQ(QApplication::activeModalWidget(), fin_dati_utente::existing());
    delete fin_dati_utente::existing();
}
