import Halvorin.Kit

/*! The kit's search field. */
SearchCapsule {
}
