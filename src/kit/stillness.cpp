#include "kit/stillness.h"

namespace {
bool g_kept = false;
}

namespace Stillness {

void keep()
{
    g_kept = true;
}
bool isKept()
{
    return g_kept;
}

} // namespace Stillness
