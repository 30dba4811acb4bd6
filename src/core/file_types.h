// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The file types of the file dialogs: the bill and the RTF export.

#include <QString>

namespace lumetra {

struct FileType {
    QString Name;
    QString Extensions;
    // What a file dialog calls the type: the Name is a code, not words a user reads.
    QString descrizione;

    // The filter string of a file dialog: "Parcella Lumetra (*.qX9)".
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
