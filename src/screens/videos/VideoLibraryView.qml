import Halvorin.Camera

/*! The video library. */
UnbuiltScreen {
}
