#include "simulator/screens/lens/lenstexts.h"

#include "simulator/exposure.h"
#include "simulator/numbertext.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double kNoGain = 0.05; // stops
constexpr double kLargestDisc = 34;
constexpr double kSmallestDisc = 3;

} // namespace

QString LensTexts::light(const LensLabRow &row)
{
    if (row.stopsVsSlowest < kNoGain)
        return u"baseline"_s;
    return u"%1× more (+%2 stops)"_s.arg(
        NumberText::fixed(row.lightTimes, 1), NumberText::fixed(row.stopsVsSlowest, 2));
}

QString LensTexts::shutter(const LensLabRow &row)
{
    return Shutter{ Exposure::nearestShutter(row.shutter) }.label();
}

QString LensTexts::blur(const LensLabRow &row)
{
    return u"%1 mm · %2%"_s.arg(
        NumberText::fixed(row.blurMM, 2), NumberText::fixed(row.blurFraction * 100, 1));
}

QString LensTexts::depth(const LensLabRow &row)
{
    return std::isinf(row.dofMM) ? u"to infinity"_s
                                 : NumberText::fixed(row.dofMM / 10, 0) + " cm deep"_L1;
}

QString LensTexts::note()
{
    return uR"(## Reading the table
• Light gathered: each f-number lets in light in proportion to 1 ÷ N². f/1.4 vs f/5.6 is (5.6 ÷ 1.4)² = 16 times the light, which is 4 stops. f/1.8 vs f/5.6 is about 3.3 stops; f/2.8 vs f/5.6 is exactly 2 stops; f/1.4 vs f/1.8 is about 0.7 stop. (f/1.5 vs f/1.4 is only 0.2 stop.)
• Shutter needed: in the same light at the same ISO, every stop of extra light halves the shutter time. That is why a fast lens freezes motion indoors where a kit lens can't.
• Background blur: the blur disc is proportional to 1 ÷ N, so f/1.4 makes background lights four times wider than f/5.6 at the same focal length and distances.
• Depth of field also depends on focal length, distance and the format (sensor size) — not only on the f-number. Exposure does not depend on the format: f/2.8 gives the same brightness on a phone, APS-C or medium format.)"_s;
}

std::vector<double> LensChoices::toggled(std::vector<double> chosen, double aperture)
{
    const auto found = std::ranges::find(chosen, aperture);
    if (found == chosen.end())
        chosen.push_back(aperture);
    else if (chosen.size() > 2)
        chosen.erase(found);
    return chosen;
}

bool LensChoices::isShaky(const LensLabRow &row, const LensLab::Conditions &conditions)
{
    return row.shutter > Exposure::slowestHandheld(conditions.focal, conditions.format);
}

std::vector<double> LensChoices::discs(const std::vector<LensLabRow> &rows)
{
    double largest = 0;
    for (const LensLabRow &row : rows)
        largest = std::max(largest, row.blurFraction);
    if (largest == 0) // without rows, or where all of them are sharp
        largest = 1;
    std::vector<double> diameters;
    for (const LensLabRow &row : rows)
        diameters.push_back(std::max(row.blurFraction / largest * kLargestDisc, kSmallestDisc));
    return diameters;
}
