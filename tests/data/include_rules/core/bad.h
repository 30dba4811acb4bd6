// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A core header that reaches up into a window: the rule must reject it.
#include "editor/ui/finestra.h"
