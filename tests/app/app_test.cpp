// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/app.h"
#include "app/menubar.h"
#include "core/bill_file.h"
#include "core/quit.h"
#include "core/ui/fin_avverti.h"
#include "core/ui/fin_dati_utente.h"
#include "editor/ui/finestra_fixture.h"

#include <QAction>

using namespace lumetra;
using namespace lumetra::test;
using namespace Qt::StringLiterals;

namespace {

class Commands : public FinestraTest {
protected:
    App &app() { return *App::instance(); }
    bool registraAttivo() { return app().menuBar()->item(u("ArchivioRegistra"))->isEnabled(); }

    // A bill of a client of two lines, a subject, a value and one item.
    void componi()
    {
        digita(EditField2, u("Spett.le"));
        QTest::keyClick(EditField2, Qt::Key_Return);
        digita(EditField2, u("Comune"));
        digita(EditField1, u("Causa contro Tizio"));
        valore(u("10000"));
        scegli(kDiritti);
        spunta(Listbox1, riga(Listbox1, kEsameStudio), 4);
    }

    // Answers the warning with Continua (true) or Annulla (false); Escape is no third answer.
    void rispondi(bool continua)
    {
        onNextModal([continua](QWidget *modal) {
            auto *dialog = qobject_cast<fin_avverti *>(modal);
            ASSERT_NE(dialog, nullptr);
            QTest::keyClick(dialog, Qt::Key_Escape);
            EXPECT_TRUE(dialog->isVisible());
            QTest::mouseClick(continua ? dialog->PushButton1 : dialog->PushButton2, Qt::LeftButton);
        });
    }
};

} // namespace

TEST_F(Commands, SaveNewAndReopenBringTheBillBack)
{
    componi();
    const QString path = folderPath(u("Causa.qX9"));
    fake.saveAnswers.push_back(path);
    app().ArchivioRegistracome_Action();
    EXPECT_TRUE(fake.proposals.last() == u("Parcella.qX9") && !globali().modificato);
    const QByteArray saved = readBytes(path);
    EXPECT_TRUE(saved.startsWith("***PARCELLA***\rCausa contro Tizio\r**********\rSpett.le\rComune\r**********\r"
                                 "10000\r60\r"));
    EXPECT_FALSE(registraAttivo()); // grey after a first "Registra come.."
    app().ArchivioNuovo_Action(); // clean: no question
    EXPECT_TRUE(EditField1->Text().isEmpty() && Listbox2->ListCount() == 2);

    fake.openAnswers.push_back(path);
    app().ArchivioApri_Action();
    EXPECT_EQ(QStringList({EditField1->Text(), EditField2->Text(), EditQuantum->Text(), Listbox2->Cell(0, 5)}),
              (QStringList{u("Causa contro Tizio"), u("Spett.le\rComune"), u("10000"), u("300")}));
    EXPECT_TRUE(!globali().modificato && registraAttivo());
    app().ArchivioRegistra_Action();
    EXPECT_EQ(readBytes(path), saved);
    // Both dialogs offer the bills by a name a user reads.
    EXPECT_EQ(fake.filters, QStringList(2, u("Parcella Lumetra (*.qX9)")));
}

TEST_F(Commands, GuardAnsweredBothWays)
{
    componi();
    for (auto action : {&App::ArchivioNuovo_Action, &App::ArchivioApri_Action, &App::FileQuit_Action}) {
        rispondi(false);
        (app().*action)();
        EXPECT_TRUE(globali().modificato && EditField1->Text() == u("Causa contro Tizio"));
    }
    EXPECT_TRUE(quits.isEmpty());
    // "Continua" and then a cancelled open dialog: the bill stays, the flag goes.
    rispondi(true);
    app().ArchivioApri_Action();
    EXPECT_TRUE(!globali().modificato && EditField1->Text() == u("Causa contro Tizio"));
    // "Nuovo" keeps the withholding setting and turns VAT back on.
    checkiva->click();
    checkrite->click();
    rispondi(true);
    app().ArchivioNuovo_Action();
    EXPECT_TRUE(EditField1->Text().isEmpty() && checkiva->isChecked() && globali().iva && !globali().rite);
}

// A bill saved without VAT and with "Indeterminabile" typed, opened by the desktop over unsaved changes.
TEST_F(Commands, DocumentsFromTheDesktopTurnVatOn)
{
    writeFile(u("Senza IVA.qX9"), scriviParcella({{}, {}, u("Indeterminabile"), false, false}, dati()));
    EditField1->setText(u("modifiche non registrate"));
    app().Event_OpenDocument(folderPath(u("Senza IVA.qX9"))); // no question
    EXPECT_TRUE(!checkiva->isChecked() && globali().iva && !globali().rite && !globali().modificato);
    EXPECT_EQ(EditQuantum->Text(), u("Indeterminabil")); // through the value filter
    fake.openAnswers.push_back(folderPath(u("Senza IVA.qX9")));
    app().ArchivioApri_Action();
    EXPECT_FALSE(globali().iva); // the menu leaves it as the file says
}

using Startup = UiTest;

TEST_F(Startup, MissingTariffShowsTheMessageAndNoWindow)
{
    writeFile(u"utenza.txt"_s, QByteArray());
    App::instance()->Event_Open();
    EXPECT_EQ(fake.messages,
              QStringList{u"File dei dati tariffari non trovato nella cartella dell'applicazione!\r\r"
                          "(tarriffe_database.txt non trovato)"_s});
    // No window; the last step of start-up still runs before the loop ends.
    EXPECT_TRUE(!finestra::exists() && quits == QList<int>{0} && globali().iva && globali().rite);
}

// The form comes before the main window; "Registra" keeps the reserved line 0.
TEST_F(Startup, FirstRunAsksForTheUserDataBeforeTheMainWindow)
{
    copyData(u"tariffa_piccola.txt"_s, u"tariffe_database.txt"_s);
    globali().utenza[0] = u"riservato"_s;
    bool mainWindowBeforeSave = true;
    onNextModal([&](QWidget *modal) {
        auto *form = qobject_cast<fin_dati_utente *>(modal);
        ASSERT_NE(form, nullptr);
        mainWindowBeforeSave = finestra::exists();
        QTest::keyClicks(form->EditFute[1], u"Avv. Tizio Caio"_s);
        QTest::mouseClick(form->PushBreg, Qt::LeftButton);
    });
    App::instance()->Event_Open();
    EXPECT_TRUE(!mainWindowBeforeSave && globali().utenza[1] == u"Avv. Tizio Caio"_s);
    // In the user's own folder, made for it: the program's may not be writable.
    EXPECT_EQ(readBytes(folderPath(u"utente/utenza.txt"_s)), QByteArray("riservato\nAvv. Tizio Caio\n\n\n\n\n\n\n\n"));
    EXPECT_TRUE(finestra::instance().isVisible());
}

TEST_F(Startup, FailuresEndTheProgramWithStatus1)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    writeFile(u"utenza.txt"_s, QByteArray());
    writeFile(u"tariffe_database.txt"_s, QByteArray("riga\n").repeated(56));
    EXPECT_EXIT(
        {
            App::failureSink() = nullptr;
            App::setStarted(false);
            quitHandler() = [](int code) { QCoreApplication::exit(code); };
            QTimer::singleShot(0, [] { App::instance()->Event_Open(); });
            App::exec();
        },
        ::testing::ExitedWithCode(1), "Errore imprevisto: .*55 righe");
}
