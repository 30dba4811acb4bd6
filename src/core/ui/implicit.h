// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The implicit instance of a window class: created on the first request, which
// runs its Event_Open then and there; forgotten when the window is destroyed.

#include <QPointer>
#include <QWidget>

namespace lumetra {

template <class W>
class Implicit {
public:
    static W &instance()
    {
        if (!s_window) {
            W *w = new W;
            s_window = w;
            w->Event_Open();
        }
        return *s_window;
    }
    static bool exists() { return !s_window.isNull(); }
    static W *existing() { return s_window.data(); }

private:
    static inline QPointer<W> s_window;
};

} // namespace lumetra
