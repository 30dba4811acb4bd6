// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The output window: one composed document, retouchable in EditF, and the
// five commands that deliver it (close, copy, print, save as RTF, Word).

#include "core/ui/implicit.h"
#include "document/composer.h"
#include "document/sty_map.h"

#include <QDialog>
#include <QPushButton>
#include <array>

class QTextEdit;

namespace lumetra {

class fin_elaborazione : public QDialog, public Implicit<fin_elaborazione> {
    Q_OBJECT
public:
    // The control array of the five buttons; Index picks the command.
    class BevelBE : public QPushButton {
    public:
        BevelBE(int index, const QString &caption, QWidget *parent);
        const int Index;
    };

    fin_elaborazione();

    // The title and the commands, for the kind of document in elab.
    void Event_Open();
    // Composes the document of the bill it is given once and styles it twice:
    // 9/12 points for the screen, printing and RTF, 12/16 for Microsoft Word.
    // The document's totals go to totale.
    void componi(const DatiDocumento &bill);
    // After "Chiudi" and the close box alike.
    void Event_Close();
    // Runs modally; the object is destroyed when the window closes.
    void ShowModal();

    void BevelBE_Action(BevelBE *button);

    QTextEdit *EditF = nullptr;
    // The composed text at 12/16 points, out of sight and never edited.
    QTextEdit *EditF2 = nullptr;
    std::array<BevelBE *, 5> bevel{};

    StyMap sty_f{};

signals:
    // The window has closed: the main window shows again.
    void chiusa();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString Crea_testo(const DatiDocumento &bill);
    void copia(QTextEdit *field);
    void registraRtf();
    void stampa();
    void esporta_su_word();
};

} // namespace lumetra
