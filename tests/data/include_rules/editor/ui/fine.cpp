// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/globali.h"
#include "editor/bill.h"
