// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/app.h"

#include "advance/ui/fin_acconto.h"
#include "app/menubar.h"
#include "core/bill_file.h"
#include "core/failure.h"
#include "core/file_types.h"
#include "core/files.h"
#include "core/globali.h"
#include "core/paths.h"
#include "core/quit.h"
#include "core/ui/accessibile.h"
#include "core/ui/dialogs.h"
#include "core/ui/fin_avverti.h"
#include "core/ui/fin_dati_utente.h"
#include "core/ui/handler_guard.h"
#include "core/user_data.h"
#include "document/ui/fin_elaborazione.h"
#include "editor/ui/finestra.h"
#include "help/ui/fin_aiuto.h"
#include "help/ui/finestrainfo.h"
#include "version.h"

#include <QFileInfo>
#include <QFileOpenEvent>
#include <QIcon>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QScopeGuard>
#include <QThread>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>

namespace lumetra {

namespace {
bool g_started = false;
} // namespace

App::App(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Lumetra"));
    setApplicationVersion(QLatin1String(kVersione));
    // The desktop matches the windows to the menu entry and its icon by this.
    setDesktopFileName(QStringLiteral("it.lumetra.Lumetra"));
    QIcon icona;
    for (int size : {16, 32, 48, 64, 128, 256})
        icona.addFile(QStringLiteral(":/icone/%1.png").arg(size));
    setWindowIcon(icona);
    setQuitOnLastWindowClosed(false);
    loadTranslations();
    // The windows hand the failures of their handlers to the one handler.
    failureHandler() = &App::reportFailure;
    installaAccessibilita();
}

App *App::instance() { return static_cast<App *>(QCoreApplication::instance()); }

// Qt's own dialogs and context menus in Italian, whatever the system's language.
void App::loadTranslations()
{
    // Qt's own folder; else a "translations" folder beside the program, where
    // the Windows package puts them.
    auto *qt = new QTranslator(this);
    for (const QString &folder :
         {QLibraryInfo::path(QLibraryInfo::TranslationsPath), applicationDirPath() + QStringLiteral("/translations")}) {
        if (qt->load(QLocale(QLocale::Italian, QLocale::Italy), QStringLiteral("qtbase"), QStringLiteral("_"),
                     folder)) {
            installTranslator(qt);
            return;
        }
    }
    delete qt;
}

std::function<void(const QString &)> &App::failureSink()
{
    static std::function<void(const QString &)> sink = [](const QString &message) {
        QMessageBox box(QMessageBox::Critical, QStringLiteral("Lumetra"), message, QMessageBox::Ok);
        box.exec();
    };
    return sink;
}

void App::setStarted(bool started) { g_started = started; }

void App::reportFailure(const QString &reason)
{
    const QString message = QStringLiteral("Errore imprevisto: %1").arg(reason);
    std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    std::fflush(stderr);
    if (auto &sink = failureSink())
        sink(message);
    if (!g_started)
        std::exit(1);
}

bool App::notify(QObject *receiver, QEvent *event)
{
    // The last net: the handlers stop their own failures at their boundary.
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        reportFailure(failureReason(std::current_exception()));
    }
    return false;
}

bool App::event(QEvent *event)
{
    if (event->type() == QEvent::FileOpen) {
        const QString file = static_cast<QFileOpenEvent *>(event)->file();
        runGuarded([&] { Event_OpenDocument(file); });
        return true;
    }
    return QApplication::event(event);
}

finestra &App::mainWindow()
{
    const bool nuova = !finestra::exists();
    finestra &w = finestra::instance();
    if (!nuova)
        return w;
    w.setMenuBar(menuBar());
    w.apriParcellaTrascinata = [this](const QString &path) {
        if (guardia())
            apriScelta(path);
    };
    w.apriCalcolatore = [] { return fin_acconto::instance().ShowModal(); };
    w.apriDocumento = [this, &w](const std::function<void()> &composto) {
        fin_elaborazione &f = fin_elaborazione::instance();
        // A document that fails to compose takes its window with it.
        auto scarta = qScopeGuard([&f] { delete &f; });
        f.componi(datiDocumento());
        scarta.dismiss();
        connect(&f, &fin_elaborazione::chiusa, &w, &QWidget::show);
        composto();
        f.ShowModal();
    };
    return w;
}

DatiDocumento App::datiDocumento()
{
    const Globali &g = globali();
    const TestaParcella testa = mainWindow().testa();
    return {g.dati,    testa.editQuantum, g.utenza, testa.editField1,    testa.editField2,
            testa.iva, testa.rite,        g.elab,   QDate::currentDate()};
}

void App::Event_Open()
{
    auto &g = globali();
    g.modificato = false;
    if (esisteUtenza())
        g.utenza = caricaUtenza();
    else
        showUserDataForm(true);
    carica_dati();
    g.iva = true;
    g.rite = true;
}

void App::Event_OpenDocument(const QString &item)
{
    // A document handed over by the desktop that cannot be read is told, and
    // the bill on the screen stays as it is.
    if (!AprifileqXR9(item))
        return;
    globali().iva = true;
    mainWindow().azzeraRicerca();
    globali().modificato = false;
}

