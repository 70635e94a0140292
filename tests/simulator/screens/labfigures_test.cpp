// The figures that lessons promise, read off the labs as a reader would set them.
#include "content/figuretable.h"

#include "shell/appmodel.h"
#include "simulator/lenslab.h"
#include "simulator/screens/common/nearestbackground.h"
#include "simulator/screens/common/stopscale.h"
#include "simulator/screens/exposure/exposurecontrols.h"
#include "simulator/screens/exposure/exposurereadout.h"
#include "simulator/screens/lens/lenstexts.h"
#include "support/qtprinters.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QRegularExpression kNumber(u"[+−-]?[0-9]+(\\.[0-9]+)?|infinity"_s);

QString normalized(QString figure)
{
    return figure.remove(u',').remove(u'+').replace(u'−', u'-').replace(u'⅓', u".33"_s);
}

int decimalsOf(const QString &number)
{
    const qsizetype point = number.indexOf(u'.');
    return point < 0 ? 0 : int(number.size() - point - 1);
}

// Whether a lesson prints what a lab shows: the same text where both have as many digits, else the
// same number as far as the shorter one tells.
bool agree(const QString &printed, const QString &shown)
{
    const QString a = normalized(printed);
    const QString b = normalized(shown);
    if (decimalsOf(a) == decimalsOf(b))
        return a == b;
    const std::optional<double> x = number(a);
    const std::optional<double> y = number(b);
    return x && y
        && std::abs(*x - *y)
        <= 0.5 * std::pow(10, -decimalsOf(a)) + 0.5 * std::pow(10, -decimalsOf(b)) + 1e-9;
}

// The n-th number in a text, from 0.
QString numberIn(const QString &text, int n = 0)
{
    auto found = kNumber.globalMatch(text);
    QString match;
    for (int i = 0; i <= n && found.hasNext(); ++i)
        match = found.next().captured();
    return match;
}

QString valueOf(const FigureList &figures, const QString &title)
{
    const auto roles = figures.roleNames();
    for (int row = 0; row < figures.count(); ++row) {
        if (figures.data(figures.index(row), roles.key("title")).toString() == title)
            return figures.data(figures.index(row), roles.key("value")).toString();
    }
    ADD_FAILURE() << "The panel has no such line.";
    return {};
}

// The Exposure Lab as a reader sets it; false if its controls don't reach one of the settings.
class Lab
{
public:
    bool set(const Arguments &a)
    {
        AppModel::shared().setSim({});
        SimSettings settings;
        bool reached = dial(a, u"aperture"_s, StopScales::aperture(), settings.aperture)
            && dial(a, u"shutter"_s, StopScales::shutter(), settings.shutter)
            && dial(a, u"iso"_s, StopScales::iso(), settings.iso)
            && dial(a, u"focal"_s, StopScales::focalLength(), settings.focal)
            && slider(a, u"focus"_s, 0.5, 20, settings.subjectDistance)
            && slider(a, u"object"_s, nearestBackground(settings.subjectDistance), 200,
                settings.backgroundDistance)
            && slider(a, u"speed"_s, 0, 15, settings.moverSpeed)
            && (!a.has(u"distance"_s) || a[u"distance"_s] == settings.moverDistance)
            && (!a.has(u"side"_s) || a.text(u"side"_s) == u"width");
        if (a.has(u"format"_s))
            settings.format = a.format();
        if (a.has(u"light"_s)) {
            settings.sceneEV = a.light();
            reached = reached
                && std::ranges::find(LightLevel::all(), settings.sceneEV, &LightLevel::ev)
                    != LightLevel::all().end();
        }
        AppModel::shared().setSim(settings);
        return reached;
    }

    /// What it shows where a calculation of this name comes out; nothing if it doesn't show it.
    std::optional<QString> shown(const QString &calculation, const QString &unit)
    {
        const FigureList &depth = *m_readout.depthAndMotion();
        const FigureList &math = *m_readout.math();
        const bool meters = unit.isEmpty() || unit == u"m";
        if (calculation == u"near" && meters)
            return numberIn(valueOf(depth, u"Sharp from"_s));
        if (calculation == u"far" && meters)
            return numberIn(valueOf(depth, u"Sharp to"_s));
        if (calculation == u"hyperfocal" && meters)
            return numberIn(valueOf(depth, u"Hyperfocal distance"_s));
        if (calculation == u"blurDisc" && unit == u"mm")
            return numberIn(valueOf(depth, u"Background blur disc"_s), 0);
        if (calculation == u"blurShare" && unit == u"%")
            return numberIn(valueOf(depth, u"Background blur disc"_s), 1);
        if (calculation == u"streak" && unit == u"mm")
            return numberIn(valueOf(depth, u"Cyclist streak"_s), 0);
        if (calculation == u"streakShare" && unit == u"%")
            return numberIn(valueOf(depth, u"Cyclist streak"_s), 1);
        if (calculation == u"angle")
            return numberIn(valueOf(depth, u"Angle of view"_s));
        if (calculation == u"ev")
            return numberIn(valueOf(math, u"EV of these settings (ISO 100)"_s));
        if (calculation == u"offset")
            return numberIn(valueOf(math, u"Exposure"_s));
        if (calculation == u"nearestShutterFor") {
            m_controls.meterShutter();
            return m_readout.caption().split(u"  "_s).value(1).remove(u'"');
        }
        if (calculation == u"nearestApertureFor") {
            m_controls.meterAperture();
            return numberIn(m_readout.caption());
        }
        if (calculation == u"nearestHandheld") {
            m_controls.setShutter(30);
            return m_readout.shakeWarning().section(u' ', 3, 3);
        }
        return std::nullopt;
    }

private:
    static bool dial(const Arguments &a, const QString &name, const StopScale &scale, double &value)
    {
        if (a.has(name))
            value = a[name];
        return scale.stops().contains(value);
    }
    static bool slider(
        const Arguments &a, const QString &name, double from, double to, double &value)
    {
        if (a.has(name))
            value = a[name];
        return from <= value && value <= to;
    }

