#include "simulator/lightlevel.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

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
