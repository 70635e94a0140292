// The figures that lessons print, against the arithmetic of the simulated camera.
#include "content/figuretable.h"
#include "content/installedcourse.h"

#include "content/contentlibrary.h"
#include "simulator/exposure.h"
#include "simulator/scales.h"
#include "simulator/simsettings.h"
#include "support/qtprinters.h"

#include <QMap>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr double kMillimeters = 1000; // in a meter

Exposure::Triple triple(const Arguments &a)
{
    return { a.aperture(), a.shutter(), a.iso() };
}

double hyperfocal(const Arguments &a)
{
    return Exposure::hyperfocal(a.lens(), a.format().coc());
}

Exposure::DepthOfField depthOfField(const Arguments &a)
{
    return Exposure::depthOfField(a.lens(), a.format().coc(), a[u"focus"_s] * kMillimeters);
}

double blurDisc(const Arguments &a)
{
    return Exposure::blurDisc(
        a.lens(), a[u"focus"_s] * kMillimeters, a[u"object"_s] * kMillimeters);
}

double streak(const Arguments &a)
{
    return Exposure::motionStreak(a.focal(), { a[u"speed"_s], a[u"distance"_s] }, a.shutter());
}

double angle(const Arguments &a)
{
    return Exposure::angleOfView(a.focal(), a.side());
}

double shutterFor(const Arguments &a)
{
    return Exposure::shutterFor(a.light(), a.aperture(), a.iso());
}

// The f-number for the right exposure, from the same equation as shutterFor().
double apertureFor(const Arguments &a)
{
    return std::sqrt(a.shutter() / Exposure::shutterFor(a.light(), 1, a.iso()));
}

double handheld(const Arguments &a)
{
    return Exposure::slowestHandheld(a.focal(), a.format());
}

using Calculation = double (*)(const Arguments &);

// Lengths in mm.
const QMap<QString, Calculation> kLengths = {
    { u"near"_s, [](const Arguments &a) { return depthOfField(a).near; } },
    { u"far"_s, [](const Arguments &a) { return depthOfField(a).far; } },
    { u"depth"_s, [](const Arguments &a) { return depthOfField(a).far - depthOfField(a).near; } },
    { u"hyperfocal"_s, hyperfocal },
    { u"blurDisc"_s, blurDisc },
    { u"streak"_s, streak },
    { u"coc"_s, [](const Arguments &a) { return a.format().coc(); } },
    { u"diagonal"_s, [](const Arguments &a) { return a.format().diagonal(); } },
    { u"equivalentFocal"_s, [](const Arguments &a) { return a.focal() * a.format().crop(); } },
    { u"opening"_s, [](const Arguments &a) { return a.focal() / a.aperture(); } },
    { u"fieldOfView"_s,
        [](const Arguments &a) {
            return 2 * a[u"distance"_s] * kMillimeters
                * std::tan(angle(a) / 2 * std::numbers::pi / 180);
        } },
};

// All else: times in s, angles in degrees, shares of the frame's width as fractions.
const QMap<QString, Calculation> kOthers = {
    { u"ev"_s,
        [](const Arguments &a) {
            return Exposure::ev({ a.aperture(), a.shutter() });
        } },
    { u"ev100"_s, [](const Arguments &a) { return Exposure::ev100(triple(a)); } },
    { u"offset"_s, [](const Arguments &a) { return Exposure::offset(a.light(), triple(a)); } },
    { u"stops"_s, [](const Arguments &a) { return Exposure::stops(a[u"from"_s], a[u"to"_s]); } },
    { u"lightRatio"_s,
        [](const Arguments &a) { return Exposure::lightRatio(a[u"from"_s], a[u"to"_s]); } },
    { u"shutterFor"_s, shutterFor },
    { u"nearestShutterFor"_s,
        [](const Arguments &a) { return Exposure::nearestShutter(shutterFor(a)); } },
    { u"nearestApertureFor"_s,
        [](const Arguments &a) { return Exposure::nearestAperture(apertureFor(a)); } },
    { u"blurShare"_s, [](const Arguments &a) { return blurDisc(a) / a.format().width; } },
    { u"streakShare"_s, [](const Arguments &a) { return streak(a) / a.format().width; } },
    { u"angle"_s, angle },
    { u"handheld"_s, handheld },
    { u"nearestHandheld"_s,
        [](const Arguments &a) { return Exposure::nearestShutter(handheld(a)); } },
    { u"crop"_s, [](const Arguments &a) { return a.format().crop(); } },
    { u"noise"_s, [](const Arguments &a) { return SimSettings{ .iso = a.iso() }.noiseSigma(); } },
};