    ExposureControls m_controls;
    ExposureReadout m_readout;
};

bool isOffered(double aperture)
{
    return std::ranges::find(LensChoices::offered, aperture) != LensChoices::offered.end();
}

// What the Lens Lab shows where a calculation of this name comes out; nothing if its controls don't
// reach the settings or it doesn't show this.
std::optional<QString> shownByLensLab(
    const QString &calculation, const QString &unit, const Arguments &a)
{
    LensLab::Conditions conditions{ 50, SensorFormat::fullFrame(), 2.5, 15, 6, 1600 };
    if (calculation == u"stops" || calculation == u"lightRatio") {
        const double fast = std::min(a[u"from"_s], a[u"to"_s]);
        const double slow = std::max(a[u"from"_s], a[u"to"_s]);
        if (!isOffered(fast) || !isOffered(slow) || a[u"from"_s] > a[u"to"_s])
            return std::nullopt;
        const QString light = LensTexts::light(
            LensLab::rows(std::vector<double>{ fast, slow }, conditions).front());
        return numberIn(light, calculation == u"stops" ? 1 : 0);
    }
    if (calculation != u"depth" || unit != u"cm" || !isOffered(a.aperture())
        || !StopScales::focalLength().stops().contains(a.focal()) || !(a[u"focus"_s] >= 0.5)
        || !(a[u"focus"_s] <= 10))
        return std::nullopt;
    conditions.focal = a.focal();
    conditions.format = a.format();
    conditions.subject = a[u"focus"_s];
    return numberIn(
        LensTexts::depth(LensLab::rows(std::vector<double>{ a.aperture() }, conditions).front()));
}

} // namespace

TEST(LabFigures, AgreeInTheDigitsThatBothShow)
{
    EXPECT_TRUE(agree(u"2.64"_s, u"2.64"_s));
    EXPECT_FALSE(agree(u"2.64"_s, u"2.65"_s));
    EXPECT_TRUE(agree(u"2.6"_s, u"2.64"_s));
    EXPECT_FALSE(agree(u"2.6"_s, u"2.71"_s));
    EXPECT_TRUE(agree(u"−1.0"_s, u"−1.0"_s));
    EXPECT_FALSE(agree(u"−1.0"_s, u"+1.0"_s));
    EXPECT_TRUE(agree(u"1/125"_s, u"1/125"_s));
    EXPECT_FALSE(agree(u"infinity"_s, u"12"_s));
}

TEST(LabFigures, AreWhatTheLabsShow)
{
    Lab lab;
    int exposureLab = 0;
    int lensLab = 0;
    for (const FigureLine &figure : figureLines(QStringLiteral(HV_TEST_FIGURES))) {
        SCOPED_TRACE(figure.where.toStdString());
        QStringList words = figure.calculation.split(u' ', Qt::SkipEmptyParts);
        const QString calculation = words.takeFirst();
        const Arguments arguments(words);
        const QString unit = arguments.text(u"unit"_s);
        if (lab.set(arguments)) {
            if (const std::optional<QString> shown = lab.shown(calculation, unit)) {
                ++exposureLab;
                EXPECT_TRUE(agree(figure.printed, *shown))
                    << "The Exposure Lab shows " << qPrintable(*shown);
            }
        }
        if (const std::optional<QString> shown = shownByLensLab(calculation, unit, arguments)) {
            ++lensLab;
            EXPECT_TRUE(agree(figure.printed, *shown))
                << "The Lens Lab shows " << qPrintable(*shown);
        }
    }
    // Most of the table; a smaller part would mean that the labs are no longer asked.
    EXPECT_GT(exposureLab, 600);
    EXPECT_GT(lensLab, 30);
    AppModel::shared().setSim({});
}
