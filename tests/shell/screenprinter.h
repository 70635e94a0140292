// Lets GoogleTest's messages name a screen.
#pragma once

#include "shell/screen.h"

#include <ostream>

namespace HVScreen {
inline void PrintTo(Screen screen, std::ostream *out)
{
    *out << qPrintable(screenInfo(screen).rawValue);
}
} // namespace HVScreen
