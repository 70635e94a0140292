// What becomes of a file of unknown origin that stands in the progress file's place.
#pragma once

#include "store/storetesting.h"

#include <optional>

namespace StoreTesting {

inline const QString kProgressFile = QStringLiteral("My Progress.sqlite");

/// Opens kProgressFile of the folder as the launch does, reads all there is as the screens do,
/// makes each kind of write and closes it. Returns the reason why it couldn't be opened, or
/// nothing.
///
/// Throws a std::logic_error if a promise is broken: a refusal has words and leaves every byte;
/// what SQLite found sound stays sound, and takes notes and gives them back; no other file comes or
/// goes.
std::optional<HVError> tryProgressFile(const Folder &folder);

} // namespace StoreTesting
