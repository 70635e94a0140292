import Halvorin.Camera

/*! The user's notes and progress. */
UnbuiltScreen {
}
