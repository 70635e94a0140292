import Halvorin.Camera

/*! The Exposure Lab. */
UnbuiltScreen {
}
