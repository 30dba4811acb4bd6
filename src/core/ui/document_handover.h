#pragma once
// Documents handed over by the desktop: the program's arguments at start (a
// .desktop entry's %F), QFileOpenEvent on macOS, and documents opened while
// the program already runs, which a second start forwards over a local socket
// to the running one instead of starting again.

#include <QObject>
#include <QStringList>

class QLocalServer;

namespace lumetra {

class DocumentHandover : public QObject {
    Q_OBJECT
public:
    explicit DocumentHandover(QObject *parent = nullptr);

    // The socket name, one per user.
    static QString serverName();
    // Sends the documents to a running program; true if one took them.
    static bool forwardToRunning(const QStringList &documents);
    // Starts taking documents from later starts.
    void listen();

private:
    QLocalServer *m_server = nullptr;
};

// The arguments that name documents.
QStringList documentArguments(const QStringList &arguments);

} // namespace lumetra
