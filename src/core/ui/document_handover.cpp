#include "core/ui/document_handover.h"

#include "core/ui/app.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>

namespace lumetra {

DocumentHandover::DocumentHandover(QObject *parent) : QObject(parent) {}

QString DocumentHandover::serverName()
{
    QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        user = QDir::home().dirName();
    return QStringLiteral("lumetra-") + user;
}

bool DocumentHandover::forwardToRunning(const QStringList &documents)
{
    QLocalSocket socket;
    socket.connectToServer(serverName());
    if (!socket.waitForConnected(500))
        return false;
    for (const QString &document : documents)
        socket.write(document.toUtf8() + '\n');
    socket.flush();
    socket.waitForBytesWritten(1000);
    socket.disconnectFromServer();
    return true;
}

void DocumentHandover::listen()
{
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server->listen(serverName())) {
        // A socket left by a program that did not end cleanly.
        QLocalServer::removeServer(serverName());
        if (!m_server->listen(serverName()))
            return;
    }
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, socket, [socket] {
                while (socket->canReadLine()) {
                    const QString path = QString::fromUtf8(socket->readLine()).trimmed();
                    if (!path.isEmpty())
                        App::instance()->Event_OpenDocument(path);
                }
            });
        }
    });
}

QStringList documentArguments(const QStringList &arguments)
{
    QStringList documents;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (argument.startsWith(QLatin1Char('-')))
            continue;
        documents << QFileInfo(argument).absoluteFilePath();
    }
    return documents;
}

} // namespace lumetra
