#include "core/ui/app.h"

#include "core/bill_file.h"
#include "core/failure.h"
#include "core/file_types.h"
#include "core/globali.h"
#include "core/ui/dialogs.h"
#include "core/ui/fin_avverti.h"
#include "core/ui/fin_dati_utente.h"
#include "core/ui/menubar.h"
#include "core/user_data.h"
#include "editor/ui/edit_field.h"
#include "editor/ui/finestra.h"
#include "help/ui/fin_aiuto.h"
#include "help/ui/finestrainfo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QMessageBox>
#include <QTextStream>
#include <QThread>
#include <cstdio>
#include <cstdlib>

namespace lumetra {

App::App(int &argc, char **argv) : QApplication(argc, argv)
{
    setApplicationName(QStringLiteral("Lumetra"));
    setApplicationVersion(QStringLiteral("1.5.1"));
    setQuitOnLastWindowClosed(false);
}

App *App::instance() { return static_cast<App *>(QCoreApplication::instance()); }

namespace {

// The category selection back to "SELEZIONA" and the lists rebuilt, as after
// every command that changes the whole bill.
void azzeraRicerca(finestra &w)
{
    w.EditCerca->setText(QString());
    w.PopCatA->setCurrentIndex(0);
    w.PopCatB->clear();
    w.mostra_ricerca(w.EditCerca->Text());
}

} // namespace

namespace {
QString g_folderOverride;
}

QString applicationFolder()
{
    return g_folderOverride.isEmpty() ? QCoreApplication::applicationDirPath() : g_folderOverride;
}

void setApplicationFolder(const QString &folder) { g_folderOverride = folder; }

std::function<void(int)> &quitHandler()
{
    static std::function<void(int)> handler = [](int code) { QCoreApplication::exit(code); };
    return handler;
}

void Quit(int code) { quitHandler()(code); }

std::function<void(const QString &)> &App::failureSink()
{
    static std::function<void(const QString &)> sink = [](const QString &message) {
        QMessageBox box(QMessageBox::Critical, QStringLiteral("Lumetra"), message, QMessageBox::Ok);
        box.exec();
    };
    return sink;
}

void App::reportFailure(const QString &reason)
{
    const QString message = QStringLiteral("Errore imprevisto: %1").arg(reason);
    std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    std::fflush(stderr);
    if (auto &sink = failureSink())
        sink(message);
    std::exit(1);
}

bool App::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &e) {
        reportFailure(QString::fromStdString(e.what()));
    } catch (...) {
        reportFailure(QStringLiteral("eccezione sconosciuta"));
    }
}

bool App::event(QEvent *event)
{
    if (event->type() == QEvent::FileOpen) {
        Event_OpenDocument(static_cast<QFileOpenEvent *>(event)->file());
        return true;
    }
    return QApplication::event(event);
}

void App::Event_Open()
{
    auto &g = globali();
    g.modificato = false;
    QFile file(applicationFolder() + QStringLiteral("/utenza.txt"));
    if (file.exists()) {
        if (!file.open(QIODevice::ReadOnly))
            throw UnhandledFailure(QStringLiteral("impossibile aprire utenza.txt"));
        g.utenza = leggiUtenza(file.readAll());
    } else {
        showUserDataForm();
    }
    carica_dati();
    g.iva = true;
    g.rite = true;
}