const QMap<QString, double> kUnitsOfLength = { { QString(), 1 / kMillimeters },
    { u"m"_s, 1 / kMillimeters }, { u"cm"_s, 100 / kMillimeters }, { u"mm"_s, 1 } };

const QMap<QString, double> kUnitsOfOthers = { { QString(), 1 }, { u"s"_s, 1 }, { u"%"_s, 100 } };

// The result in the unit that the calculation names; nothing for a name or unit that isn't there.
std::optional<double> calculated(const QString &calculation)
{
    QStringList words = calculation.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return std::nullopt;
    const QString name = words.takeFirst();
    const Arguments arguments(words);
    const QString unit = arguments.text(u"unit"_s);
    if (kLengths.contains(name) && kUnitsOfLength.contains(unit))
        return kLengths[name](arguments) * kUnitsOfLength[unit];
    if (kOthers.contains(name) && kUnitsOfOthers.contains(unit))
        return kOthers[name](arguments) * kUnitsOfOthers[unit];
    return std::nullopt;
}

// Whether a figure prints a result to its last digit. A fraction 1/n is a result whose reciprocal
// rounds to n, a third of a stop is two decimals.
bool prints(QString figure, double result)
{
    figure.remove(u',').remove(u'+').replace(u'−', u'-').replace(u'⅓', u".33"_s);
    if (figure == u"infinity")
        return std::isinf(result);
    if (figure.startsWith("1/"_L1))
        return QString::number(std::round(1 / result)) == figure.sliced(2);
    const qsizetype point = figure.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : figure.size() - point - 1;
    bool isNumber = false;
    const double printed = figure.toDouble(&isNumber);
    // The rounding of the last digit, and a little for a result that lies halfway.
    return isNumber && std::abs(result - printed) <= 0.5 * std::pow(10, -decimals) + 1e-9;
}

} // namespace

TEST(Figures, AreJudgedByTheirLastDigit)
{
    EXPECT_TRUE(prints(u"2.36"_s, 2.3649));
    EXPECT_FALSE(prints(u"2.36"_s, 2.3651));
    EXPECT_TRUE(prints(u"1,250"_s, 1250.4));
    EXPECT_FALSE(prints(u"1,250"_s, 1250.6));
    EXPECT_TRUE(prints(u"−2.0"_s, -1.96));
    EXPECT_FALSE(prints(u"−2.0"_s, 1.96));
    EXPECT_TRUE(prints(u"1/64"_s, 1 / 64.3));
    EXPECT_FALSE(prints(u"1/64"_s, 1 / 64.6));
    EXPECT_TRUE(prints(u"infinity"_s, HUGE_VAL));
    EXPECT_FALSE(prints(u"infinity"_s, 1e9));
    EXPECT_FALSE(prints(u"far"_s, 0));
    EXPECT_FALSE(prints(u"1.0"_s, std::nan("")));
}

TEST(Figures, NeedEveryArgumentOfTheirCalculation)
{
    EXPECT_NEAR(*calculated(u"near focal=50 aperture=8 format=ff focus=3 unit=m"_s), 2.36, 0.005);
    EXPECT_TRUE(std::isnan(*calculated(u"near focal=50 format=ff focus=3 unit=m"_s)));
    EXPECT_FALSE(calculated(u"near focal=50 aperture=8 format=ff focus=3 unit=s"_s));
    EXPECT_FALSE(calculated(u"nearly focal=50 aperture=8 format=ff focus=3 unit=m"_s));
    EXPECT_FALSE(calculated(u"offset light=sun aperture=16 shutter=1/125 iso=100 unit=m"_s));
}

TEST(Figures, StandInTheirLessonsAndAreWhatTheCameraComputes)
{
    const ContentLibrary course(installedCourse());
    const QList<FigureLine> figures = figureLines(QStringLiteral(HV_TEST_FIGURES));
    for (const FigureLine &figure : figures) {
        SCOPED_TRACE(figure.where.toStdString());
        const Lesson *lesson = course.lesson(figure.lesson);
        EXPECT_TRUE(lesson) << "There is no such lesson.";
        EXPECT_TRUE(!lesson || lesson->body.contains(figure.passage))
            << "The lesson has no such passage.";
        EXPECT_TRUE(figure.passage.contains(figure.printed))
            << "The figure doesn't stand in the passage.";
        const std::optional<double> result = calculated(figure.calculation);
        EXPECT_TRUE(result) << "There is no such calculation.";
        EXPECT_TRUE(!result || prints(figure.printed, *result))
            << "The camera computes " << result.value_or(std::nan(""));
    }
    EXPECT_FALSE(figures.isEmpty());
}
