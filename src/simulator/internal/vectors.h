// Lengths in whole vectors.
#pragma once

/// In floats: the widest vector that is ever used. Rows of floats are padded to a whole number of
/// these, so that no step needs a case for their ends.
inline constexpr int kWidestVector = 16;

/// The number of floats in the vectors that hold `count` of them; count is at least 0.
[[nodiscard]] constexpr int wholeVectors(int count)
{
    return (count + kWidestVector - 1) / kWidestVector * kWidestVector;
}

/// The first column of the vector that column `x` lies in; x is at least 0.
[[nodiscard]] constexpr int vectorOf(int x)
{
    return x / kWidestVector * kWidestVector;
}
