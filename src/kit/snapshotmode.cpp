#include "kit/snapshotmode.h"

namespace {
bool g_enabled = false;
}

namespace SnapshotMode {

void enable()
{
    g_enabled = true;
}
bool isEnabled()
{
    return g_enabled;
}

} // namespace SnapshotMode
