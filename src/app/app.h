// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The application object: start-up, the menu actions, opening and saving
// bills, and the one handler of failures that nothing else handles. It is the
// only place that knows all the windows, and wires them to each other.

#include "document/composer.h"

#include <QApplication>
#include <QPointer>
#include <QString>
#include <functional>

namespace lumetra {

class MenuBar1;
class finestra;

class App : public QApplication {
    Q_OBJECT
public:
    App(int &argc, char **argv);
    static App *instance();

    void Event_Open();
    void Event_OpenDocument(const QString &item);
    void Event_EnableMenuItems();

    // Menu actions.
    void ArchivioDatiUtente_Action();
    void ArchivioRegistracome_Action();
    void ArchivioApri_Action();
    void ArchivioNuovo_Action();
    void ArchivioRegistra_Action();
    void AiutoInfo_Action();
    void FileQuit_Action();
    void AiutoMostraaiuto_Action();

    // Writes the bill to the file at path (replacing it), and reads one back.
    // A file the door of the program's files refuses is told to the user and
    // nothing else happens: then false.
    void Registrazione_parcella(const QString &path);
    bool AprifileqXR9(const QString &path);

    // The menu bar, made once and given to the main window.
    MenuBar1 *menuBar();
    // The main window, made on the first request and wired to the windows it
    // opens.
    finestra &mainWindow();
    // What the output window composes: the bill as the main window holds it.
    DatiDocumento datiDocumento();

    bool notify(QObject *receiver, QEvent *event) override;

    // Tells the user of a failure. Until start-up has finished it then ends the
    // program with status 1; afterwards the program goes on. Tests replace the
    // visible part through failureSink().
    static void reportFailure(const QString &reason);
    static std::function<void(const QString &)> &failureSink();
    // Start-up is over once the main window stands: failures stop ending the
    // program.
    static void setStarted(bool started);

protected:
    // macOS hands documents over as QFileOpenEvent.
    bool event(QEvent *event) override;

private:
    // The guard of Nuovo, Apri and Esci: true when the user may go on.
    bool guardia();
    // The rest of "Apri..", once a file is chosen (or not: an empty path).
    void apriScelta(const QString &path);
    void showUserDataForm(bool modal);
    void loadTranslations();

    QPointer<MenuBar1> m_menuBar;
};

// Globali.carica_dati: loads the tariff, shows finestra and lists. Returns
// false when the tariff file is missing (the program is quitting).
bool carica_dati();

} // namespace lumetra
