// What a desktop user expects of the main window: the keyboard leaves the
// lists, a bill dropped on the window opens, the dialogs speak Italian and
// open where the user works.

#include "core/bill_file.h"
#include "core/ui/dialogs.h"
#include "core/ui/fin_avverti.h"
#include "editor/ui/finestra_fixture.h"

#include <QMimeData>
#include <QUrl>

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
    Tabella vuota;
    for (int r = 1; r <= globali().dati_contatore(); ++r)
        vuota.addRow();
    vuota.at(kEsameStudio, 0) = u("2");
    writeFile(u("Trascinata.qX9"), scriviParcella({u("Causa trascinata"), {}, u("3000"), true, true}, vuota));
    digita(EditField1, u("modifiche")); // unsaved: the warning comes first

    const auto drop = [this](QWidget *target, const QString &file) {
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(folderPath(file))});
        mime.setText(folderPath(file));
        const QPoint at = target->rect().center();
        QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        QDropEvent dropped(at, Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(target, &dropped);
        return enter.isAccepted() && dropped.isAccepted();
    };
    EXPECT_FALSE(drop(EditField2, u("lettera.txt"))); // not a bill: left to the field
    bool warned = false;
    onNextModal([&](QWidget *modal) {
        warned = qobject_cast<fin_avverti *>(modal) != nullptr;
        QTest::mouseClick(static_cast<fin_avverti *>(modal)->PushButton1, Qt::LeftButton); // Continua
    });
    EXPECT_TRUE(drop(EditField2, u("Trascinata.qX9"))); // on a field too
    EXPECT_TRUE(warned);
    EXPECT_EQ(EditField1->Text(), u("Causa trascinata"));
    EXPECT_EQ(EditField2->Text(), QString());
    EXPECT_EQ(globali().nome_attuale, u("Trascinata.qX9"));
    EXPECT_FALSE(globali().modificato);
    EXPECT_EQ(colonna(Listbox2, 0).first(), QString::number(kEsameStudio));
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
