// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The menus of the main window. Their entries are the keys of the tariff file
// (columns 1 and 2), so they must match it letter for letter.

#include <QString>
#include <QStringList>

namespace lumetra {

// PopImport's entries, indexes 0 to 2.
QStringList vociImporto();

// PopCatA's entries: "SELEZIONA", the divider "-", then the six categories.
QStringList vociCategoria();

struct Sottocategorie {
    QString etichetta; // StaticTextPop's text
    QStringList voci; // PopCatB's entries; empty for "SELEZIONA" and the divider
};

// What PopCatA's entry i gives to PopCatB and its label.
Sottocategorie sottocategorie(int i);

// The counter beside a text field: its length and the limit, "12 / 280".
QString contatore(const QString &testo, int limite);

} // namespace lumetra
