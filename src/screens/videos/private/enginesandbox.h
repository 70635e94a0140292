#pragma once

namespace EngineSandbox {

/// Whether the web engine can start at all. It ends the whole program where it finds no way to lock
/// up the processes that run pages: as root, and on a Linux that lets users make no namespaces.
/// Whoever starts the program may have switched the lock off (QTWEBENGINE_DISABLE_SANDBOX); the
/// program itself never does.
[[nodiscard]] bool isUsable();

} // namespace EngineSandbox
