// An INI file that holds texts and nothing else.
//
// QSettings' own INI format takes a value that begins with "@Variant(" for any of Qt's types in
// binary form, makes one by whatever lengths that tells, and so ends the program for want of
// memory. Here every value is the text that stands there. Values are quoted and escaped as in that
// format.
#pragma once

#include <QSettings>

namespace TextSettings {

/// For QSettings' constructor.
[[nodiscard]] QSettings::Format format();

} // namespace TextSettings
