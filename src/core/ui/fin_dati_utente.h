// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The form of the lawyer's particulars. "Registra" is the only way out. It is
// modal however it is shown: with Show the caller goes on at once, with
// ShowModal it waits for the form to close.

#include "core/ui/implicit.h"

#include <QDialog>
#include <array>

class QLabel;
class QPushButton;

namespace lumetra {

class EditLine;

class fin_dati_utente : public QDialog, public Implicit<fin_dati_utente> {
    Q_OBJECT
public:
    fin_dati_utente();
    void Event_Open();
    void ShowModal();
    void Show();
    void PushBreg_Action();

    // EditFute(1) to EditFute(8); index 0 has no field.
    std::array<EditLine *, 9> EditFute{};
    QPushButton *PushBreg;

signals:
    // utenza.txt has been written: the main window lists anew.
    void registrato();

protected:
    void reject() override {}
};

} // namespace lumetra
