#include "app/app.h"
#include "core/globali.h"
#include "core/quit.h"
#include "core/ui/edit_field.h"
#include "core/ui/fin_avverti.h"
#include "core/ui/fin_dati_utente.h"
#include "editor/ui/finestra.h"
#include "support/test_files.h"
#include "support/ui_fixture.h"

#include <QFile>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace lumetra;
using namespace lumetra::test;

namespace {

class Startup : public UiTest {};

const QString kMessaggioTariffa = QStringLiteral(
    "File dei dati tariffari non trovato nella cartella dell'applicazione!\r\r(tarriffe_database.txt non trovato)");

} // namespace

TEST_F(Startup, MissingTariffShowsTheMessageAndNoWindow)
{
    writeFile(QStringLiteral("utenza.txt"), QByteArray());
    App::instance()->Event_Open();
    ASSERT_EQ(fake.messages.size(), 1);
    EXPECT_EQ(fake.messages.first(), kMessaggioTariffa);
    EXPECT_FALSE(finestra::exists());
    EXPECT_EQ(quits, QList<int>{0});
    // The last step of start-up still runs before the loop ends.
    EXPECT_TRUE(globali().iva && globali().rite);
}

TEST_F(Startup, LoadsUserDataAndTariffAndShowsTheMainWindow)
{
    writeFile(QStringLiteral("utenza.txt"), QByteArray("\r\nAvv. Tizio Caio\r\nVia Roma 1\r\n98100 Messina\r\n"));
    writeFile(QStringLiteral("tariffe_database.txt"), smallTariff());
    globali().modificato = true;
    App::instance()->Event_Open();
    EXPECT_TRUE(fake.messages.isEmpty());
    const auto &g = globali();
    EXPECT_FALSE(g.modificato);
    EXPECT_EQ(g.utenza[3], QStringLiteral("98100 Messina"));
    EXPECT_EQ(g.utenza[4], QString());
    EXPECT_EQ(g.dati_contatore(), 16);
    EXPECT_TRUE(g.iva && g.rite);
    ASSERT_TRUE(finestra::exists());
    EXPECT_TRUE(finestra::instance().isVisible());
    EXPECT_EQ(finestra::instance().windowTitle(), QStringLiteral("Lumetra"));
}

TEST_F(Startup, FirstRunAsksForTheUserDataBeforeTheMainWindow)
{
    writeFile(QStringLiteral("tariffe_database.txt"), smallTariff());
    bool mainWindowBeforeSave = true;
    onNextModal([&](QWidget *modal) {
        auto *form = qobject_cast<fin_dati_utente *>(modal);
        ASSERT_NE(form, nullptr);
        mainWindowBeforeSave = finestra::exists();
        QTest::keyClick(form, Qt::Key_Escape); // it cannot be cancelled
        EXPECT_TRUE(form->isVisible());
        QTest::keyClicks(form->EditFute[1], QStringLiteral("Avv. Tizio Caio"));
        QTest::keyClicks(form->EditFute[3], QStringLiteral("00100 Roma"));
        QTest::mouseClick(form->PushBreg, Qt::LeftButton);
    });
    App::instance()->Event_Open();
    EXPECT_FALSE(mainWindowBeforeSave);
    EXPECT_EQ(globali().utenza[1], QStringLiteral("Avv. Tizio Caio"));
    // In the user's own folder, made for it: the program's may not be writable.
    EXPECT_FALSE(QFile::exists(folderPath(QStringLiteral("utenza.txt"))));
    EXPECT_EQ(readBytes(folderPath(QStringLiteral("utente/utenza.txt"))),
              QByteArray("\nAvv. Tizio Caio\n\n00100 Roma\n\n\n\n\n\n"));
    EXPECT_TRUE(finestra::instance().isVisible());
}

TEST_F(Startup, UserDataFormKeepsTheReservedLine)
{
    globali().utenza[0] = QStringLiteral("riservato");
    globali().utenza[5] = QStringLiteral("000 000001");
    writeFile(QStringLiteral("utenza.txt"), QByteArray()); // a portable copy is written where it is
    auto &form = fin_dati_utente::instance();
    EXPECT_EQ(form.EditFute[5]->text(), QStringLiteral("000 000001"));
    form.Show();
    form.EditFute[5]->clear();
    QTest::mouseClick(form.PushBreg, Qt::LeftButton);
    settle();
    EXPECT_FALSE(fin_dati_utente::exists());
    EXPECT_EQ(readBytes(folderPath(QStringLiteral("utenza.txt"))), QByteArray("riservato\n\n\n\n\n\n\n\n\n"));
}

TEST_F(Startup, WarningDialogHasNoThirdAnswer)
{
    globali().consenti = true;
    onNextModal([](QWidget *modal) {
        auto *dialog = qobject_cast<fin_avverti *>(modal);
        ASSERT_NE(dialog, nullptr);
        QTest::keyClick(dialog, Qt::Key_Escape);
        EXPECT_TRUE(dialog->isVisible());
        QTest::mouseClick(dialog->PushButton2, Qt::LeftButton);
    });
    fin_avverti::instance().ShowModal();
    EXPECT_FALSE(globali().consenti);
}

TEST_F(Startup, FailuresEndTheProgramWithStatus1)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    writeFile(QStringLiteral("utenza.txt"), QByteArray());
    writeFile(QStringLiteral("tariffe_database.txt"), QByteArray("riga\n").repeated(56));
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
