// SPDX-License-Identifier: GPL-3.0-or-later
// lumetra-tariffa TABELLA.tsv tariffe_database.txt
// Writes the tariff file from its readable table; writes nothing and lists the
// faults when the table has any.

#include "tariffa/sorgente_tariffa.h"

#include <QFile>
#include <iostream>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::cerr << "uso: lumetra-tariffa TABELLA.tsv tariffe_database.txt\n";
        return 2;
    }
    QFile in(QString::fromLocal8Bit(argv[1]));
    if (!in.open(QIODevice::ReadOnly)) {
        std::cerr << "impossibile leggere " << argv[1] << "\n";
        return 1;
    }
    const lumetra::FileTariffe file = lumetra::generaFileTariffe(in.readAll());
    if (!file.errori.isEmpty()) {
        for (const QString &errore : file.errori)
            std::cerr << argv[1] << ": " << errore.toStdString() << "\n";
        return 1;
    }
    QFile out(QString::fromLocal8Bit(argv[2]));
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(file.bytes) != file.bytes.size()) {
        std::cerr << "impossibile scrivere " << argv[2] << "\n";
        return 1;
    }
    return 0;
}
