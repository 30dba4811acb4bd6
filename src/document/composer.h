// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Crea_testo: the whole text of a "Nota spese - Competenze" (elab 0) or a
// "Fattura" (elab 1) from the bill, with all its arithmetic.
//
// The text is plain: character 13 ends every line, the money lines are columns
// of blanks for a monospaced font, and no marker of any kind stands in it. The
// style map sty_f says where each of the seven blocks lies (row r = block r:
// 0 sender, 1 place/date/client, 2 title, 3 subject, 4 item sections,
// 5 summary, 6 signature; columns 0 and 1 the first and last paragraph, from 0;
// column 2 of rows 0-2 the last character of a font zone). The styled text
// builder needs nothing else.
//
// Typical use, from the output window:
//     const Documento doc = Crea_testo({ .dati = g.dati, .editQuantum = ..., .utenza = g.utenza,
//         .editField1 = ..., .editField2 = ..., .iva = g.iva, .rite = g.rite, .elab = g.elab,
//         .oggi = QDate::currentDate() });
//     g.totale = doc.totale;   // the main window finds the document's totals there
//     ... build the styled text from doc.testo and doc.sty_f ...
//
// Figures are printed with Format under the current number convention
// (Italian unless a test sets another).

#include "core/tariff.h"
#include "core/user_data.h"
#include "document/sty_map.h"

#include <QDate>
#include <QString>
#include <array>

namespace lumetra {

// Everything the document is made of. Column 53 of the bill rows must stand as
// the last repricing (riprezza) left it.
struct DatiDocumento {
    const Tabella &dati;
    QString editQuantum; // value of the dispute, as the user sees it
    Utenza utenza;
    QString editField1; // subject; line ends as character 13
    QString editField2; // client; line ends as character 13
    bool iva = false;
    bool rite = false;
    int elab = 0; // 0 "Nota spese - Competenze", 1 "Fattura"
    QDate oggi; // for the date line and the year of the invoice number
};

struct Documento {
    QString testo;
    StyMap sty_f{};
    // The document totals, in the slots the main window's totale uses.
    std::array<double, 16> totale{};
    // The revenue stamp set apart from the spese; used by a "Fattura" only.
    QString marcadabollo;
    double marcaimporto = 0;
};

Documento Crea_testo(const DatiDocumento &in);

// The place of the date line, out of utenza(3) ("00100 Roma" gives "Roma"):
// characters with codes 65 to 122 are kept, a blank after something has been
// kept ends the scan. "" when nothing was kept.
QString estraiLuogo(const QString &citta);

} // namespace lumetra
