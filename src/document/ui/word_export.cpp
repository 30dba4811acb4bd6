// SPDX-License-Identifier: GPL-3.0-or-later
// "Porta su Word": the 12/16-point copy goes through the clipboard into a new
// document of Microsoft Word, by automation. Only Windows has it; elsewhere
// the button is disabled and this is never reached.

#include "document/ui/fin_elaborazione.h"

#ifdef Q_OS_WIN
#include "core/ui/dialogs.h"
#include "document/ui/word_application.h"
#endif

namespace lumetra {

void fin_elaborazione::esporta_su_word()
{
#ifdef Q_OS_WIN
    copia(EditF2);
    // Any failure of the automation ends the sequence with the one message;
    // the clipboard keeps the text for pasting by hand. Word stays open with
    // the new document: only our references are released.
    try {
        WordApplication word;
        word.assign(QStringLiteral("visible"), true);
        const OLEObject docs = word.lookup(QStringLiteral("Documents"));
        const OLEObject added = docs.lookup(QStringLiteral("Add"));
        const WordDocument doc(added);
        const OLEObject r = doc.lookup(QStringLiteral("range"));
        r.call(QStringLiteral("Paste"));
    } catch (const OLEException &) {
        dialogs().messageBox(QStringLiteral("Errore con Microsoft Word!"));
    }
#endif
}

} // namespace lumetra
