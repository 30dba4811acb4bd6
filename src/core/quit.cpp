// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/quit.h"

#include <QCoreApplication>

namespace lumetra {

std::function<void(int)> &quitHandler()
{
    static std::function<void(int)> handler = [](int code) { QCoreApplication::exit(code); };
    return handler;
}

void Quit(int code) { quitHandler()(code); }

} // namespace lumetra