MenuBar1 *App::menuBar()
{
    if (!m_menuBar)
        m_menuBar = new MenuBar1;
    return m_menuBar;
}

void App::Event_EnableMenuItems()
{
    MenuBar1 *bar = menuBar();
    for (const char *name : {"ArchivioNuovo", "ArchivioApri", "ArchivioRegistracome", "ArchivioDatiUtente",
                             "AiutoMostraaiuto", "AiutoInfo", "FileQuit"})
        bar->item(QString::fromLatin1(name))->setEnabled(true);
    bar->AiutoMenu->setEnabled(true);
    bar->item(QStringLiteral("ArchivioRegistra"))->setEnabled(!globali().nome_attuale.isEmpty());
}

bool App::guardia()
{
    auto &g = globali();
    if (g.modificato)
        fin_avverti::instance().ShowModal();
    else
        g.consenti = true;
    return g.consenti;
}

void App::ArchivioDatiUtente_Action() { showUserDataForm(false); }

void App::FileQuit_Action()
{
    if (guardia())
        Quit(0);
}

void App::ArchivioRegistra_Action()
{
    if (!globali().file_attuale.isEmpty())
        Registrazione_parcella(globali().file_attuale);
}

void App::ArchivioRegistracome_Action()
{
    const QString path = dialogs().saveFile(FileTypes::qRX9Lumetra().filter(), nomeProposto(globali().nome_attuale));
    if (!path.isEmpty())
        Registrazione_parcella(path);
}

void App::ArchivioNuovo_Action()
{
    if (!guardia())
        return;
    auto &g = globali();
    g.file_attuale.clear();
    g.nome_attuale.clear();
    Event_EnableMenuItems();
    g.dati.azzera();
    mainWindow().svuota();
    g.modificato = false;
}

void App::ArchivioApri_Action()
{
    if (guardia())
        apriScelta(dialogs().openFile(FileTypes::qRX9Lumetra().filter()));
}

void App::apriScelta(const QString &path)
{
    // A file refused at the door stops the command: the bill stays as it was,
    // changes and all.
    if (!path.isEmpty() && !AprifileqXR9(path))
        return;
    mainWindow().azzeraRicerca();
    globali().modificato = false;
}

void App::AiutoInfo_Action() { finestrainfo::instance().show(); }

void App::AiutoMostraaiuto_Action()
{
    fin_aiuto &aiuto = fin_aiuto::instance();
    connectHandler(&aiuto, &fin_aiuto::chiusa, this, [this] {
        finestra &w = mainWindow();
        w.show();
        w.raise();
        w.activateWindow();
    });
    aiuto.ShowModal();
}

void App::Registrazione_parcella(const QString &path)
{
    auto &g = globali();
    // A failed write ends here: the bill stays modified and its file unchanged.
    writeWholeFile(path, scriviParcella(mainWindow().testa(), g.dati));
    g.file_attuale = path;
    g.modificato = false;
}

bool App::AprifileqXR9(const QString &path)
{
    // Every way a bill comes in passes here, through the one door.
    const LetturaFile file = leggiFile(path);
    if (!file.rifiuto.isEmpty()) {
        dialogs().messageBox(
            QStringLiteral("Impossibile aprire il documento %1:\r%2.").arg(QFileInfo(path).fileName(), file.rifiuto));
        return false;
    }
    auto &g = globali();
    // The name is taken before the file is looked at: a file that is no bill
    // still becomes the one "Registra" writes to.
    g.file_attuale = path;
    g.nome_attuale = QFileInfo(path).fileName();
    Event_EnableMenuItems();
    const LetturaParcella lettura = apriParcella(file.bytes, g.dati);
    if (lettura.esito == EsitoLettura::SenzaFine) {
        // A section without its terminator: the reader waits for it for ever.
        for (;;)
            QThread::sleep(1);
    }
    if (lettura.esito == EsitoLettura::Letta)
        mainWindow().mostraTesta(lettura.testa);
    return true;
}

void App::showUserDataForm(bool modal)
{
    fin_dati_utente &form = fin_dati_utente::instance();
    connectHandler(&form, &fin_dati_utente::registrato, this, [this] {
        // On a first run this is where the main window comes into being.
        finestra &w = mainWindow();
        w.setWindowTitle(QStringLiteral("Lumetra"));
        w.mostra_ricerca(w.testoCerca());
    });
    if (modal)
        form.ShowModal();
    else
        form.Show();
}

bool carica_dati()
{
    auto &g = globali();
    const QString path = tariffFile();
    if (path.isEmpty()) {
        dialogs().messageBox(QStringLiteral("File dei dati tariffari non trovato nella cartella dell'applicazione!\r\r"
                                            "(tarriffe_database.txt non trovato)"));
        Quit(0);
        return false;
    }
    g.dati = caricaTabella(readWholeFile(path));
    App *app = App::instance();
    app->Event_EnableMenuItems();
    finestra &w = app->mainWindow();
    w.show();
    w.mostra_ricerca(w.testoCerca());
    return true;
}

} // namespace lumetra
