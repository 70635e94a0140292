// The mode that shows all gear drawings side by side.
#pragma once

#include <QStringList>

#include <optional>

namespace HVDiagramSheet {

/// Handles "--diagram-sheet FILE": paints every drawing over its id to one PNG file, in the colors
/// of the user's theme and without a display. Each drawing's space is marked, and callouts that run
/// over its edge, where the encyclopedia cuts them, are shown whole. The user's files are read at
/// most. handleSheet() tells what is returned.
[[nodiscard]] std::optional<int> handle(const QStringList &arguments);

} // namespace HVDiagramSheet
