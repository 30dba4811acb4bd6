// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The help window: the manual, as styled text the user may scroll and even
// type in (nothing typed is kept).

#include "core/ui/implicit.h"

#include <QDialog>

class QTextEdit;

namespace lumetra {

class fin_aiuto : public QDialog, public Implicit<fin_aiuto> {
    Q_OBJECT
public:
    fin_aiuto();

    void Event_Open();
    // Parses the manual into EditF: at each opening of the window.
    void EditF_Open(QTextEdit *field);
    // The main window comes back to the front.
    void Event_Close();

    // Runs the window modally; it is gone when this returns.
    void ShowModal();

    QTextEdit *EditF = nullptr;

signals:
    void chiusa();

protected:
    // Every way of closing a dialog (close box, Escape) passes here.
    void done(int result) override;
};

} // namespace lumetra
