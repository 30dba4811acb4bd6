#pragma once
// The output window, in its first form: it names the document asked for and
// gives the main window back when it closes.

#include "core/ui/implicit.h"

#include <QDialog>

namespace lumetra {

class fin_elaborazione : public QDialog, public Implicit<fin_elaborazione> {
    Q_OBJECT
public:
    fin_elaborazione();

    void Event_Open();
    void Event_Close();
    // Runs modally; the window is gone when this returns.
    void ShowModal();

    void done(int result) override;
};

} // namespace lumetra
