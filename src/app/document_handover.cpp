// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/document_handover.h"

#include "app/same_user.h"
#include "core/log.h"
#include "core/ui/handler_guard.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <memory>

namespace lumetra {

namespace {

// Lines of the conversation: "apri <path>" for each document, or "attiva",
// then "fine"; the program that takes them answers "ok".
const QByteArray kApri = "apri ";
const QByteArray kAttiva = "attiva";
const QByteArray kFine = "fine";
const QByteArray kOk = "ok";

} // namespace

DocumentHandover::DocumentHandover(const QString &name, QObject *parent) : QObject(parent), m_name(name)
{
    m_retry.setSingleShot(true);
    connect(&m_retry, &QTimer::timeout, this, &DocumentHandover::openWaiting);
}

QString DocumentHandover::serverName() { return rendezvousName(); }

DocumentHandover::Esito DocumentHandover::consegna(const QStringList &documents, int timeoutMs) const
{
    if (m_name.isEmpty())
        return Esito::NessunProgramma;
    QLocalSocket socket;
    socket.connectToServer(m_name);
    if (!socket.waitForConnected(500)) {
        qCDebug(logHandover).noquote() << "no program answers on" << m_name;
        return Esito::NessunProgramma;
    }
    // Not a word, and no path, to a program of another user.
    if (!peerIsSameUser(socket)) {
        qCDebug(logHandover).noquote() << "another user's program holds" << m_name;
        return Esito::AltroUtente;
    }
    qCDebug(logHandover).noquote() << "handing" << documents.size() << "documents to the program on" << m_name;
    QByteArray message;
    for (const QString &document : documents)
        message += kApri + document.toUtf8() + '\n';
    if (documents.isEmpty())
        message += kAttiva + '\n';
    message += kFine + '\n';
    socket.write(message);
    socket.flush();
    // A program that holds the name but hangs must not swallow the documents.
    while (!socket.canReadLine()) {
        if (!socket.waitForReadyRead(timeoutMs))
            return Esito::NessunaRisposta;
    }
    return socket.readLine().trimmed() == kOk ? Esito::Consegnati : Esito::NessunaRisposta;
}

void DocumentHandover::ascolta(QLocalSocket *socket)
{
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    // Another user's start is not heard at all.
    if (!peerIsSameUser(*socket)) {
        qCDebug(logHandover).noquote() << "a start of another user refused on" << m_name;
        socket->abort();
        socket->deleteLater();
        return;
    }
    // What one start asks for, taken up once it has said all.
    auto documenti = std::make_shared<QStringList>();
    auto attiva = std::make_shared<bool>(false);
    connect(socket, &QLocalSocket::readyRead, socket, [this, socket, documenti, attiva] {
        while (socket->canReadLine()) {
            const QByteArray line = socket->readLine().chopped(1);
            if (line.startsWith(kApri)) {
                *documenti << QString::fromUtf8(line.mid(kApri.size()));
                qCDebug(logHandover).noquote() << "received" << documenti->back();
            } else if (line == kAttiva) {
                *attiva = true;
            } else if (line == kFine) {
                socket->write(kOk + '\n');
                socket->flush();
                for (const QString &document : *documenti)
                    deliver(document);
                if (*attiva && activate)
                    runGuarded(activate);
            }
        }
    });
}

bool DocumentHandover::listen()
{
    if (m_name.isEmpty())
        return false;
    if (!m_server) {
        m_server = new QLocalServer(this);
        m_server->setSocketOptions(QLocalServer::UserAccessOption);
        connect(m_server, &QLocalServer::newConnection, this, [this] {
            while (QLocalSocket *socket = m_server->nextPendingConnection())
                ascolta(socket);
        });
    }
    // Qt puts a socket with access options in place by renaming it over any
    // file of that name, a live program's included: so ask first. A socket
    // that answers is left alone, whoever holds it.
    QLocalSocket probe;
    probe.connectToServer(m_name);
    if (probe.waitForConnected(500)) {
        qCDebug(logHandover).noquote() << "a live program holds" << m_name;
        return false;
    }
    // Nothing there, or a socket left by a program that did not end cleanly.
    QLocalServer::removeServer(m_name);
    const bool listening = m_server->listen(m_name);
    if (listening)
        qCDebug(logHandover).noquote() << "listening on" << m_name;
    else
        qCDebug(logHandover).noquote() << "cannot listen on" << m_name << m_server->errorString();
    return listening;
}

DocumentHandover::Avvio DocumentHandover::avvia(const QStringList &documents)
{
    if (m_name.isEmpty()) {
        qCDebug(logHandover) << "no folder of this user's own for the hand-over: this start runs on its own";
        return Avvio::DaSolo;
    }
    QLockFile lock(rendezvousLock(m_name));
    // The lock of a start that died holding it is taken over; one that is
    // held for longer than a start takes is not waited for.
    lock.tryLock(15000);
    switch (consegna(documents)) {
    case Esito::Consegnati:
        return Avvio::Consegnati;
    case Esito::NessunProgramma:
        return listen() ? Avvio::InAscolto : Avvio::DaSolo;
    case Esito::NessunaRisposta: // a copy that hangs
    case Esito::AltroUtente:
        break;
    }
    return Avvio::DaSolo;
}

void DocumentHandover::deliver(const QString &document)
{
    m_waiting.push_back(document);
    if (!m_retry.isActive())
        m_retry.start(0);
}

void DocumentHandover::openWaiting()
{
    if (m_waiting.empty())
        return;
    if (!ready || QApplication::activeModalWidget()) {
        m_retry.start(100);
        return;
    }
    const QString document = m_waiting.front();
    m_waiting.pop_front();
    // The next one goes on even if this one fails.
    if (!m_waiting.empty())
        m_retry.start(0);
    qCDebug(logHandover).noquote() << "opening" << document;
    if (openDocument)
        runGuarded([&] { openDocument(document); });
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
