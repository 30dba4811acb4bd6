// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/same_user.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>

#ifdef Q_OS_WIN
#include <QStandardPaths>
#include <memory>
#include <windows.h>

#include <aclapi.h>
#include <sddl.h>
#else
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#endif

namespace lumetra {

QString rendezvousLock(const QString &name)
{
    if (name.isEmpty() || QDir::isAbsolutePath(name))
        return name + QStringLiteral(".lock");
    const QString folder = privateFolder();
    return folder.isEmpty() ? QString() : QDir(folder).filePath(name + QStringLiteral(".lock"));
}

#ifndef Q_OS_WIN

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

QString rendezvousName()
{
    const QString folder = privateFolder();
    if (folder.isEmpty())
        return {};
    // The graphical session is told by its display; without one (a text
    // console), by the login session. The folder is the user's own.
    QString session = qEnvironmentVariable("WAYLAND_DISPLAY") + QLatin1Char('|') + qEnvironmentVariable("DISPLAY");
    if (session.size() == 1)
        session = qEnvironmentVariable("XDG_SESSION_ID");
    const QString tag
        = QString::fromLatin1(QCryptographicHash::hash(session.toUtf8(), QCryptographicHash::Sha1).toHex().left(12));
    return QDir(folder).filePath(QStringLiteral("lumetra-%1").arg(tag));
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

#else // Windows: the rendezvous is a named pipe, opened to this user alone.

namespace {

struct HandleCloser {
    void operator()(HANDLE h) const { CloseHandle(h); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

QString sidText(PSID sid)
{
    LPWSTR text = nullptr;
    if (!sid || !ConvertSidToStringSidW(sid, &text))
        return {};
    const QString result = QString::fromWCharArray(text);
    LocalFree(text);
    return result;
}

// One SID of a process's token (its user, or the default owner of what it
// creates), as text ("S-1-5-21-…"); empty when it cannot be read, as for a
// process of another user that does not let us look.
QString tokenSid(DWORD pid, TOKEN_INFORMATION_CLASS which)
{
    Handle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid));
    if (!process)
        return {};
    HANDLE rawToken = nullptr;
    if (!OpenProcessToken(process.get(), TOKEN_QUERY, &rawToken))
        return {};
    Handle token(rawToken);
    DWORD size = 0;
    GetTokenInformation(token.get(), which, nullptr, 0, &size);
    if (!size)
        return {};
    const std::unique_ptr<char[]> buffer(new char[size]);
    if (!GetTokenInformation(token.get(), which, buffer.get(), size, &size))
        return {};
    return sidText(which == TokenOwner ? reinterpret_cast<TOKEN_OWNER *>(buffer.get())->Owner
                                       : reinterpret_cast<TOKEN_USER *>(buffer.get())->User.Sid);
}

QString userSid(DWORD pid) { return tokenSid(pid, TokenUser); }

DWORD sessionOf(DWORD pid)
{
    DWORD session = 0;
    return ProcessIdToSessionId(pid, &session) ? session : DWORD(-1);
}

} // namespace

bool isPrivateFolder(const QString &path)
{
    const std::wstring native = QDir::toNativeSeparators(path).toStdWString();
    const DWORD attributes = GetFileAttributesW(native.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_DIRECTORY)
        || (attributes & FILE_ATTRIBUTE_REPARSE_POINT))
        return false;
    // Owned by this user: by its SID, or by the owner its token gives what it
    // creates (an administrator's elevated token gives the Administrators).
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetNamedSecurityInfoW(native.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr,
                              nullptr, &descriptor)
        != ERROR_SUCCESS)
        return false;
    const QString ownerSid = sidText(owner);
    LocalFree(descriptor);
    const DWORD self = GetCurrentProcessId();
    return !ownerSid.isEmpty() && (ownerSid == userSid(self) || ownerSid == tokenSid(self, TokenOwner));
}

QString privateFolder()
{
    // The user's local application data is open to this user alone, and what
    // is made in it inherits that.
    const QString local = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (local.isEmpty())
        return {};
    const QString own = QDir(local).filePath(QStringLiteral("Lumetra"));
    QDir().mkpath(own);
    return isPrivateFolder(own) ? own : QString();
}

QString rendezvousName()
{
    const DWORD self = GetCurrentProcessId();
    const QString sid = userSid(self);
    if (sid.isEmpty() || privateFolder().isEmpty())
        return {};
    return QStringLiteral("lumetra-%1-%2").arg(sid).arg(sessionOf(self));
}

bool peerIsSameUser(const QLocalSocket &socket)
{
    const auto pipe = reinterpret_cast<HANDLE>(socket.socketDescriptor());
    if (pipe == INVALID_HANDLE_VALUE || !pipe)
        return false;
    // The other end: the client when this process is the server, else the
    // server (in one process, as in the tests, both ends are this process).
    ULONG server = 0;
    ULONG client = 0;
    if (!GetNamedPipeServerProcessId(pipe, &server) || !GetNamedPipeClientProcessId(pipe, &client))
        return false;
    const DWORD self = GetCurrentProcessId();
    const ULONG peer = server == self ? client : server;
    const QString ours = userSid(self);
    return peer != 0 && !ours.isEmpty() && userSid(peer) == ours && sessionOf(peer) == sessionOf(self);
}

#endif

} // namespace lumetra
