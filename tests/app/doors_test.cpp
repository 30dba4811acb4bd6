// SPDX-License-Identifier: GPL-3.0-or-later
// One door for every file the program reads: a FIFO (on Windows, which has
// none, a folder), wherever it comes in, is refused with its name, and nothing
// hangs.

#include "app/document_handover.h"
#include "app/menubar.h"
#include "core/ui/handler_guard.h"
#include "editor/ui/finestra_fixture.h"

using namespace lumetra;
using namespace lumetra::test;

TEST_F(FinestraTest, AFifoThroughEveryDoorIsRefusedWithItsName)
{
    const QString tubo = folderPath(u("tubo.qX9"));
    ASSERT_TRUE(nessunFile(tubo));
    digita(EditField1, u("Causa in corso"));

    // "Apri..", after the warning about the changes.
    continua();
    fake.openAnswers = {tubo};
    App::instance()->menuBar()->item(u("ArchivioApri"))->trigger();
    // A drop on the window; the real one, from another program, is the X11 test's.
    continua();
    lascia(EditField2, tubo);
    settle(50);
    // The start's own arguments, and a later start's, reach the running program alike.
    DocumentHandover handover(folderPath(u("handover")));
    handover.ready = true;
    handover.openDocument = [](const QString &d) { App::instance()->Event_OpenDocument(d); };
    for (const QString &document : documentArguments({u("lumetra"), tubo}))
        handover.deliver(document);
    settle(50);

    EXPECT_EQ(fake.messages, QStringList(3, u("Impossibile aprire il documento tubo.qX9:\r%1.").arg(kRifiuto)));
    EXPECT_TRUE(avvisi == 2 && EditField1->Text() == u("Causa in corso") && globali().modificato
                && globali().nome_attuale.isEmpty());

    // utenza.txt and the tariff, read at start: a failure that names the file (during start-up the program then
    // ends with status 1).
    QStringList failures;
    App::failureSink() = [&](const QString &message) { failures << message; };
    QDir(dir.path()).mkdir(u("utente"));
    for (const char *file : {"utente/utenza.txt", "utente/tariffe_database.txt"}) {
        ASSERT_TRUE(nessunFile(folderPath(u(file))));
        runGuarded([] { App::instance()->Event_Open(); });
        ASSERT_EQ(failures.size(), 1) << file;
        EXPECT_EQ(failures.takeFirst(),
                  u("Errore imprevisto: impossibile leggere il file %1: %2")
                      .arg(QDir::toNativeSeparators(folderPath(u(file))), kRifiuto));
        if (QString::fromUtf8(file).endsWith(u("utenza.txt"))) {
            ASSERT_TRUE(QFile::remove(folderPath(u(file))) || QDir().rmdir(folderPath(u(file))));
            writeFile(u(file), "\nAvv. Tizio Caio\n");
        }
    }
}
