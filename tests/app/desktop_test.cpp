// SPDX-License-Identifier: GPL-3.0-or-later
// What a desktop user expects of the main window: the keyboard leaves the
// lists, a bill dropped on the window opens, the dialogs speak Italian and
// open where the user works.

#include "core/bill_file.h"
#include "core/ui/dialogs.h"
#include "editor/ui/finestra_fixture.h"
#include "help/istruzioni.h"
#include "help/ui/fin_aiuto.h"

#include <QTextEdit>

using namespace lumetra;
using namespace lumetra::test;

TEST_F(FinestraTest, TabAndShiftTabLeaveTheLists)
{
    scegli(kDiritti, 0);
    // list, the control Tab goes to, the one Shift+Tab goes to
    const std::tuple<Listbox *, QWidget *, QWidget *> cases[] = {
        {Listbox2, checkiva, EditQuantum},
        {Listbox1, checkrite, EditCerca},
    };
    for (const auto &[list, next, previous] : cases) {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Tab);
        EXPECT_TRUE(next->hasFocus()) << list->objectName().toStdString();
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_TRUE(previous->hasFocus()) << list->objectName().toStdString();
    }
}

TEST_F(FinestraTest, ABillDroppedOnTheWindowOpensAsApriOpensIt)
{
    writeFile(u("Trascinata.qX9"), scriviParcella({u("Causa trascinata"), {}, u("3000"), true, true}, dati()));
    digita(EditField1, u("modifiche")); // unsaved: the warning comes first
    EXPECT_FALSE(lascia(EditField2, folderPath(u("lettera.txt")))); // not a bill: left to the field
    continua();
    EXPECT_TRUE(lascia(EditField2, folderPath(u("Trascinata.qX9")))); // on a field too
    settle(); // the bill opens once the drop is over
    EXPECT_TRUE(EditField1->Text() == u("Causa trascinata") && globali().nome_attuale == u("Trascinata.qX9"));
    EXPECT_TRUE(avvisi == 1 && !globali().modificato);
}

TEST_F(FinestraTest, DialogsSpeakItalianAndOpenWhereTheUserWorks)
{
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u("Annulla"));
    EXPECT_EQ(QCoreApplication::translate("QFileDialog", "Look in:"), u("Cerca in:"));

    EXPECT_EQ(dialogFolder(), QDir::homePath());
    QDir(dir.path()).mkdir(u("archivio"));
    rememberFolder(folderPath(u("archivio/Causa.qX9")));
    EXPECT_EQ(dialogFolder(), folderPath(u("archivio")));
    globali().file_attuale = folderPath(u("Bozza.qX9"));
    EXPECT_EQ(dialogFolder(), dir.path());
}

TEST_F(FinestraTest, TheManualIsShownAndClosingItBringsTheMainWindowBack)
{
    writeFile(u("istruzioni.rtf"), "{\\rtf1\\ansi\\ansicpg1252 Manuale {\\b d\\'92uso}\\par}");
    x_istruzioni() = {};
    w->hide();
    onNextModal([](QWidget *modal) {
        auto *aiuto = qobject_cast<fin_aiuto *>(modal);
        ASSERT_NE(aiuto, nullptr);
        EXPECT_EQ(aiuto->EditF->toPlainText(), u("Manuale d’uso\n"));
        aiuto->close();
    });
    App::instance()->AiutoMostraaiuto_Action();
    EXPECT_TRUE(w->isVisible());
    x_istruzioni() = {};
}
