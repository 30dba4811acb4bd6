// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// sty_f: the style map of a composed document. Row r (0-6) is block r: column 0
// its first paragraph, column 1 its last; column 2 of rows 0-2 the last
// character position of a font zone. Rows 7-9 are never used.

#include <array>

namespace lumetra {

using StyMap = std::array<std::array<int, 3>, 10>;

} // namespace lumetra
