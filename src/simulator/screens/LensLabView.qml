import Halvorin.Camera

/*! The Lens Lab. */
UnbuiltScreen {
}
