// Where pictures are rendered that a screen doesn't wait for.
#pragma once

class QThreadPool;

/// One task at a time, in the order in which they were started. The application ends after the last
/// of them. Not the global pool: the rasterizer hands its fills to that one and waits for them.
[[nodiscard]] QThreadPool &renderQueue();
