// Numbers as they stand on the screen.
#pragma once

#include <QString>

namespace NumberText {

/// What C's format "%.*f" gives in the "C" locale, whatever the user's: so many decimals after a
/// point, rounded from the number's exact value, ties to the even digit. 2.25 with one decimal is
/// "2.2", 2.35, which lies a little above, "2.4". Also "-0.0", "inf", "-inf", and "nan", whose sign
/// says nothing and is left out.
///
/// Not QString::number(), which rounds ties up.
///
/// @pre 0 ≤ decimals ≤ 20.
[[nodiscard]] QString fixed(double value, int decimals);

} // namespace NumberText
