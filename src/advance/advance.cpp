// SPDX-License-Identifier: GPL-3.0-or-later
#include "advance/advance.h"

#include "core/text_functions.h"

namespace lumetra {

ContoAcconto lordoDaNetto(double netto, bool iva)
{
    const double p = iva ? 1 : 0;
    ContoAcconto c;
    c.cpa = 0.04 * netto;
    const double s = netto + c.cpa;
    c.iva = (s * 0.21) * p;
    c.altro = s + c.iva;
    return c;
}

ContoAcconto nettoDaLordo(double lordo, bool iva)
{
    const double p = iva ? 1 : 0;
    ContoAcconto c;
    c.iva = ((lordo / 1.21) * 0.21) * p;
    const double n = lordo - c.iva;
    c.cpa = (n / 1.04) * 0.04;
    c.altro = n - c.cpa;
    return c;
}

TestiAcconto testiAcconto(int campo, const QString &testo, bool iva)
{
    const double valore = Val(testo);
    const ContoAcconto c = campo == 1 ? nettoDaLordo(valore, iva) : lordoDaNetto(valore, iva);
    const QString maschera = QStringLiteral("-#.00");
    return {Format(c.cpa, maschera), Format(c.iva, maschera), Format(c.altro, maschera)};
}

} // namespace lumetra
