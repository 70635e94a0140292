// What happens once, about the first window: names and themes are handed to the kit, the progress
// file is opened, the course is read and, when the window stands, indexed.
#pragma once

#include <QThread>

#include <memory>

namespace HVSetup {

/// Makes the application's theme the default and introduces the application to the kit.
void configure();

/// Reads the course, which takes long and waits for nothing else. It may run in a thread of its
/// own, if nothing asks for the course until it has returned.
void prepareCourse();

/// Opens the progress file as UserStore::shared(). Never fails. The rights of everybody else are
/// taken from a file in the data folder; one that the environment names keeps what its user gave.
///
/// A progress file that can't be opened stays as it is, byte for byte, and a new file
/// "My Progress (opened <seconds since 1970>).sqlite" in the data folder takes its place for this
/// run; nothing remembers it, so the next launch tries the user's own file again. What the user
/// must be told goes into AppModel::message once the event loop runs.
void openStore();

/// Makes the search index of ContentLibrary::shared(), which must live as long as the thread that
/// is returned. The first screen needs no index and would wait for the processor, so this begins
/// after it. Then, in the event loop, the user is told which course files could not be read; this
/// message stays if there is one about the progress file too.
[[nodiscard]] std::unique_ptr<QThread> indexCourse();

} // namespace HVSetup
