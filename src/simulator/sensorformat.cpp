#include "simulator/sensorformat.h"

#include <algorithm>
#include <array>
#include <cmath>

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
