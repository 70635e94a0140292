// Opening the progress file at launch, without harm to a file that turns out to be none.
//
// A UserStore finds out by writing whether it can live with a file: in a foreign database it has
// switched the journal mode and added tables before it meets the one it can't use. So the opening
// is rehearsed on a private copy, and the file itself is opened only if that went well.
#pragma once

#include "store/userstore.h"

#include <memory>

namespace Store {

/// Opens the progress file at `url` as the launch does. A missing or empty file becomes a new
/// progress file. Throws HVError if there is a file that can't be opened; it keeps every byte then,
/// as do its companions ("-wal", "-shm", "-journal"). Companions and files that the opening itself
/// has made are taken away again, unless another process keeps the file busy.
///
/// The file must not be open in this process yet: reading it for the copy would drop the locks that
/// the process holds on it. Other processes may have it open.
[[nodiscard]] std::unique_ptr<UserStore> openProgressFile(const QUrl &url);

} // namespace Store
