// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ui/handler_guard.h"

#include "core/failure.h"

#include <QThread>
#include <vector>

namespace lumetra {

namespace {

// The event loop level each running handler began in, the innermost last. A
// write throws on only to a handler of the same level: a nested loop (a modal
// window) puts Qt's own frames in between.
std::vector<int> g_handlers;
int g_told = 0;

int loopLevel() { return QThread::currentThread()->loopLevel(); }

// Thrown on from a write whose handler failed: the failure has been told.
struct FailureAlreadyTold {};

} // namespace

namespace detail {

HandlerDepth::HandlerDepth() { g_handlers.push_back(loopLevel()); }
HandlerDepth::~HandlerDepth() { g_handlers.pop_back(); }

void tellCurrentFailure() noexcept
{
    const std::exception_ptr failure = std::current_exception();
    try {
        std::rethrow_exception(failure);
    } catch (const FailureAlreadyTold &) {
        return;
    } catch (...) {
    }
    ++g_told;
    // The handler shows a message box, or ends the program while it starts;
    // a failure of its own has nowhere further to go.
    try {
        if (auto &handler = failureHandler())
            handler(failureReason(failure));
    } catch (...) {
    }
}

} // namespace detail

int failuresTold() { return g_told; }

void programWrite(const std::function<void()> &write)
{
    const int before = g_told;
    write();
    if (g_told != before && !g_handlers.empty() && g_handlers.back() == loopLevel())
        throw FailureAlreadyTold{};
}

} // namespace lumetra
