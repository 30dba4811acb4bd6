// SPDX-License-Identifier: GPL-3.0-or-later
// "Porta su Word": the 12/16-point copy goes through the clipboard into a new
// document of Microsoft Word, by automation. Only Windows has it; elsewhere
// the button is disabled and this is never reached.

#include "document/ui/fin_elaborazione.h"

#ifdef Q_OS_WIN
#include "core/ui/dialogs.h"

#include <ActiveQt/QAxObject>
#endif

namespace lumetra {

void fin_elaborazione::esporta_su_word()
{
#ifdef Q_OS_WIN
    copia(EditF2);

    // Any failure of the automation ends the sequence with the one message;
    // the clipboard keeps the text for pasting by hand.
    QAxObject word(QStringLiteral("Word.Application"));
    bool failed = word.isNull();
    QObject::connect(&word, &QAxObject::exception, &word, [&failed] { failed = true; });
    QAxObject *added = nullptr;
    QAxObject *range = nullptr;
    // The names in the program's own case; automation looks them up ignoring it.
    if (!failed)
        word.dynamicCall("visible", true);
    QAxObject *docs = failed ? nullptr : word.querySubObject("Documents");
    failed = failed || !docs;
    if (!failed)
        added = docs->querySubObject("Add");
    failed = failed || !added;
    if (!failed)
        range = added->querySubObject("range");
    failed = failed || !range;
    if (!failed)
        range->dynamicCall("Paste");
    if (failed)
        dialogs().messageBox(QStringLiteral("Errore con Microsoft Word!"));
        // Word stays open with the new document; only our reference is released.
#endif
}

} // namespace lumetra
