import Halvorin.Player

/*! The player. It stands in no module, since the one that it needs may not be installed: whoever
    loads this file is told so. */
YouTubePlayerView {
}
