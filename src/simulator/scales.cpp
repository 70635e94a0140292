#include "simulator/scales.h"

#include "simulator/numbertext.h"

#include <algorithm>
#include <array>
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

std::span<const SensorFormat> SensorFormat::all()
{
    static const std::array formats = {
        SensorFormat{ u"ff"_s, u"Full frame (36 × 24 mm)"_s, 36, 24 },
        SensorFormat{ u"apsc"_s, u"APS-C (23.5 × 15.6 mm)"_s, 23.5, 15.6 },
        SensorFormat{ u"mft"_s, u"Micro Four Thirds (17.3 × 13 mm)"_s, 17.3, 13 },
        SensorFormat{ u"1in"_s, u"1-inch type (13.2 × 8.8 mm)"_s, 13.2, 8.8 },
        SensorFormat{ u"mf"_s, u"Medium format digital (44 × 33 mm)"_s, 44, 33 },
        SensorFormat{ u"66"_s, u"120 film, 6 × 6 (56 × 56 mm)"_s, 56, 56 },
    };
    return formats;
}

double SensorFormat::diagonal() const
{
    return std::sqrt(width * width + height * height);
}

double SensorFormat::coc() const
{
    return diagonal() / 1500;
}

double SensorFormat::crop() const
{
    return 43.2666 / diagonal();
}

const SensorFormat &SensorFormat::fullFrame()
{
    return all()[0];
}

const SensorFormat &SensorFormat::apsc()
{
    return all()[1];
}

const SensorFormat &SensorFormat::mft()
{
    return all()[2];
}

const SensorFormat &SensorFormat::oneInch()
{
    return all()[3];
}

const SensorFormat &SensorFormat::mf4433()
{
    return all()[4];
}

const SensorFormat &SensorFormat::film66()
{
    return all()[5];
}

const SensorFormat &SensorFormat::named(QStringView id)
{
    const auto formats = all();
    const auto found = std::ranges::find(formats, id, &SensorFormat::id);
    return found != formats.end() ? *found : fullFrame();
}

std::span<const LightLevel> LightLevel::all()
{
    static const std::array levels = {
        LightLevel{ u"snow"_s, u"Sun on snow or sand"_s, 16 },
        LightLevel{ u"sun"_s, u"Full sun (\"sunny 16\")"_s, 15 },
        LightLevel{ u"overcast"_s, u"Bright overcast"_s, 13 },
        LightLevel{ u"shade"_s, u"Open shade / heavy overcast"_s, 12 },
        LightLevel{ u"stadium"_s, u"Floodlit stadium at night"_s, 9 },
        LightLevel{ u"office"_s, u"Bright office or gym"_s, 8 },
        LightLevel{ u"home"_s, u"Living room at night"_s, 6 },
        LightLevel{ u"street"_s, u"Night street, shop windows"_s, 5 },
        LightLevel{ u"candle"_s, u"Candlelight close up"_s, 4 },
        LightLevel{ u"moon"_s, u"Full-moon landscape"_s, -3 },
    };
    return levels;
}

const LightLevel &LightLevel::named(QStringView id)
{
    const auto levels = all();
    const auto level = [levels](QStringView wanted) {
        return std::ranges::find(levels, wanted, &LightLevel::id);
    };
    const auto found = level(id);
    return found != levels.end() ? *found : *level(u"sun");
}
