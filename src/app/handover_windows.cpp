#include "app/handover_windows.h"

#include <QLocalSocket>
#include <memory>
#include <windows.h>

#include <sddl.h>

namespace lumetra {

namespace {

struct HandleCloser {
    void operator()(HANDLE h) const { CloseHandle(h); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

// The user of a process's token, as a string SID ("S-1-5-21-…"); empty when it
// cannot be read.
QString userSid(DWORD pid)
{
    Handle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid));
    if (!process)
        return {};
    HANDLE rawToken = nullptr;
    if (!OpenProcessToken(process.get(), TOKEN_QUERY, &rawToken))
        return {};
    Handle token(rawToken);
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::unique_ptr<char[]> buffer(new char[size]);
    if (!size || !GetTokenInformation(token.get(), TokenUser, buffer.get(), size, &size))
        return {};
    LPWSTR text = nullptr;
    if (!ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER *>(buffer.get())->User.Sid, &text))
        return {};
    const QString sid = QString::fromWCharArray(text);
    LocalFree(text);
    return sid;
}

DWORD sessionOf(DWORD pid)
{
    DWORD session = 0;
    return ProcessIdToSessionId(pid, &session) ? session : DWORD(-1);
}

} // namespace

QString windowsServerName()
{
    const DWORD self = GetCurrentProcessId();
    return QStringLiteral("lumetra-%1-%2").arg(userSid(self)).arg(sessionOf(self));
}

bool windowsPeerIsUs(const QLocalSocket &socket)
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

} // namespace lumetra
