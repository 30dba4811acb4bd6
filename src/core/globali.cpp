// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/globali.h"

namespace lumetra {

Globali &globali()
{
    static Globali instance;
    return instance;
}

} // namespace lumetra
