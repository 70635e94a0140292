// The mode that shows all gear drawings side by side.
#pragma once

#include <QStringList>

#include <optional>

namespace HVDiagramSheet {

/// Handles "--diagram-sheet FILE": paints every drawing over its id to one PNG file, in the colors
/// of the user's theme and without a display. Each drawing's space is marked, and callouts that run
/// over its edge, where the encyclopedia cuts them, are shown whole. Returns the exit status, 0 and
/// a line on standard output if the file was written, 1 and a message on standard error otherwise,
/// 2 and the usage there if the option names no file; nothing if the option is absent.
///
/// Call it before any application object exists. The user's files are read at most.
[[nodiscard]] std::optional<int> handle(const QStringList &arguments);

} // namespace HVDiagramSheet
