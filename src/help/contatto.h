// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The one contact address of the information box: its text and its link.

#include <QString>
#include <QStringView>

namespace lumetra {

inline constexpr QStringView kContactAddress = u"info@lumetra.example";

inline QString contactMailto() { return QStringLiteral("mailto:") + kContactAddress.toString(); }

} // namespace lumetra
