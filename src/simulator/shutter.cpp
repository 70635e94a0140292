#include "simulator/shutter.h"

#include "simulator/numbertext.h"

#include <cmath>

using namespace Qt::StringLiterals;

QString Shutter::label() const
{
    Q_ASSERT(std::isfinite(seconds) && seconds > 0);
    if (seconds >= 1) {
        const bool whole = seconds == std::floor(seconds);
        return NumberText::fixed(seconds, whole ? 0 : 1) + u'"';
    }
    // 0.3 is itself a time of the scale; the next shorter one is written 1/4.
    if (seconds >= 0.3)
        return "0."_L1 + QString::number(std::lround(seconds * 10)) + u'"';
    return "1/"_L1 + QString::number(std::llround(1 / seconds));
}
