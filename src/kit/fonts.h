// The program's two typefaces.
#pragma once

#include <QFont>

namespace Fonts {

/// The text font: the platform's rounded system font if there is one, else Nunito, Inter or
/// DejaVu Sans, whichever is installed first. `size` and `tracking` (added between letters) are
/// in points.
[[nodiscard]] QFont rounded(double size, QFont::Weight weight = QFont::Normal, double tracking = 0);

/// The monospaced font: JetBrains Mono, else DejaVu Sans Mono, else what the platform has.
[[nodiscard]] QFont monospaced(double size, QFont::Weight weight = QFont::Normal);

/// The same lettering with its size in whole pixels, as the engine rounds it anyway: for what is
/// written in. Qt's controls take the resolution from the platform's own font, and on Wayland that
/// is older than the screen and doesn't know it; a size in pixels needs none.
[[nodiscard]] QFont inPixels(const QFont &font);

} // namespace Fonts
