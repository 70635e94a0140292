// What each gear drawing shows: one row for each kind.
//
// The rows are data and the only course texts that lie in the program. A new kind is a new case of
// DiagramKind with its id, and a new row at the same place. What every row keeps to:
//
//   fill 0.1           a body
//   fill 0.2 to 0.3    a part inside a part: a grip, a lens's inner ring, a window
//   fill from 0.35 on  what must stand out: a gray card, a safelight, a lamp that is lit
//   fill 0.04 to 0.08  what light passes: a filter, a softbox's cloth, a rain cover
//   width 0.8          fine hatching
//   width 3            legs and cables
//   width 4 to 6       tubes, columns and straps
//
// Callouts stand in the margins: at x = 330 with their target to the left, at x = 60 to 80 with it
// to the right, or at x = 200 straight above or below it.
#pragma once

#include "diagrams/drawing.h"

#include <span>

namespace Diagrams {

/// All drawings, in the order of DiagramKind. Built at the first call, the same ever after; safe on
/// any thread.
[[nodiscard]] std::span<const Drawing> catalogue();

[[nodiscard]] const Drawing &drawing(DiagramKind kind);

} // namespace Diagrams
