#pragma once

#include <QString>

namespace Store {

/// Writes a text as UTF-8 into a file, as a whole or not at all: after a failure, or a power cut on
/// the way, what stood under this name before stands there still. A link is refused: who
/// chooses a name doesn't see where it leads, and it may be somebody else's. Throws HVError, whose
/// description is the reason.
void writeTextFile(const QString &path, const QString &text);

} // namespace Store
