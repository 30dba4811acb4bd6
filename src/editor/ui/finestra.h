#pragma once
// The main window: the head of the bill, the bill list, and the search in the
// tariff table.

#include "core/ui/implicit.h"

#include <QMainWindow>

namespace lumetra {

class finestra : public QMainWindow, public Implicit<finestra> {
    Q_OBJECT
public:
    finestra();

    void Event_Open();
    void Event_Close();

    // Rebuilds the tariff listing for the search text, then the bill list.
    void mostra_ricerca(const QString &text);
    void mostra_notaspese();

    // The text of EditCerca.
    QString testoCerca() const;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *m_area = nullptr;
};

} // namespace lumetra
