// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// "Computa Acconto": the net advance and the gross sum, each worked out from
// the other as the user types. However the window is closed, the net sum goes
// back to the caller, which puts it on the bill: there is no cancel.

#include "core/ui/implicit.h"

#include <QDialog>
#include <array>

class QFrame;
class QKeyEvent;
class QLabel;
class QPushButton;

namespace lumetra {

class EditLine;

class fin_acconto : public QDialog, public Implicit<fin_acconto> {
    Q_OBJECT
public:
    fin_acconto();

    void Event_Open();
    // Runs modally and returns the net sum, acconto_calcolato(0); the window
    // is gone when this returns.
    QString ShowModal();

    void EditQNL_TextChange(int index);
    bool EditQNL_KeyDown(int index, QKeyEvent *key);
    void PushButton1_Action();

    // While true, a change of text in EditQNL computes nothing: true from the
    // opening to the first key press, and during each computation.
    bool automat = true;

    QLabel *StaticText6;
    QLabel *StaticText1;
    std::array<EditLine *, 2> EditQNL;
    QLabel *StaticText2;
    QLabel *StaticTcpa;
    QLabel *StaticTiva1;
    QLabel *StaticTiva2;
    QFrame *Line1;
    QLabel *StaticText5;
    QPushButton *PushButton1;
};

} // namespace lumetra
