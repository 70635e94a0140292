#pragma once

#include <QString>

namespace Store {

/// Writes a text as UTF-8 into a file, as a whole or not at all: after a failure, or a power cut on
/// the way, what stood under this name before stands there still. Throws HVError, whose description
/// is the system's reason.
void writeTextFile(const QString &path, const QString &text);

} // namespace Store
