// Words that differ between platforms, in one place: texts are written once, as on macOS, and
// read here in the words of the platform that the program runs on.
#pragma once

#include <QString>

namespace PlatformWords {

/// `text` in the platform's own words: off macOS "this Mac" becomes "this computer", the folder
/// "~/Library/Application Support" the real one, and key signs such as "⌘[" or "⇧⌘E" the names
/// "Ctrl+[" and "Ctrl+Shift+E". On macOS the text comes back unchanged.
///
/// Keys are named as menus name them: "⌘−" becomes "Ctrl+-", and "⌘?", which takes Shift on most
/// keyboards, "Ctrl+Shift+/".
[[nodiscard]] QString localized(const QString &text);

/// How a text names a file or folder to the user: with the platform's separators, and on macOS with
/// "~" for the home folder.
[[nodiscard]] QString pathInText(const QString &path);

} // namespace PlatformWords
