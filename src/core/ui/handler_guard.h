// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The boundary of every handler the windows connect. Qt does not let an
// exception unwind through its signals or its event loop, so a failure inside
// a handler stops at this boundary: it goes to the one failure handler
// (failureHandler()), and the control that raised the handler goes on as
// before. Handlers are wired with connectHandler instead of QObject::connect;
// event handlers and hooks that the windows call run through runGuarded.
//
// A handler often writes into a control whose own handler then runs (opening a
// bill sets EditQuantum, whose handler lists). When that inner handler fails,
// the failure is told once, and the outer command stops there too, as it
// would without Qt in between: programWrite() around such a write does it.

#include <QObject>
#include <functional>
#include <type_traits>

namespace lumetra {

namespace detail {
// Notes a handler running, one inside the other: with none, or with a modal
// window's loop since the innermost began, there is no boundary of ours to
// stop at.
class HandlerDepth {
public:
    HandlerDepth();
    ~HandlerDepth();
    HandlerDepth(const HandlerDepth &) = delete;
    HandlerDepth &operator=(const HandlerDepth &) = delete;
};
// Tells the failure being handled, unless it was told already.
void tellCurrentFailure() noexcept;
} // namespace detail

// How many failures have been told since the program started.
int failuresTold();

// Runs a handler; a failure inside it is told and goes no further. True when
// the handler ran to its end.
template <class F>
bool runGuarded(F &&handler) noexcept
{
    const detail::HandlerDepth depth;
    try {
        std::forward<F>(handler)();
        return true;
    } catch (...) {
        detail::tellCurrentFailure();
        return false;
    }
}

// Runs a write of the program's own into a control. If a handler that the
// write raised failed, the failure has been told, and the command that wrote
// stops here: it throws on to the next boundary, which tells nothing more.
// Outside any handler (a test), or where Qt's frames stand between it and the
// boundary, it goes on.
void programWrite(const std::function<void()> &write);

// QObject::connect for a handler: the handler runs inside runGuarded. It takes
// the signal's arguments, or none.
template <class Sender, class Signal, class Receiver, class Handler>
QMetaObject::Connection connectHandler(Sender *sender, Signal signal, Receiver *receiver, Handler handler)
{
    return QObject::connect(sender, signal, receiver, [receiver, handler](auto &&...args) {
        runGuarded([&] {
            if constexpr (std::is_member_function_pointer_v<Handler>) {
                if constexpr (std::is_invocable_v<Handler, Receiver *, decltype(args)...>)
                    std::invoke(handler, receiver, std::forward<decltype(args)>(args)...);
                else
                    std::invoke(handler, receiver);
            } else {
                if constexpr (std::is_invocable_v<Handler, decltype(args)...>)
                    std::invoke(handler, std::forward<decltype(args)>(args)...);
                else
                    std::invoke(handler);
            }
        });
    });
}

} // namespace lumetra
