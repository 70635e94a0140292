// Words that differ between platforms, in one place: texts are written once, as on macOS, and
// read here in the words of the platform that the program runs on.
#pragma once

#include <QString>

namespace PlatformWords {

/// `text` in the platform's own words: off macOS "this Mac" becomes "this computer", the folder
/// "~/Library/Application Support" the real one, and key signs such as "⌘[" or "⇧⌘E" the names
/// "Ctrl+[" and "Ctrl+Shift+E". On macOS the text comes back unchanged.
[[nodiscard]] QString localized(const QString &text);

} // namespace PlatformWords
