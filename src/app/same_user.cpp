// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/same_user.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#endif

namespace lumetra {

#ifdef Q_OS_UNIX

bool isPrivateFolder(const QString &path)
{
    struct stat st {};
    if (::lstat(QFile::encodeName(path).constData(), &st) != 0)
        return false;
    return S_ISDIR(st.st_mode) && st.st_uid == ::geteuid() && (st.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

QString privateFolder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && isPrivateFolder(runtime))
        return runtime;
    // A name anyone can compute: what stands there already is used only when
    // it is ours and closed to others.
    const QString own = QDir(QDir::tempPath()).filePath(QStringLiteral("lumetra-%1").arg(::geteuid()));
    ::mkdir(QFile::encodeName(own).constData(), 0700);
    return isPrivateFolder(own) ? own : QString();
}

bool peerIsSameUser(const QLocalSocket &socket)
{
    const qintptr fd = socket.socketDescriptor();
    if (fd == -1)
        return false;
#ifdef Q_OS_LINUX
    ucred peer{};
    socklen_t size = sizeof peer;
    if (::getsockopt(int(fd), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || size != sizeof peer)
        return false;
    return peer.uid == ::geteuid();
#else
    uid_t uid = 0;
    gid_t gid = 0;
    return ::getpeereid(int(fd), &uid, &gid) == 0 && uid == ::geteuid();
#endif
}

#else

// Windows: the rendezvous is a named pipe, which is to be opened to the same
// user only, and its other end checked likewise. Until then these say what
// the rest of the program needs: a per-user folder, and no check.
bool isPrivateFolder(const QString &path) { return QFileInfo(path).isDir(); }

QString privateFolder() { return QDir::tempPath(); }

bool peerIsSameUser(const QLocalSocket &) { return true; }

#endif

} // namespace lumetra
