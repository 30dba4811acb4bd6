// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/log.h"

namespace lumetra {

// Warnings and above only, until the rules ask for more.
Q_LOGGING_CATEGORY(logFiles, "lumetra.files", QtWarningMsg)
Q_LOGGING_CATEGORY(logHandover, "lumetra.handover", QtWarningMsg)

} // namespace lumetra
