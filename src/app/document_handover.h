#pragma once
// One program per user and graphical session. The program that runs first
// listens on a local socket named after the user and the session; a second
// start hands its documents to it, or asks it to come to the front, and ends.
// Documents that arrive while a modal window is open wait, in order, until it
// has closed.

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <deque>
#include <functional>

class QLocalServer;

namespace lumetra {

class DocumentHandover : public QObject {
    Q_OBJECT
public:
    // name: the rendezvous; tests give their own.
    explicit DocumentHandover(const QString &name = serverName(), QObject *parent = nullptr);

    // The socket name for this user and graphical session.
    static QString serverName();

    enum class Esito {
        Consegnati, // a running program took the documents
        NessunProgramma, // nobody listens: this start is the program
        NessunaRisposta, // somebody holds the name but does not answer
    };
    // A second start: hands the documents (none: a request to come to the
    // front) to the program that listens, and waits for its answer.
    Esito consegna(const QStringList &documents, int timeoutMs = 3000) const;

    // Becomes the program that takes the documents of later starts. A socket is
    // removed as stale only when a connection to it fails; false when a live
    // program holds the name.
    bool listen();

    // Opens a document now, or as soon as no modal window is open.
    void deliver(const QString &document);

    // What to do with a document, and with a start without documents.
    std::function<void(const QString &)> openDocument;
    std::function<void()> activate;
    // Documents wait until the program has started.
    bool ready = false;

private:
    void openWaiting();

    QString m_name;
    QLocalServer *m_server = nullptr;
    std::deque<QString> m_waiting;
    QTimer m_retry;
};

// The program's arguments that name documents, as absolute paths.
QStringList documentArguments(const QStringList &arguments);

} // namespace lumetra
