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

bool windowsPeerIsUs(const QLocalSocket &socket, bool weListen)
{
    const auto pipe = reinterpret_cast<HANDLE>(socket.socketDescriptor());
    if (pipe == INVALID_HANDLE_VALUE || !pipe)
        return false;
    ULONG peer = 0;
    const BOOL known = weListen ? GetNamedPipeClientProcessId(pipe, &peer) : GetNamedPipeServerProcessId(pipe, &peer);
    if (!known || peer == 0)
        return false;
    const DWORD self = GetCurrentProcessId();
    const QString ours = userSid(self);
    return !ours.isEmpty() && userSid(peer) == ours && sessionOf(peer) == sessionOf(self);
}

} // namespace lumetra
