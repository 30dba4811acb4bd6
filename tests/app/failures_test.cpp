// The user's work is never lost: saves that fail leave the old file and the
// bill as they were, and no field can break the lines of a saved file.

#include "advance/ui/fin_acconto.h"
#include "core/ui/fin_dati_utente.h"
#include "editor/ui/finestra_fixture.h"

#include <QClipboard>
#include <csignal>
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

TEST_F(Failures, AFileTooLargeForTheSystemLeavesTheOldOneWhole)
{
    // The system cuts the write half way, as on a disk that fills up.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{100, before.rlim_max};
    const auto signal = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
    const bool told = registraFallisce("(file troppo grande)");
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, signal);
    EXPECT_TRUE(told);
    EXPECT_EQ(readBytes(folderPath(u("Causa.qX9"))), saved);
}

TEST_F(Failures, AFolderThatCannotBeWrittenLeavesTheOldFileWhole)
{
    // Root writes anywhere: the save is made as nobody instead.
    const bool root = geteuid() == 0;
    const QByteArray folder = dir.path().toLocal8Bit();
    ASSERT_EQ(root ? seteuid(65534) : chmod(folder.constData(), 0555), 0);
    const bool told = registraFallisce("(permesso negato)");
    ASSERT_EQ(root ? seteuid(0) : chmod(folder.constData(), 0700), 0);
    EXPECT_TRUE(told);
    EXPECT_EQ(readBytes(folderPath(u("Causa.qX9"))), saved);
}

TEST_F(Failures, AFolderRemovedBeforeTheSave)
{
    QDir(dir.path()).mkdir(u("sparita"));
    fake.saveAnswers = {folderPath(u("sparita/Causa.qX9"))};
    QDir(folderPath(u("sparita"))).removeRecursively();
    QStringList failures;
    App::failureSink() = [&](const QString &message) { failures << message; };
    QMetaObject::invokeMethod(App::instance(), &App::ArchivioRegistracome_Action, Qt::QueuedConnection);
    settle();
    ASSERT_EQ(failures.size(), 1);
    EXPECT_TRUE(failures[0].endsWith(u("(cartella o file inesistente)"))) << failures[0].toStdString();
    EXPECT_TRUE(globali().modificato);
    EXPECT_EQ(globali().file_attuale, folderPath(u("Causa.qX9")));
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
    fin_dati_utente &form = fin_dati_utente::instance();
    for (int i = 1; i <= 8; ++i)
        EXPECT_EQ(incolla(form.EditFute[size_t(i)]), u("12 3 4")) << i;
    fin_acconto &calcolatore = fin_acconto::instance();
    calcolatore.show();
    EXPECT_EQ(incolla(calcolatore.EditQNL[0]), u("12 3 4"));
    calcolatore.close();

    // The cells that take typing: the name and quantity of a bill row, an own amount.
    for (auto [list, column] : {std::pair{Listbox2, 1}, std::pair{Listbox2, 3}, std::pair{Listbox1, 6}}) {
        list->setCellType(0, column, TipoModificabile);
        list->EditCell(0, column);
        QLineEdit *editor = nullptr;
        for (QLineEdit *open : list->viewport()->findChildren<QLineEdit *>())
            if (open->isVisible())
                editor = open;
        ASSERT_NE(editor, nullptr) << column;
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
