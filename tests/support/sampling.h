// Long lists of cases, shortened where the program runs many times slower.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

/// All of them; in a build with sanitizers every nth, beginning with the first. Sanitizers look for
/// paths rather than for values, and a sample of a list in some order takes all of its kinds.
/// @pre n is at least 1.
template <typename T>
[[nodiscard]] std::vector<T> everyNthIfSanitized(std::vector<T> all, [[maybe_unused]] std::size_t n)
{
#ifdef HV_SANITIZED
    std::vector<T> sample;
    for (std::size_t i = 0; i < all.size(); i += n)
        sample.push_back(std::move(all[i]));
    return sample;
#else
    return all;
#endif
}
