import Halvorin.Camera

/*! The gear encyclopedia. */
UnbuiltScreen {
}
