#pragma once
// FileTypes: the four file type records, built once. Only the bill type and
// the RTF type are used, as the filters of the file dialogs.

#include <QString>

namespace lumetra {

struct FileType {
    QString Name;
    QString Extensions;
    QString MacType;
    QString MacCreator;

    // The filter string of a file dialog.
    QString filter() const;
};

namespace FileTypes {
const FileType &TextPlain();
const FileType &SpecialAny();
const FileType &TextRtf();
const FileType &qRX9Lumetra();
} // namespace FileTypes

// The names the save dialogs propose: the bill under its name or "Parcella"
// with ".qX9" added unless it ends so; its RTF with ".qX9" replaced by ".rtf".
QString nomeProposto(const QString &nome_attuale);
QString nomePropostoRtf(const QString &nome_attuale);

} // namespace lumetra
