// Whether the process takes pictures of its screens instead of showing them to a person.
#pragma once

/// Decided once, before the first item exists. While it is enabled, animations jump to their end
/// and scrolling screens show their top without a scroll bar, so that a picture never catches
/// anything half-way.
namespace SnapshotMode {

void enable();
[[nodiscard]] bool isEnabled();

} // namespace SnapshotMode
