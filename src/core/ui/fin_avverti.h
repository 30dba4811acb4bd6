// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The warning shown before unsaved changes would be lost: "Continua" loses
// them, "Annulla" stays. The answer is left in consenti.

#include "core/ui/implicit.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace lumetra {

class fin_avverti : public QDialog, public Implicit<fin_avverti> {
    Q_OBJECT
public:
    fin_avverti();
    void Event_Open() {}
    // Shows the dialog and returns when it has closed; the object goes with it.
    void ShowModal();

    void PushButton1_Action();
    void PushButton2_Action();

    QLabel *StaticText2;
    QLabel *StaticText1;
    QPushButton *PushButton2;
    QPushButton *PushButton1;

protected:
    // There is no third answer: Escape does nothing.
    void reject() override {}
};

} // namespace lumetra
