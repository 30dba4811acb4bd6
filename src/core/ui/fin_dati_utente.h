#pragma once
// The form of the lawyer's particulars. "Registra" is the only way out.

#include "core/ui/implicit.h"

#include <QDialog>
#include <array>

class QLabel;
class QLineEdit;
class QPushButton;

namespace lumetra {

class fin_dati_utente : public QDialog, public Implicit<fin_dati_utente> {
    Q_OBJECT
public:
    fin_dati_utente();
    void Event_Open();
    void ShowModal();
    void Show();
    void PushBreg_Action();

    // EditFute(1) to EditFute(8); index 0 has no field.
    std::array<QLineEdit *, 9> EditFute{};
    QPushButton *PushBreg;

protected:
    void reject() override {}
};

} // namespace lumetra
