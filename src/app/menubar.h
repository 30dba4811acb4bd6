// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// MenuBar1: "Archivio", "Modifica", "Aiuto". Items carry their names as
// objectName; the actions of "Archivio" and "Aiuto" are App's, the items of
// "Modifica" act on the text field that has the focus.

#include <QMenuBar>

class QAction;

namespace lumetra {

class MenuBar1 : public QMenuBar {
    Q_OBJECT
public:
    explicit MenuBar1(QWidget *parent = nullptr);

    QAction *item(const QString &name) const;

    QMenu *MenuFile;
    QMenu *MenuModifica;
    QMenu *AiutoMenu;

private:
    void Untitled0();
    void Untitled1();
    void Untitled2();
};

} // namespace lumetra
