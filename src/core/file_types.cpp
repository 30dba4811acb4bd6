// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/file_types.h"

#include "core/text_functions.h"

namespace lumetra {

QString FileType::filter() const
{
    if (Extensions.isEmpty())
        return descrizione + QStringLiteral(" (*)");
    return descrizione + QStringLiteral(" (*") + Extensions + QStringLiteral(")");
}

namespace FileTypes {

const FileType &TextRtf()
{
    static const FileType t{QStringLiteral("text/rtf"), QStringLiteral(".rtf"), QStringLiteral("Documento RTF")};
    return t;
}

const FileType &qRX9Lumetra()
{
    static const FileType t{QStringLiteral("qRX9/qxlumetra"), QStringLiteral(".qX9"),
                            QStringLiteral("Parcella Lumetra")};
    return t;
}

} // namespace FileTypes

QString nomeProposto(const QString &nome_attuale)
{
    const QString nome = nome_attuale.isEmpty() ? QStringLiteral("Parcella") : nome_attuale;
    if (!Eq(Right(nome, 4), QStringLiteral(".qX9")))
        return nome + QStringLiteral(".qX9");
    return nome;
}

QString nomePropostoRtf(const QString &nome_attuale)
{
    const QString nome = nome_attuale.isEmpty() ? QStringLiteral("Parcella") : nome_attuale;
    if (Eq(Right(nome, 4), QStringLiteral(".qX9")))
        return Left(nome, Len(nome) - 4) + QStringLiteral(".rtf");
    return nome + QStringLiteral(".rtf");
}

} // namespace lumetra
