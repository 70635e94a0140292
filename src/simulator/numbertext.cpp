#include "simulator/numbertext.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostDecimals = 20;

// A sign, the digits of the largest double, a point and the decimals.
constexpr int kLongest = 1 + std::numeric_limits<double>::max_exponent10 + 1 + 1 + kMostDecimals;

} // namespace

QString NumberText::fixed(double value, int decimals)
{
    Q_ASSERT(decimals >= 0 && decimals <= kMostDecimals);
    if (std::isnan(value))
        return u"nan"_s;
    std::array<char, kLongest> text;
    const auto written = std::to_chars(
        text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    return QString::fromLatin1(text.data(), written.ptr - text.data());
}
