// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/command_line.h"
#include "support/test_files.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace Qt::StringLiterals;

namespace {

using Azione = RigaDiComando::Azione;

struct Caso {
    QStringList argomenti; // after the program's name
    Azione azione;
    QString errore = {};
};

} // namespace

// Qt's options and their values pass, documents pass, and the first of --help,
// --version or a wrong option decides.
TEST(CommandLine, QtOptionsAndDocumentsPassTheFirstOfHelpVersionOrAWrongOptionDecides)
{
    const Caso casi[] = {
        {{}, Azione::Avvia},
        {{u"a.qX9"_s, u"b.qX9"_s}, Azione::Avvia},
        {{u"-platform"_s, u"offscreen"_s, u"a.qX9"_s}, Azione::Avvia},
        {{u"--platform"_s, u"offscreen"_s}, Azione::Avvia},
        {{u"-style=fusion"_s, u"-reverse"_s, u"-qwindowgeometry"_s, u"800x600"_s}, Azione::Avvia},
        {{u"-display"_s, u":1"_s, u"-name"_s, u"lumetra"_s}, Azione::Avvia},
        {{u"--help"_s}, Azione::Aiuto},
        {{u"a.qX9"_s, u"-h"_s}, Azione::Aiuto},
        {{u"-platform"_s, u"offscreen"_s, u"--version"_s}, Azione::Versione},
        {{u"-v"_s, u"--bogus"_s}, Azione::Versione},
        {{u"--bogus"_s, u"--help"_s}, Azione::Errore, u"opzione sconosciuta: --bogus"_s},
        {{u"a.qX9"_s, u"-"_s}, Azione::Errore, u"opzione sconosciuta: -"_s},
        {{u"-help"_s}, Azione::Errore, u"opzione sconosciuta: -help"_s},
        {{u"-style"_s}, Azione::Errore, u"l'opzione -style vuole un valore"_s},
    };
    for (const Caso &c : casi) {
        const RigaDiComando riga = leggiRigaDiComando(QStringList{u"lumetra"_s} + c.argomenti);
        EXPECT_EQ(riga.azione, c.azione) << c.argomenti.join(u' ').toStdString();
        EXPECT_EQ(riga.errore, c.errore) << c.argomenti.join(u' ').toStdString();
    }
}
