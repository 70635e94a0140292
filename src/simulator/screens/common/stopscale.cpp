#include "simulator/screens/common/stopscale.h"

#include "simulator/exposure.h"
#include "simulator/numbertext.h"

#include <algorithm>
#include <array>
#include <span>

using namespace Qt::StringLiterals;

namespace {

/// In mm, from a very wide angle to a long telephoto.
constexpr std::array kFocalLengths{ 14.0, 16.0, 20.0, 24.0, 28.0, 35.0, 50.0, 70.0, 85.0, 100.0,
    135.0, 200.0, 300.0, 400.0, 600.0 };

QList<double> listOf(std::span<const double> stops)
{
    return QList<double>(stops.begin(), stops.end());
}

} // namespace

StopScale::StopScale(QList<double> stops, Format format)
    : m_stops(std::move(stops))
    , m_format(format)
{ }

int StopScale::nearest(double value) const
{
    return int(Exposure::nearestIndex({ m_stops.constData(), size_t(m_stops.size()) }, value));
}

QString StopScale::label(double value) const
{
    return m_stops.isEmpty() ? QString() : m_format(m_stops.at(nearest(value)));
}

double StopScale::moved(double value, int places) const
{
    if (m_stops.isEmpty())
        return value;
    const qsizetype last = m_stops.size() - 1;
    return m_stops.at(std::clamp<qsizetype>(qsizetype(nearest(value)) + places, 0, last));
}

const StopScale &StopScales::aperture()
{
    static const StopScale scale(listOf(Exposure::apertures), Exposure::fLabel);
    return scale;
}

const StopScale &StopScales::shutter()
{
    static const StopScale scale(listOf(Exposure::shutterSeconds),
        [](double seconds) { return Shutter{ seconds }.label(); });
    return scale;
}

const StopScale &StopScales::iso()
{
    static const StopScale scale(
        listOf(Exposure::isos), [](double iso) { return NumberText::fixed(iso, 0); });
    return scale;
}

const StopScale &StopScales::focalLength()
{
    static const StopScale scale(listOf(kFocalLengths),
        [](double focal) -> QString { return NumberText::fixed(focal, 0) + "mm"_L1; });
    return scale;
}
