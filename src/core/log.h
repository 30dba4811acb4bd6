// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The program's messages for a support request: where its files came from and
// what the hand-over between two starts did. They are debug messages, silent
// unless switched on, e.g.
//     QT_LOGGING_RULES="lumetra.*.debug=true" lumetra

#include <QLoggingCategory>

namespace lumetra {

// lumetra.files: where the tariff, the manual and the user data were found
// (shipped or the user's own), and every whole-file read and write.
Q_DECLARE_LOGGING_CATEGORY(logFiles)
// lumetra.handover: the socket, whether this start listens or hands over, the
// documents received.
Q_DECLARE_LOGGING_CATEGORY(logHandover)

} // namespace lumetra
