// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The information box: the product, its version and the contact link.

#include "core/ui/implicit.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace lumetra {

class finestrainfo : public QDialog, public Implicit<finestrainfo> {
    Q_OBJECT
public:
    finestrainfo();

    void Event_Open();
    void PushButton1_Action();
    void StaticText3_MouseEnter();
    void StaticText3_MouseExit();
    // Opens a mail to the contact; false: the click goes on to the label.
    bool StaticText3_MouseDown();

    QLabel *StaticText1 = nullptr;
    QLabel *StaticText2 = nullptr;
    QLabel *StaticText3 = nullptr;
    QPushButton *PushButton1 = nullptr;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace lumetra
