#include "app/menubar.h"
#include "core/bill_file.h"
#include "core/ui/fin_avverti.h"
#include "editor/ui/finestra_fixture.h"
#include "support/test_files.h"

#include <QAction>

using namespace lumetra;
using namespace lumetra::test;

namespace {

class Commands : public FinestraTest {
protected:
    App &app() { return *App::instance(); }
    QAction *item(const char *name) { return app().menuBar()->item(QString::fromLatin1(name)); }

    // A bill of a client, a subject, a value and two items: 350 in all.
    void componi()
    {
        digita(EditField2, u("Spett.le"));
        QTest::keyClick(EditField2, Qt::Key_Return);
        digita(EditField2, u("Comune di Siracusa"));
        digita(EditField1, u("Causa contro Tizio"));
        valore(u("10000"));
        scegli(kDiritti);
        spunta(Listbox1, riga(Listbox1, kEsameStudio), 4); // Max
        scegli(kSpese);
        spunta(Listbox1, riga(Listbox1, kNotifica), 6); // Pers.
        scriviInCella(Listbox1, u("50"));
    }

    // Answers the warning with Continua (true) or Annulla (false).
    void rispondi(bool continua)
    {
        onNextModal([continua](QWidget *modal) {
            auto *dialog = qobject_cast<fin_avverti *>(modal);
            ASSERT_NE(dialog, nullptr);
            QTest::mouseClick(continua ? dialog->PushButton1 : dialog->PushButton2, Qt::LeftButton);
        });
    }
};

} // namespace

TEST_F(Commands, SaveNewAndReopenBringTheBillBack)
{
    componi();
    const QStringList totals = colonna(Listbox2, 5);
    ASSERT_EQ(totals.last(), u("350"));
    const QString path = folderPath(u("Causa.qX9"));
    fake.saveAnswers.push_back(path);
    app().ArchivioRegistracome_Action();
    EXPECT_EQ(fake.proposals.last(), u("Parcella.qX9"));
    EXPECT_FALSE(globali().modificato);
    EXPECT_EQ(globali().file_attuale, path);
    const QByteArray saved = readBytes(path);
    EXPECT_TRUE(saved.startsWith("***PARCELLA***\rCausa contro Tizio\r**********\rSpett.le\rComune di Siracusa\r"
                                 "**********\r10000\r60\r"));
    EXPECT_FALSE(item("ArchivioRegistra")->isEnabled()); // grey after a first "Registra come.."

    app().ArchivioNuovo_Action(); // clean: no question
    EXPECT_EQ(EditField1->Text() + EditQuantum->Text(), QString());
    EXPECT_EQ(colonna(Listbox2, 4), (QStringList{u(""), u("TOTALE:")}));
    EXPECT_TRUE(globali().file_attuale.isEmpty());

    fake.openAnswers.push_back(path);
    app().ArchivioApri_Action();
    EXPECT_EQ(QStringList({EditField1->Text(), EditField2->Text(), EditQuantum->Text()}),
              (QStringList{u("Causa contro Tizio"), u("Spett.le\rComune di Siracusa"), u("10000")}));
    EXPECT_EQ(colonna(Listbox2, 5), totals);
    EXPECT_EQ(StaticText2->text(), u("18 / 280"));
    EXPECT_FALSE(globali().modificato);
    EXPECT_EQ(globali().nome_attuale, u("Causa.qX9"));
    EXPECT_TRUE(item("ArchivioRegistra")->isEnabled());
    app().ArchivioRegistra_Action();
    EXPECT_EQ(readBytes(path), saved);
}

TEST_F(Commands, GuardAnsweredBothWays)
{
    componi();
    for (auto action : {&App::ArchivioNuovo_Action, &App::ArchivioApri_Action, &App::FileQuit_Action}) {
        rispondi(false);
        (app().*action)();
        EXPECT_TRUE(globali().modificato);
        EXPECT_EQ(EditField1->Text(), u("Causa contro Tizio"));
    }
    EXPECT_TRUE(quits.isEmpty());
    rispondi(true);
    app().FileQuit_Action();
    EXPECT_EQ(quits, QList<int>{0});

    // "Continua" and then a cancelled open dialog: the bill stays, the flag goes.
    rispondi(true);
    app().ArchivioApri_Action();
    EXPECT_FALSE(globali().modificato);
    EXPECT_EQ(EditField1->Text(), u("Causa contro Tizio"));
    EXPECT_EQ(colonna(Listbox2, 5).last(), u("350"));

    // "Nuovo" keeps the withholding setting and turns VAT back on.
    checkiva->click();
    checkrite->click();
    rispondi(true);
    app().ArchivioNuovo_Action();
    EXPECT_EQ(EditField1->Text(), QString());
    EXPECT_FALSE(globali().modificato);
    EXPECT_TRUE(checkiva->isChecked() && globali().iva);
    EXPECT_FALSE(checkrite->isChecked() || globali().rite);
}

TEST_F(Commands, AFileThatIsNoBillIsTakenAsTheNameAndOverwritten)
{
    const QString foreign = folderPath(u("Bozza"));
    writeFile(u("Bozza"), QByteArray("lettera\r"));
    componi();
    rispondi(true);
    fake.openAnswers.push_back(foreign);
    app().ArchivioApri_Action();
    EXPECT_EQ(EditField1->Text(), u("Causa contro Tizio")); // the old bill stays
    EXPECT_EQ(globali().nome_attuale, u("Bozza"));
    app().ArchivioRegistracome_Action(); // cancelled
    EXPECT_EQ(fake.proposals.last(), u("Bozza.qX9"));
    app().ArchivioRegistra_Action();
    EXPECT_TRUE(readBytes(foreign).startsWith("***PARCELLA***\rCausa contro Tizio\r"));
}

TEST_F(Commands, DocumentsFromTheDesktopTurnVatOn)
{
    TestaParcella testa;
    testa.editQuantum = u("Indeterminabile");
    Tabella vuota;
    for (int r = 1; r <= globali().dati_contatore(); ++r)
        vuota.addRow();
    vuota.at(kEsameStudio, 0) = u("2");
    writeFile(u("Senza IVA.qX9"), scriviParcella(testa, vuota));
    EditField1->setText(u("modifiche non registrate"));

    app().Event_OpenDocument(folderPath(u("Senza IVA.qX9")));
    EXPECT_FALSE(checkiva->isChecked());
    EXPECT_TRUE(globali().iva);
    EXPECT_FALSE(globali().rite || globali().modificato);
    // The word goes through the value filter and loses its last letter.
    EXPECT_EQ(EditQuantum->Text(), u("Indeterminabil"));
    EXPECT_EQ(colonna(Listbox2, 0).first(), QString::number(kEsameStudio));

    fake.openAnswers.push_back(folderPath(u("Senza IVA.qX9")));
    app().ArchivioApri_Action();
    EXPECT_FALSE(globali().iva); // the menu leaves it as the file says
}

TEST_F(Commands, ModificaActsOnTheFocusedField)
{
    EditField1->setText(u("testo"));
    EditField1->setFocus();
    item("ModificaSelezionaTutto")->trigger();
    item("ModificaTaglia")->trigger();
    EXPECT_EQ(EditField1->Text(), QString());
    item("ModificaIncolla")->trigger();
    EXPECT_EQ(EditField1->Text(), u("testo"));
    EXPECT_TRUE(globali().modificato);
}
