#pragma once
// The application object: start-up, the menu actions, and the one handler of
// failures that nothing else handles.

#include <QApplication>
#include <QPointer>

#include "core/ui/menubar.h"
#include <QString>
#include <functional>

namespace lumetra {

class App : public QApplication {
    Q_OBJECT
public:
    App(int &argc, char **argv);
    static App *instance();

    void Event_Open();
    void Event_OpenDocument(const QString &item);
    void Event_EnableMenuItems();

    // Menu actions.
    void _ArchivioDatiUtente_Action();
    void _ArchivioRegistracome_Action();
    void _ArchivioApri_Action();
    void _ArchivioNuovo_Action();
    void _ArchivioRegistra_Action();
    void _AiutoInfo_Action();
    void _FileQuit_Action();
    void _AiutoMostraaiuto_Action();

    // Writes the bill to the file at path (replacing it), and reads one back.
    void Registrazione_parcella(const QString &path);
    void AprifileqXR9(const QString &path);

    // The menu bar, made once and given to the main window.
    MenuBar1 *menuBar();

    bool notify(QObject *receiver, QEvent *event) override;

protected:
    // macOS hands documents over as QFileOpenEvent.
    bool event(QEvent *event) override;

public:
    // Tells the user and ends the program with status 1. Tests replace the
    // visible part through failureSink().
    [[noreturn]] static void reportFailure(const QString &reason);
    static std::function<void(const QString &)> &failureSink();

private:
    // The guard of Nuovo, Apri and Esci: true when the user may go on.
    bool guardia();
    QPointer<MenuBar1> m_menuBar;

    // The form of the user's data, modal, for a first run without utenza.txt.
    void showUserDataForm();
};

// The application's folder: where tariffe_database.txt and utenza.txt are found.
QString applicationFolder();
// Tests put the program's folder elsewhere; an empty text restores the real one.
void setApplicationFolder(const QString &folder);
// Quit(0): ends the event loop. Tests replace what it does through quitHandler().
void Quit(int code);
std::function<void(int)> &quitHandler();

// Globali.carica_dati: loads the tariff, shows finestra and lists. Returns
// false when the tariff file is missing (the program is quitting).
bool carica_dati();

} // namespace lumetra
