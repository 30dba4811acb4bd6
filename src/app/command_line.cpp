// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/command_line.h"

#include "version.h"

#include <algorithm>
#include <cstdio>

namespace lumetra {

namespace {

// Qt's options, as QApplication and its platform plugins take them out of the
// arguments; Qt reads "--platform" as "-platform" too.
const QStringList kQtConValore = QStringLiteral("-platform -platformpluginpath -platformtheme -plugin "
                                                "-qwindowgeometry -qwindowicon -qwindowtitle -session -style "
                                                "-stylesheet -display -geometry -title -icon -name")
                                     .split(QLatin1Char(' '));
const QStringList kQtSenzaValore = QStringLiteral("-reverse -widgetcount -nograb -dograb").split(QLatin1Char(' '));
const QStringList kQtConUguale = QStringLiteral("-style= -stylesheet= -qmljsdebugger=").split(QLatin1Char(' '));

void stampa(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

RigaDiComando leggiRigaDiComando(const QStringList &argomenti)
{
    using Azione = RigaDiComando::Azione;
    for (qsizetype i = 1; i < argomenti.size(); ++i) {
        const QString &a = argomenti[i];
        if (a == QLatin1String("-h") || a == QLatin1String("--help"))
            return {Azione::Aiuto, {}};
        if (a == QLatin1String("-v") || a == QLatin1String("--version"))
            return {Azione::Versione, {}};
        if (!a.startsWith(QLatin1Char('-')))
            continue; // a document
        const QString qt = a.startsWith(QLatin1String("--")) ? a.mid(1) : a;
        if (kQtConValore.contains(qt)) {
            if (++i == argomenti.size())
                return {Azione::Errore, QStringLiteral("l'opzione %1 vuole un valore").arg(a)};
            continue;
        }
        if (kQtSenzaValore.contains(qt))
            continue;
        if (std::any_of(kQtConUguale.begin(), kQtConUguale.end(), [&](const QString &p) { return qt.startsWith(p); }))
            continue;
        return {Azione::Errore, QStringLiteral("opzione sconosciuta: %1").arg(a)};
    }
    return {};
}

QString testoAiuto()
{
    return QStringLiteral("Uso: lumetra [OPZIONE-DI-QT...] [PARCELLA.qX9...]\n"
                          "Redige la parcella dell'avvocato secondo la tariffa forense.\n"
                          "\n"
                          "  -h, --help     mostra questo aiuto ed esce\n"
                          "  -v, --version  mostra la versione ed esce\n"
                          "\n"
                          "Le parcelle nominate si aprono una dopo l'altra, come con \"Apri..\"; se Lumetra\n"
                          "è già aperto nella sessione, le apre quello. Un nome che comincia con \"-\" si\n"
                          "scrive con la sua cartella: ./-nome.qX9.\n"
                          "Le opzioni di Qt (-platform, -style, -display...) passano a Qt.\n"
                          "Manuale: man lumetra\n");
}

QString testoVersione()
{
    return QStringLiteral("Lumetra %1\n"
                          "Licenza GPL-3.0-or-later: GNU GPL versione 3 o successiva "
                          "<https://www.gnu.org/licenses/gpl-3.0.html>.\n"
                          "È software libero: si può modificare e ridistribuire. Non c'è alcuna garanzia,\n"
                          "nei limiti consentiti dalla legge.\n")
        .arg(QLatin1String(kVersione));
}

std::optional<int> rispondiRigaDiComando(int argc, const char *const *argv)
{
    QStringList argomenti;
    for (int i = 0; i < argc; ++i)
        argomenti << QString::fromLocal8Bit(argv[i]);
    const RigaDiComando riga = leggiRigaDiComando(argomenti);
    switch (riga.azione) {
    case RigaDiComando::Azione::Avvia:
        return std::nullopt;
    case RigaDiComando::Azione::Aiuto:
        stampa(stdout, testoAiuto());
        return 0;
    case RigaDiComando::Azione::Versione:
        stampa(stdout, testoVersione());
        return 0;
    case RigaDiComando::Azione::Errore:
        stampa(stderr, QStringLiteral("lumetra: %1\nPer le opzioni: lumetra --help\n").arg(riga.errore));
        return 2;
    }
    return std::nullopt;
}

} // namespace lumetra
