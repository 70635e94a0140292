import Halvorin.Camera

/*! Workflows and software. */
UnbuiltScreen {
}
