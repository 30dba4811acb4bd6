// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The main window: the head of the bill, the bill list, and the search in the
// tariff table. The rest of the program reaches it through the few operations
// below, never through its controls; what it needs of other windows it asks
// for through the hooks the application sets.

#include "core/bill_file.h"
#include "core/ui/implicit.h"

#include <QMainWindow>
#include <array>
#include <functional>

class QCheckBox;
class QComboBox;
class QKeyEvent;
class QLabel;
class QMimeData;
class QPushButton;

namespace lumetra {

class EditLine;
class EditText;
class Listbox;

class finestra : public QMainWindow, public Implicit<finestra> {
    Q_OBJECT
public:
    finestra();

    void Event_Open();
    void Event_Close();

    // Rebuilds the tariff listing for the search text, then the bill list.
    void mostra_ricerca(const QString &text);
    // Rebuilds the bill list and totale(0), repricing every item on the bill.
    void mostra_notaspese();

    // The text of EditCerca.
    QString testoCerca() const;

    // The head of the bill as a bill file keeps it, iva and rite included.
    TestaParcella testa() const;
    // Sets the head as an opened bill does: the fields' handlers run, and the
    // two boxes show the options.
    void mostraTesta(const TestaParcella &testa);
    // The category selection back to "SELEZIONA" and the lists rebuilt, as after
    // every command that changes the whole bill.
    void azzeraRicerca();
    // Nuovo on the window: the head emptied, the value back to "Prestabilito",
    // VAT back on; the withholding tax keeps the last bill's setting.
    void svuota();

    // What the window asks of the rest of the program. The advance calculator:
    // it returns the net sum to put on the bill.
    std::function<QString()> apriCalcolatore;
    // The output window, for the document globali().elab names: it composes the
    // document, calls composto once that has succeeded, then shows it, and
    // returns when that window has closed.
    std::function<void(const std::function<void()> &composto)> apriDocumento;
    // A bill dropped on the window, to be opened as "Apri.." opens one.
    std::function<void(const QString &)> apriParcellaTrascinata;

    // The bill file a drag carries, if it carries one.
    static QString parcellaTrascinata(const QMimeData *mime);

private:
    // The controls, in the order they lie on the window.
    QWidget *Rectangle1;
    QLabel *StaticText10;
    QLabel *StaticText11;
    QLabel *StaticText13;
    EditText *EditField2;
    QLabel *StaticText1;
    QLabel *StaticText2;
    QLabel *StaticText12;
    EditText *EditField1;
    QLabel *StaticText5;
    QComboBox *PopImport;
    QLabel *StaticText6;
    EditLine *EditQuantum;
    QLabel *StaticAvviso;
    Listbox *Listbox2;
    QLabel *StaticText14;
    QCheckBox *checkiva;
    QLabel *StaticText15;
    QCheckBox *checkrite;
    std::array<QPushButton *, 2> PushCrea;
    QLabel *StaticText3;
    QComboBox *PopCatA;
    QLabel *StaticTextPop;
    QComboBox *PopCatB;
    QLabel *StaticText4;
    EditLine *EditCerca;
    Listbox *Listbox1;
    QLabel *StaticText8;
    EditText *EditNota;

    // Handlers: control, underscore, event. The KeyDown handlers give false, so
    // the key always goes on to the field.
    void EditField1_TextChange();
    void EditField2_TextChange();
    bool EditField1_KeyDown(QKeyEvent *key);
    bool EditField2_KeyDown(QKeyEvent *key);
    bool EditQuantum_KeyDown(QKeyEvent *key);
    void EditQuantum_TextChange();
    void PopImport_Change();
    void checkiva_Action();
    void checkrite_Action();
    void PushCrea_Action(int index);
    void PopCatA_Change();
    void PopCatB_Change();
    void EditCerca_TextChange();
    bool EditCerca_KeyDown(QKeyEvent *key);
    bool EditNota_KeyDown(QKeyEvent *key);
    void Listbox1_CellAction(int row, int column);
    bool Listbox1_CellClick(int row, int column);
    void Listbox2_CellAction(int row, int column);
    bool Listbox2_CellClick(int row, int column);

protected:
    void closeEvent(QCloseEvent *event) override;
    // A bill dropped anywhere on the window, on a field or a list too, opens.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void creaControlli();
    // What a screen reader speaks for each control.
    void nominaControlli();
    void collegaHandler();
    void ordinaTabulazione();
    // The end of the typing of a personal amount: the cell is a ticked box again.
    void chiudiPers(int row);
    // The advance calculator, for the "Pers." box of an advance to be requested:
    // what it gives back goes into the cell and onto the bill.
    void calcolaAcconto();

    QWidget *m_area = nullptr;
    // The bill a drag over the window carries, read as it entered.
    QString m_trascinata;
};

} // namespace lumetra
