#include "simulator/sensorformat.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

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

const SensorFormat &SensorFormat::fullFrame()
{
    return all().front();
}

const SensorFormat &SensorFormat::named(QStringView id)
{
    const auto formats = all();
    const auto found = std::ranges::find(formats, id, &SensorFormat::id);
    return found != formats.end() ? *found : fullFrame();
}
