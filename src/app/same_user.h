// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The hand-over between two starts talks to the same user only. What that
// takes depends on the system, and stands here alone: the folder where the
// rendezvous and its lock live, the rendezvous's name, and the user at the
// other end of a local socket.

#include <QString>

class QLocalSocket;

namespace lumetra {

// A folder only this user can enter. On Unix: XDG_RUNTIME_DIR when it is set
// and is such a folder; otherwise lumetra-<user id> in the system's temporary
// folder, created with mode 0700. On Windows: Lumetra in the user's local
// application data, whose inherited access list lets in this user alone (and
// the system's administrators). Empty when there is none: a folder of that
// name that is not ours, or is open to others, is never used.
QString privateFolder();

// Whether path is a folder (not a link to one) owned by this user that no
// other user can enter.
bool isPrivateFolder(const QString &path);

// The rendezvous of this user's graphical session, so that two sessions never
// share one. On Unix a socket in privateFolder() named after the session; on
// Windows a named pipe named after the user's SID and the session's number.
// Empty when there is no private folder.
QString rendezvousName();

// The lock that makes "does a program answer? otherwise listen" one step:
// beside a socket; for a named pipe, which is no file, in privateFolder().
QString rendezvousLock(const QString &name);

// Whether the other end of a connected local socket runs as this user (on
// Windows: and in this session).
bool peerIsSameUser(const QLocalSocket &socket);

} // namespace lumetra
