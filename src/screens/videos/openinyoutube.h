// The way out of the program to a film's own page.
#pragma once

struct Video;

namespace HVVideo {

/// Hands the page on which the film is watched to the user's browser. False, with nothing done,
/// while the machine is offline.
[[nodiscard]] bool openInYouTube(const Video &video);

} // namespace HVVideo
