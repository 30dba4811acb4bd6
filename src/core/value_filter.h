// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The filter of the fields that take a sum (the value of the dispute, the
// advance calculator): it judges the last character alone, so a comma typed
// as decimal mark becomes a point, anything else that is no digit or point is
// dropped as it is typed, and a paste is judged by its last character only.

#include <QString>
#include <optional>

namespace lumetra {

// The text the field is to take, or nothing when it stands as it is.
std::optional<QString> filtraValore(const QString &testo);

} // namespace lumetra
