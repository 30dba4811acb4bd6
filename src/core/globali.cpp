#include "core/globali.h"

namespace lumetra {

Globali &globali()
{
    static Globali instance;
    return instance;
}

} // namespace lumetra
