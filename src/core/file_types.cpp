#include "core/file_types.h"

#include "core/text_functions.h"

namespace lumetra {

QString FileType::filter() const
{
    if (Extensions.isEmpty())
        return Name + QStringLiteral(" (*)");
    return Name + QStringLiteral(" (*") + Extensions + QStringLiteral(")");
}

namespace FileTypes {

const FileType &TextPlain()
{
    static const FileType t{QStringLiteral("text/plain"), QStringLiteral(".txt"), QStringLiteral("TEXT"),
                            QStringLiteral("pTmS")};
    return t;
}

const FileType &SpecialAny()
{
    static const FileType t{QStringLiteral("special/any"), QString(), QStringLiteral("????"), QStringLiteral("????")};
    return t;
}

const FileType &TextRtf()
{
    static const FileType t{QStringLiteral("text/rtf"), QStringLiteral(".rtf"), QStringLiteral("????"),
                            QStringLiteral("????")};
    return t;
}

const FileType &qRX9Lumetra()
{
    static const FileType t{QStringLiteral("qRX9/qxlumetra"), QStringLiteral(".qX9"), QStringLiteral("qRX9"),
                            QStringLiteral("qXR9")};
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
