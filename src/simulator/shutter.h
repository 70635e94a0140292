// A shutter time that knows how a camera writes it.
#pragma once

#include <QString>

/// A shutter time. Equal to another when the seconds are equal.
struct Shutter {
    double seconds = 0;

    /// As on a camera's display, where a double quote is the sign for seconds: 2", 2.5", 0.5",
    /// 1/125.
    /// @pre seconds is finite and positive.
    [[nodiscard]] QString label() const;

    friend bool operator==(const Shutter &, const Shutter &) = default;
};
