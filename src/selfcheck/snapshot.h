// The mode that takes a picture of every screen.
#pragma once

#include <QStringList>

#include <optional>

namespace HVSnapshot {

/// Handles "--hv-snapshot FOLDER": renders the screens with sample data to PNG files in FOLDER,
/// without a window, a display or a graphics processor, and says on standard output what it
/// wrote. Returns the exit status, 0 if every picture was written and 1 otherwise; nothing if the
/// option is absent or names no folder.
///
/// Leaves no trace but the pictures: the sample data lie in a file of their own in the temporary
/// folder, removed at the end, and theme and zoom live in this process alone. Call it before any
/// application object exists.
[[nodiscard]] std::optional<int> handle(const QStringList &arguments);

} // namespace HVSnapshot
