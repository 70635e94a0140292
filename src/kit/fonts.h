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

} // namespace Fonts
