#pragma once
// The main window over the small test tariff, and the user's gestures on it.

#include "core/globali.h"
#include "core/ui/app.h"
#include "editor/ui/edit_field.h"
#include "editor/ui/finestra.h"
#include "editor/ui/listbox.h"
#include "support/ui_fixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

// Texts in failure messages as text, not as arrays of characters.
inline void PrintTo(const QString &s, std::ostream *os) { *os << '"' << s.toStdString() << '"'; }

namespace lumetra::test {

// Rows of tariffa_piccola.txt.
constexpr int kNotifica = 1;
constexpr int kEsameStudio = 4;
constexpr int kEsameDocumenti = 6;
constexpr int kVacazione = 7;
constexpr int kStudioTribunale = 9;
constexpr int kAccontoRichiesto = 15;
constexpr int kAccontoPercepito = 16;

// PopCatA's entries.
constexpr int kSpese = 2;
constexpr int kDiritti = 3;
constexpr int kOnorari = 4;
constexpr int kAcconti = 7;

inline QString u(const char *s) { return QString::fromUtf8(s); }

class FinestraTest : public UiTest {
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        copyData(QStringLiteral("tariffa_piccola.txt"), QStringLiteral("tariffe_database.txt"));
        ASSERT_TRUE(carica_dati());
        w = &finestra::instance();
        w->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(w));
        // As at start-up.
        globali().iva = true;
        globali().rite = true;
        globali().modificato = false;
    }

    Tabella &dati() { return globali().dati; }

    void scegli(int categoria, int sottocategoria = 0)
    {
        w->PopCatA->setCurrentIndex(categoria);
        w->PopCatB->setCurrentIndex(sottocategoria);
    }

    void digita(QWidget *field, const QString &text) { QTest::keyClicks(field, text); }

    void valore(const QString &text)
    {
        w->EditQuantum->setText(QString());
        digita(w->EditQuantum, text);
    }

    // The list row that shows tariff row r, or -1.
    static int riga(const Listbox *list, int r)
    {
        for (int i = 0; i < list->ListCount(); ++i)
            if (list->Cell(i, 0) == QString::number(r))
                return i;
        return -1;
    }

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

    // The user clicks on the text of a cell.
    static void clicca(Listbox *list, int row, int column)
    {
        ASSERT_GE(row, 0);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(row, column)).center());
        settle();
    }

    // The user double-clicks on a cell: a click, then a second press that the
    // system reports as a double click.
    static void doppioClic(Listbox *list, int row, int column)
    {
        ASSERT_GE(row, 0);
        const QPoint p = list->visualRect(list->model()->index(row, column)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, p);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, p);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, p);
        settle();
    }

    // Types into the cell open for editing and ends with Return.
    static void scriviInCella(Listbox *list, const QString &text)
    {
        QWidget *editor = QApplication::focusWidget();
        ASSERT_NE(editor, nullptr);
        ASSERT_TRUE(editor != list && list->isAncestorOf(editor)) << "no cell is open for typing";
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
    }

    finestra *w = nullptr;
};

} // namespace lumetra::test
