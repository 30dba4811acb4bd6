#pragma once
// Windows only. The hand-over's rendezvous is a named pipe there: its name
// holds the user and the session, and each end checks that the process at the
// other end runs as the same user in the same session.

#include <QString>

class QLocalSocket;

namespace lumetra {

// "lumetra-<the user's SID>-<session number>": two users, or two sessions of
// one user (a remote desktop beside the console), never meet.
QString windowsServerName();

// The process at the other end of a connected pipe runs as this process's
// user, in this process's session.
bool windowsPeerIsUs(const QLocalSocket &socket);

} // namespace lumetra
