import Halvorin.Player

/*! The player. The module that it needs may not be installed: whoever loads this file is told so. Like
    all others it is compiled with the program, or the engine would leave a cache in the user's home. */
YouTubePlayerView {
}
