// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The main window over the small test tariff, and the user's gestures on it.

#include "app/app.h"
#include "core/globali.h"
#include "core/ui/edit_field.h"
#include "core/ui/fin_avverti.h"
#include "editor/tariff_builder.h"
#include "editor/ui/finestra.h"
#include "editor/ui/listbox.h"
#include "support/ui_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

namespace lumetra::test {

// PopCatA's entries.
constexpr int kSpese = 2;
constexpr int kDiritti = 3;
constexpr int kOnorari = 4;
constexpr int kAcconti = 7;

class FinestraTest : public UiTest {
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        copyData(u("tariffa_piccola.txt"), u("tariffe_database.txt"));
        ASSERT_TRUE(carica_dati());
        w = &finestra::instance();
        trova(EditField1, "EditField1", EditField2, "EditField2", EditQuantum, "EditQuantum", EditCerca, "EditCerca",
              EditNota, "EditNota", PopImport, "PopImport", PopCatA, "PopCatA", PopCatB, "PopCatB", checkiva,
              "checkiva", checkrite, "checkrite", Listbox1, "Listbox1", Listbox2, "Listbox2", StaticText2,
              "StaticText2", StaticText11, "StaticText11");
        w->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(w));
        globali().iva = globali().rite = true; // as at start-up
        globali().modificato = false;
    }

    Tabella &dati() { return globali().dati; }

    // Controls of the main window, found by their names as the user finds them on the screen.
    template <class T, class... Rest>
    void trova(T *&control, const char *name, Rest &&...rest)
    {
        control = w->findChild<T *>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        if constexpr (sizeof...(rest) > 0)
            trova(rest...);
    }

    void scegli(int categoria, int sottocategoria = 0)
    {
        PopCatA->setCurrentIndex(categoria);
        PopCatB->setCurrentIndex(sottocategoria);
    }

    void digita(QWidget *field, const QString &text) { QTest::keyClicks(field, text); }

    void valore(const QString &text)
    {
        EditQuantum->setText(QString());
        digita(EditQuantum, text);
    }

    // The list row that shows tariff row r, or -1.
    static int riga(const Listbox *list, int r) { return colonna(list, 0).indexOf(QString::number(r)); }

    static QStringList colonna(const Listbox *list, int column)
    {
        QStringList t;
        for (int i = 0; i < list->ListCount(); ++i)
            t << list->Cell(i, column);
        return t;
    }

    // The user clicks the check box of a cell.
    static void spunta(Listbox *list, int row, int column)
    {
        ASSERT_GE(row, 0);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->rettangoloSpunta(row, column).center());
        settle();
    }

    // The user clicks on the text of a cell; twice: a click, then a second press
    // that the system reports as a double click.
    static void clicca(Listbox *list, int row, int column, bool doppio = false)
    {
        const QPoint p = list->visualRect(list->model()->index(row, column)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, p);
        if (doppio) {
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, p);
            QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, p);
        }
        settle();
    }

    // Types into the cell open for editing and ends with Return.
    static void scriviInCella(Listbox *list, const QString &text)
    {
        QWidget *editor = QApplication::focusWidget();
        ASSERT_TRUE(editor && editor != list && list->isAncestorOf(editor)) << "no cell is open for typing";
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
    }

    // The next warning about unsaved changes is answered "Continua"; avvisi counts the warnings answered.
    void continua()
    {
        onNextModal([this](QWidget *modal) {
            ++avvisi;
            QTest::mouseClick(qobject_cast<fin_avverti *>(modal)->PushButton1, Qt::LeftButton);
        });
    }

    // A file dropped on target as the desktop drops one; true when the window took it.
    static bool lascia(QWidget *target, const QString &path)
    {
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(target->rect().center(), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        QDropEvent drop(target->rect().center(), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(target, &drop);
        return enter.isAccepted() && drop.isAccepted();
    }

    int avvisi = 0;
    finestra *w = nullptr;
    EditText *EditField1 = nullptr, *EditField2 = nullptr, *EditNota = nullptr;
    EditLine *EditQuantum = nullptr, *EditCerca = nullptr;
    QComboBox *PopImport = nullptr, *PopCatA = nullptr, *PopCatB = nullptr;
    QCheckBox *checkiva = nullptr, *checkrite = nullptr;
    Listbox *Listbox1 = nullptr, *Listbox2 = nullptr;
    QLabel *StaticText2 = nullptr, *StaticText11 = nullptr;
};

} // namespace lumetra::test
