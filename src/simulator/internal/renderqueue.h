// Where pictures are rendered that a screen doesn't wait for.
#pragma once

class QThreadPool;

namespace Simulator {

// Queues of one task at a time, in the order in which they were started. When the application
// ends, what hasn't begun is dropped, since nobody will see it, and what has begun is waited for.
// Not the global pool: the rasterizer hands its fills to that one and waits for them.

/// The queue of previews.
[[nodiscard]] QThreadPool &previewQueue();

/// The queue of thumbnails. Neither kind of picture waits behind a burst of the other.
[[nodiscard]] QThreadPool &thumbQueue();

} // namespace Simulator
