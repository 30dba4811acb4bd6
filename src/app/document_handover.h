// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// One program per user and graphical session. The program that runs first
// listens on a local socket named after the session, in a folder only its user
// can enter (on Windows a named pipe named after the user and the session,
// open to that user alone); a second start of the same user hands its
// documents to it, or asks it to come to the front, and ends. Documents that
// arrive while a modal window is open wait, in order, until it has closed.

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <functional>

class QLocalServer;
class QLocalSocket;

namespace lumetra {

class DocumentHandover : public QObject {
    Q_OBJECT
public:
    // name: the rendezvous; tests give their own. Empty: there is none, and
    // this start runs on its own.
    explicit DocumentHandover(const QString &name = serverName(), QObject *parent = nullptr);

    // The rendezvous of this user and graphical session (rendezvousName()):
    // a socket in a folder only this user can enter, on Windows a named pipe;
    // empty when there is no such folder.
    static QString serverName();

    enum class Esito {
        Consegnati, // a running program took the documents
        NessunProgramma, // nobody listens: this start is the program
        NessunaRisposta, // somebody holds the name but does not answer
        AltroUtente, // another user holds the name: nothing was said to it
    };
    // A second start: hands the documents (none: a request to come to the
    // front) to the program that listens, and waits for its answer. It talks
    // only to a program of the same user.
    Esito consegna(const QStringList &documents, int timeoutMs = 10000) const;

    // Becomes the program that takes the documents of later starts. A socket is
    // removed as stale only when a connection to it fails; false when a live
    // program holds the name. Only starts of the same user are heard.
    bool listen();

    enum class Avvio {
        Consegnati, // a running program took the documents: this start ends
        InAscolto, // this start is the program, and takes later starts' documents
        DaSolo, // this start runs on its own, with its documents
    };
    // A start: hands the documents over, or else listens. A lock beside the
    // socket makes the two one step, so that starts at the same moment give
    // one program.
    Avvio avvia(const QStringList &documents);

    // Opens a document now, or as soon as no modal window is open.
    void deliver(const QString &document);

    // What to do with a document, and with a start without documents.
    std::function<void(const QString &)> openDocument;
    std::function<void()> activate;
    // Documents wait until the program has started.
    bool ready = false;

private:
    void openWaiting();
    void ascolta(QLocalSocket *socket);

    QString m_name;
    QLocalServer *m_server = nullptr;
    std::deque<QString> m_waiting;
    QTimer m_retry;
};

// The program's arguments that name documents, as absolute paths.
QStringList documentArguments(const QStringList &arguments);

} // namespace lumetra
