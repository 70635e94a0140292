import Halvorin.Camera

/*! The history of photography. */
UnbuiltScreen {
}
