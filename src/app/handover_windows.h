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

// The process at the other end of a connected pipe (its client when this end
// listens, else its server) runs as this process's user, in its session.
bool windowsPeerIsUs(const QLocalSocket &socket, bool weListen);

} // namespace lumetra
