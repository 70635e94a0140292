#include "simulator/screens/exposure/exposuretexts.h"

#include "simulator/exposure.h"
#include "simulator/numbertext.h"
#include "simulator/screens/exposure/meterreading.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double kMillimetersPerMeter = 1000;

Exposure::Lens lens(const SimSettings &settings)
{
    return { settings.focal, settings.aperture };
}

QString iso(const SimSettings &settings)
{
    return NumberText::fixed(settings.iso, 0);
}

// A length on the sensor that is this share of the frame's width.
QString onSensor(double fraction, const SimSettings &settings)
{
    return u"%1 mm (%2% of width)"_s.arg(NumberText::fixed(fraction * settings.format.width, 2),
        NumberText::fixed(fraction * 100, 1));
}

// "1.0 stop under".
QString exposureInWords(double offset)
{
    if (meterReading(offset) == MeterReading::Correct)
        return u"correct exposure"_s;
    const QString stops = Exposure::formatStops(std::abs(offset)).sliced(1);
    return stops + (offset > 0 ? " over"_L1 : " under"_L1);
}

} // namespace

QString ExposureTexts::caption(const SimSettings &settings)
{
    return u"%1  %2  ISO %3"_s.arg(
        Exposure::fLabel(settings.aperture), Shutter{ settings.shutter }.label(), iso(settings));
}

QString ExposureTexts::verdict(const SimSettings &settings)
{
    const double offset = settings.offset();
    const QString stops = Exposure::formatStops(offset);
    switch (meterReading(offset)) {
    case MeterReading::Correct:
        return u"Correct exposure (meter at zero)."_s;
    case MeterReading::BeyondTheScale:
        return offset > 0 ? u"Far too bright: about %1. Highlights are blown out."_s.arg(stops)
                          : u"Far too dark: about %1."_s.arg(stops);
    case MeterReading::Off:
        break;
    }
    return (offset > 0 ? u"Brighter than the meter suggests (%1)."_s
                       : u"Darker than the meter suggests (%1)."_s)
        .arg(stops);
}

QString ExposureTexts::meter(const SimSettings &settings)
{
    return u"Light meter: "_s + Exposure::formatStops(settings.offset());
}

QString ExposureTexts::picture(const SimSettings &settings, int width)
{
    const QString blur = NumberText::fixed(settings.backgroundBlurFraction() * width, 1);
    const QString streak = NumberText::fixed(settings.moverStreakFraction() * width, 0);
    return u"%1, background blur %2 pixels, streak %3 %4"_s.arg(
        exposureInWords(settings.offset()), blur, streak, streak == "1"_L1 ? u"pixel" : u"pixels");
}

std::vector<ExposureTexts::Figure> ExposureTexts::math(const SimSettings &settings)
{
    const double ev = Exposure::ev({ settings.aperture, settings.shutter });
    const double ev100 = Exposure::ev100({ settings.aperture, settings.shutter, settings.iso });
    return {
        { u"EV of these settings (ISO 100)"_s, NumberText::fixed(ev, 2) },
        { u"…adjusted for ISO "_s + iso(settings), NumberText::fixed(ev100, 2) },
        { u"Scene light (EV at ISO 100)"_s, NumberText::fixed(settings.sceneEV, 0) },
        { u"Exposure"_s, Exposure::formatStops(settings.offset()) },
    };
}

QString ExposureTexts::mathNote()
{
    return u"EV = log₂(N² ÷ t). Every +1 EV is half the light. Correct exposure: "
           "EV − log₂(ISO ÷ 100) = scene EV."_s;
}

std::vector<ExposureTexts::Figure> ExposureTexts::depthAndMotion(const SimSettings &settings)
{
    const double coc = settings.format.coc();
    const auto sharp = Exposure::depthOfField(
        lens(settings), coc, settings.subjectDistance * kMillimetersPerMeter);
    const double angle = Exposure::angleOfView(settings.focal, settings.format.width);
    return {
        { u"Sharp from"_s, Exposure::formatDistance(sharp.near) },
        { u"Sharp to"_s, Exposure::formatDistance(sharp.far) },
        { u"Hyperfocal distance"_s,
            Exposure::formatDistance(Exposure::hyperfocal(lens(settings), coc)) },
        { u"Background blur disc"_s, onSensor(settings.backgroundBlurFraction(), settings) },
        { u"Cyclist streak"_s, onSensor(settings.moverStreakFraction(), settings) },
        { u"Angle of view"_s, NumberText::fixed(angle, 0) + u"° across"_s },
    };
}

QString ExposureTexts::shakeWarning(const SimSettings &settings)
{
    const double steady = Exposure::slowestHandheld(settings.focal, settings.format);
    // The times themselves are compared; the nearest entry of the scale is only what is written.
    if (settings.shutter <= steady)
        return {};
    return u"Slower than about %1 — use a tripod or stabilization, or camera shake may blur "
           "everything."_s.arg(Shutter{ Exposure::nearestShutter(steady) }.label());
}
