#include "core/globali.h"
#include "editor/bill.h"
