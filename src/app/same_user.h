// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The hand-over between two starts talks to the same user only. What that
// takes depends on the system, and stands here alone: the folder where the
// rendezvous lives, and the user at the other end of a local socket.

#include <QString>

class QLocalSocket;

namespace lumetra {

// A folder only this user can enter: XDG_RUNTIME_DIR when it is set and is
// such a folder; otherwise lumetra-<user id> in the system's temporary folder,
// created with mode 0700. Empty when there is none: a folder of that name that
// is not ours, or is open to others, is never used.
QString privateFolder();

// Whether path is a folder (not a link to one) owned by this user that no
// other user can enter.
bool isPrivateFolder(const QString &path);

// Whether the other end of a connected local socket runs as this user.
bool peerIsSameUser(const QLocalSocket &socket);

} // namespace lumetra
