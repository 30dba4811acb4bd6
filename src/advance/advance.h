// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The advance calculator's arithmetic: from the net advance to the gross sum
// the client pays, and back, with C.P.A. (4%) and I.V.A. (21%) in between. The
// flat refund and the withholding tax have no part here.

#include <QString>

namespace lumetra {

struct ContoAcconto {
    double cpa = 0; // C.P.A.
    double iva = 0; // I.V.A.; 0 without iva
    double altro = 0; // the other sum: gross from net, net from gross
};

// Net typed: C = 0.04 x A; S = A + C; I = S x 0.21 (x 0 without iva); gross S + I.
ContoAcconto lordoDaNetto(double netto, bool iva);
// Gross typed: I = G / 1.21 x 0.21 (x 0 without iva); N = G - I; C = N / 1.04 x 0.04; net N - C.
ContoAcconto nettoDaLordo(double lordo, bool iva);

// What the window shows after the user typed into field `campo` (0 net, 1 gross):
// C.P.A., I.V.A. and the other field, each by Format with "-#.00".
struct TestiAcconto {
    QString cpa;
    QString iva;
    QString altro;
};
TestiAcconto testiAcconto(int campo, const QString &testo, bool iva);

} // namespace lumetra
