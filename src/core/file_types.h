#pragma once
// The file types of the file dialogs: the bill and the RTF export.

#include <QString>

namespace lumetra {

struct FileType {
    QString Name;
    QString Extensions;

    // The filter string of a file dialog.
    QString filter() const;
};

namespace FileTypes {
const FileType &TextRtf();
const FileType &qRX9Lumetra();
} // namespace FileTypes

// The names the save dialogs propose: the bill under its name or "Parcella"
// with ".qX9" added unless it ends so; its RTF with ".qX9" replaced by ".rtf".
QString nomeProposto(const QString &nome_attuale);
QString nomePropostoRtf(const QString &nome_attuale);

} // namespace lumetra
