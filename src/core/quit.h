// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Quit(0): ends the event loop. Every way out of the program passes here, so
// that tests can see it without ending their own run.

#include <functional>

namespace lumetra {

void Quit(int code);
// What Quit does; tests replace it.
std::function<void(int)> &quitHandler();

} // namespace lumetra