void App::Event_OpenDocument(const QString &item)
{
    AprifileqXR9(item);
    globali().iva = true;
    azzeraRicerca(finestra::instance());
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

void App::_ArchivioDatiUtente_Action() { fin_dati_utente::instance().Show(); }

void App::_FileQuit_Action()
{
    if (guardia())
        Quit(0);
}

void App::_ArchivioRegistra_Action()
{
    if (!globali().file_attuale.isEmpty())
        Registrazione_parcella(globali().file_attuale);
}

void App::_ArchivioRegistracome_Action()
{
    const QString path = dialogs().saveFile(FileTypes::qRX9Lumetra().filter(), nomeProposto(globali().nome_attuale));
    if (!path.isEmpty())
        Registrazione_parcella(path);
}

void App::_ArchivioNuovo_Action()
{
    if (!guardia())
        return;
    auto &g = globali();
    g.file_attuale.clear();
    g.nome_attuale.clear();
    Event_EnableMenuItems();
    g.dati.azzera();
    finestra &w = finestra::instance();
    w.EditField1->setText(QString());
    w.EditField2->setText(QString());
    w.EditCerca->setText(QString());
    w.EditQuantum->setText(QString());
    w.PopCatA->setCurrentIndex(0);
    w.PopCatB->clear();
    w.PopImport->setCurrentIndex(0);
    // The withholding tax keeps the setting of the last bill; VAT goes back on.
    w.checkiva->setChecked(true);
    w.mostra_ricerca(w.EditCerca->Text());
    g.modificato = false;
}

void App::_ArchivioApri_Action()
{
    if (!guardia())
        return;
    const QString path = dialogs().openFile(FileTypes::qRX9Lumetra().filter());
    if (!path.isEmpty() && QFileInfo::exists(path))
        AprifileqXR9(path);
    azzeraRicerca(finestra::instance());
    globali().modificato = false;
}

void App::_AiutoInfo_Action() { finestrainfo::instance().show(); }

void App::_AiutoMostraaiuto_Action() { fin_aiuto::instance().ShowModal(); }

void App::Registrazione_parcella(const QString &path)
{
    auto &g = globali();
    const finestra &w = finestra::instance();
    TestaParcella testa;
    testa.editField1 = w.EditField1->Text();
    testa.editField2 = w.EditField2->Text();
    testa.editQuantum = w.EditQuantum->Text();
    testa.iva = g.iva;
    testa.rite = g.rite;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw UnhandledFailure(QStringLiteral("impossibile creare il file %1 (%2)").arg(path, file.errorString()));
    if (file.write(scriviParcella(testa, g.dati)) < 0)
        throw UnhandledFailure(QStringLiteral("impossibile scrivere il file %1 (%2)").arg(path, file.errorString()));
    file.close();
    g.file_attuale = path;
    g.modificato = false;
}

void App::AprifileqXR9(const QString &path)
{
    auto &g = globali();
    // The name is taken before the file is looked at: a file that is no bill
    // still becomes the one "Registra" writes to.
    g.file_attuale = path;
    g.nome_attuale = QFileInfo(path).fileName();
    Event_EnableMenuItems();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw UnhandledFailure(QStringLiteral("impossibile aprire il file %1 (%2)").arg(path, file.errorString()));
    const LetturaParcella lettura = leggiParcella(file.readAll(), g.dati_contatore());
    file.close();
    if (lettura.esito == EsitoLettura::NonParcella)
        return;
    if (lettura.esito == EsitoLettura::SenzaFine) {
        // A section without its terminator: the reader waits for it for ever.
        for (;;)
            QThread::sleep(1);
    }
    finestra &w = finestra::instance();
    w.EditField1->setText(lettura.testa.editField1);
    w.EditField2->setText(lettura.testa.editField2);
    w.EditQuantum->setText(lettura.testa.editQuantum);
    g.iva = lettura.testa.iva;
    g.rite = lettura.testa.rite;
    w.checkiva->setChecked(g.iva);
    w.checkrite->setChecked(g.rite);
    applicaRighe(lettura.righe, g.dati);
}

void App::showUserDataForm() { fin_dati_utente::instance().ShowModal(); }

bool carica_dati()
{
    auto &g = globali();
    QFile file(applicationFolder() + QStringLiteral("/tariffe_database.txt"));
    if (!file.exists()) {
        dialogs().messageBox(QStringLiteral("File dei dati tariffari non trovato nella cartella dell'applicazione!\r\r"
                                            "(tarriffe_database.txt non trovato)"));
        Quit(0);
        return false;
    }
    if (!file.open(QIODevice::ReadOnly))
        throw UnhandledFailure(QStringLiteral("impossibile aprire tariffe_database.txt"));
    g.dati = caricaTabella(file.readAll());
    if (App *app = App::instance())
        app->Event_EnableMenuItems();
    finestra &w = finestra::instance();
    if (App *app = App::instance(); app && w.menuBar() != app->menuBar())
        w.setMenuBar(app->menuBar());
    w.show();
    w.mostra_ricerca(w.testoCerca());
    return true;
}

} // namespace lumetra
