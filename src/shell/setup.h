// What happens once, before the first window: names and themes are handed to the kit, the
// progress file is opened and the course is loaded.
#pragma once

#include <QFont>
#include <QList>

namespace HVSetup {

/// Makes the application's theme the default and introduces the application to the kit.
void configure();

/// Reads the course and makes the leather at `scale`, in device pixels per point: what takes long
/// and waits for nothing else. It may run in a thread of its own, if nothing asks for either until
/// it has returned.
void prepare(double scale);

/// The fonts that the first screen is lettered in. One that is missing here is opened when its
/// first text is laid out.
[[nodiscard]] QList<QFont> firstFonts();

/// Opens the progress file as UserStore::shared() and loads ContentLibrary::shared(). Never fails.
///
/// A progress file that can't be opened stays as it is, byte for byte, and a new file
/// "My Progress (opened <seconds since 1970>).sqlite" in the data folder takes its place for this
/// run; nothing remembers it, so the next launch tries the user's own file again. What the user
/// must be told goes into AppModel::message once the event loop runs; if course files are missing
/// too, that message comes last and stays.
void openStore();

} // namespace HVSetup
