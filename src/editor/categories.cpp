// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/categories.h"

#include "core/text_functions.h"

namespace lumetra {

QStringList vociImporto()
{
    return {QStringLiteral("Prestabilito"), QStringLiteral("Indeterminabile"), QStringLiteral("Importante")};
}

QStringList vociCategoria()
{
    return {QStringLiteral("SELEZIONA"),
            QStringLiteral("-"),
            QStringLiteral("Spese"),
            QStringLiteral("Diritti"),
            QStringLiteral("Onorari giudiziali"),
            QStringLiteral("Ambito penale"),
            QStringLiteral("Ambito stragiudiziale"),
            QStringLiteral("Acconti")};
}

Sottocategorie sottocategorie(int i)
{
    switch (i) {
    case 2:
        return {QStringLiteral("Spese:"), {QStringLiteral("Spese")}};
    case 3:
        return {QStringLiteral("Prestazioni:"),
                {QStringLiteral("Processo di cognizione e procedimenti speciali e camerali"),
                 QStringLiteral("Processo di esecuzione"), QStringLiteral("Procedimenti speciali"),
                 QStringLiteral("Diritto di vacazione"), QStringLiteral("Prestazioni dell'avvocato domiciliario"),
                 QStringLiteral("Indennità di trasferta"), QStringLiteral("Diritti di collazione degli scritti"),
                 QStringLiteral("Altro")}};
    case 4:
        return {QStringLiteral("Organo giudicante:"),
                {QStringLiteral("Giudici di pace"),
                 QStringLiteral("Tribunale, organi equiparati e organi di giustizia tributaria"),
                 QStringLiteral("Organi di giustizia amministrativa di primo grado"),
                 QStringLiteral("Corte d'appello e alla commissione tributaria regionale"),
                 QStringLiteral("Corte di cassazione e altre mag. superiori, ivi compreso tribunale comunitario di "
                                "prima istanza"),
                 QStringLiteral("Corte costituzionale e Corte europea per i diritti dell'uomo, Corte di giustizia Cee"),
                 QStringLiteral("Procedimenti speciali, procedure esecutive e procedimenti tavolari"),
                 QStringLiteral("Trasferte"), QStringLiteral("Altro")}};
    case 5:
        return {QStringLiteral("Organo giudicante:"),
                {QStringLiteral("Giudice di pace"), QStringLiteral("Gip E Gup"),
                 QStringLiteral("Trib. monocratico e magistrato di sorveglianza"),
                 QStringLiteral("Tribunale collegiale"), QStringLiteral("Corte d'appello e tribunale di sorveglianza"),
                 QStringLiteral("Corte d'assise e d'assise d'appello"), QStringLiteral("Magistrature superiori"),
                 QStringLiteral("Altro")}};
    case 6:
        return {QStringLiteral("Prestazioni:"),
                {QStringLiteral("Prestazioni di consulenza"), QStringLiteral("Prestazioni di assistenza")}};
    case 7:
        return {QStringLiteral("Acconti:"), {QStringLiteral("Acconti")}};
    default:
        return {QStringLiteral("Sotto-Categoria:"), {}};
    }
}

QString contatore(const QString &testo, int limite) { return Str(Len(testo)) + QStringLiteral(" / ") + Str(limite); }

} // namespace lumetra
