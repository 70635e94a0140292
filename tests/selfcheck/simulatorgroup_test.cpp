// The groups of the self-test that measure the simulator.

#include "recording.h"
#include "selfcheck/selftest/groups.h"
#include "simulator/exposure.h"
#include "simulator/plainrenderer.h"
#include "simulator/scenerenderer.h"
#include "support/qtprinters.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// The photograph as the plain renderer makes it, grain included.
QImage plainPicture(const SimSettings &settings)
{
    static const QSize size(480, 300);
    static const PlainRenderer renderer(size);
    std::vector<unsigned char> bytes = renderer.renderWithoutGrain(settings);
    PlainRenderer::addGrain(bytes, settings.noiseSigma() * 255);
    return QImage(bytes.data(), size.width(), size.height(), size.width() * 4,
        QImage::Format_RGBA8888_Premultiplied)
        .copy();
}

struct Printed {
    double value;
    double lastPlace; ///< What one more in its last decimal is worth.
};

// What was measured: the numbers at the end of the label, from the bracket on.
QList<Printed> measures(const QString &label)
{
    static const QRegularExpression number(u"\\d+\\.(\\d+)"_s);
    QList<Printed> found;
    for (const QRegularExpressionMatch &match : number.globalMatch(label, label.lastIndexOf(u'(')))
        found.append(
            { match.captured().toDouble(), std::pow(10.0, -double(match.capturedLength(1))) });
    return found;
}

QString withoutMeasures(const QString &line)
{
    static const QRegularExpression number(u"\\d+\\.\\d+"_s);
    const qsizetype bracket = line.lastIndexOf(u'(');
    return line.first(bracket) + line.sliced(bracket).replace(number, u"#"_s);
}

const QStringList kSimulatorLines = {
    u"== Exposure Lab preview: the picture changes the way the settings say"_s,
    u"PASS  correct exposure looks mid-bright (mean #)"_s,
    u"PASS  2 stops over (slower shutter) is clearly brighter (# → #)"_s,
    u"PASS  2 stops under is clearly darker (# → #)"_s,
    u"PASS  f/1.4 blurs the background far more than f/16 (detail # vs #)"_s,
    u"PASS  the focused subject stays sharp at f/1.4 (# vs #)"_s,
    u"PASS  equal exposures look equally bright (# vs #)"_s,
    u"PASS  1/15 s smears the moving cyclist, 1/2000 s freezes it (# vs #)"_s,
    u"PASS  ISO 25600 is much noisier than ISO 100 (# vs #)"_s,
};

} // namespace

TEST(SimulatorGroup, TellsElevenChecksAndAllPass)
{
    Recording recording;
    HVSelfTest::simulatorTests(recording.run);
    ASSERT_EQ(recording.lines.size(), 11);
    for (qsizetype i = 1; i < kSimulatorLines.size(); ++i)
        EXPECT_EQ(withoutMeasures(recording.lines[i]), kSimulatorLines[i]);
    EXPECT_EQ(recording.lines[0], kSimulatorLines[0]);
    EXPECT_EQ(recording.lines[9],
        u"PASS  same focal length and f-number on a smaller sensor: same exposure and the same "
        "blur disc on the sensor (the frame is just cropped)"_s);
    EXPECT_EQ(recording.lines[10],
        u"PASS  same framing (25 mm on Micro Four Thirds vs 50 mm full frame) at the same f/2: "
        "same exposure, about half the background blur"_s);
}

TEST(SimulatorGroup, GivesTheSameNumbersTwice)
{
    Recording first;
    Recording second;
    HVSelfTest::simulatorTests(first.run);
    HVSelfTest::simulatorTests(second.run);
    EXPECT_EQ(first.lines, second.lines);
}

TEST(SimulatorGroup, MeasuresWhatThePlainRendererGives)
{
    Recording actual;
    Recording expected;
    HVSelfTest::simulatorTests(actual.run);
    HVSelfTest::simulatorTests(expected.run, plainPicture);
    ASSERT_EQ(actual.lines.size(), expected.lines.size());
    int compared = 0;
    for (qsizetype i = 1; i < kSimulatorLines.size(); ++i) {
        const QList<Printed> mine = measures(actual.lines[i]);
        const QList<Printed> plain = measures(expected.lines[i]);
        ASSERT_EQ(mine.size(), plain.size());
        for (qsizetype n = 0; n < mine.size(); ++n, ++compared) {
            // Decimals: two equal numbers are one double, two neighbors a whole place apart.
            const double allowed = std::max(plain[n].value * 0.01, plain[n].lastPlace / 2);
            EXPECT_NEAR(mine[n].value, plain[n].value, allowed) << qPrintable(actual.lines[i]);
        }
    }
    EXPECT_EQ(compared, 15);
}

TEST(SimulatorGroup, NoticesAPictureThatNeverChanges)
{
    const QImage still = plainPicture({});
    Recording recording;
    HVSelfTest::simulatorTests(recording.run, [&](const SimSettings &) { return still; });
    // The subject is as sharp as itself, and so is its brightness; sensor sizes need no picture.
    EXPECT_EQ(recording.failed().size(), 5);
}

TEST(SimulatorGroup, EndsWithTheFirstPictureIfThatIsMissing)
{
    Recording recording;
    HVSelfTest::simulatorTests(recording.run, [](const SimSettings &) { return QImage(); });
    EXPECT_EQ(recording.lines, (QStringList{ kSimulatorLines[0], u"FAIL  preview renders"_s }));
}

TEST(SimulatorGroup, TellsWhichOtherPictureIsMissingAndGoesOn)
{
    const SceneRenderer renderer(QSize(480, 300), SceneRenderer::Threads::One);
    const struct {
        int missing; ///< Which of the pictures, from 0.
        QString told;
        int lines;
    } cases[] = {
        { 1, u"over/under renders"_s, 10 },
        { 2, u"over/under renders"_s, 10 },
        { 3, u"aperture renders"_s, 9 },
        { 4, u"aperture renders"_s, 9 },
        { 5, u"shutter renders"_s, 11 },
        { 6, u"shutter renders"_s, 11 },
        { 7, u"ISO renders"_s, 11 },
        { 8, u"ISO renders"_s, 11 },
    };
    for (const auto &[missing, told, lines] : cases) {
        int number = 0;
        Recording recording;
        HVSelfTest::simulatorTests(recording.run, [&](const SimSettings &settings) {
            return number++ == missing ? QImage() : renderer.render(settings);
        });
        EXPECT_EQ(recording.failed(), QStringList(told)) << missing;
        EXPECT_EQ(recording.lines.size(), lines) << missing;
    }
}

TEST(MathGroup, TellsTwentyFiveChecksAndAllPass)
{
    Recording recording;
    HVSelfTest::mathTests(recording.run);
    EXPECT_EQ(recording.lines.size(), 26);
    EXPECT_EQ(recording.failed(), QStringList());
    EXPECT_EQ(recording.lines.first(3),
        (QStringList{
            u"== Exposure math: EV, equivalent exposures, stops between f-numbers (within 0.05)"_s,
            u"PASS  EV of f/1 at 1 s: 0.0000 ≈ 0.0000 (±1e-09)"_s,
            u"PASS  EV of f/16 at 1/125: 14.9658 ≈ 14.9660 (±0.01)"_s }));
    EXPECT_EQ(recording.lines.last(), u"PASS  shutter labels"_s);
}

TEST(LensLabGroup, TellsEightChecksAndAllPass)
{
    Recording recording;
    HVSelfTest::lensLabTests(recording.run);
    EXPECT_EQ(recording.lines,
        (QStringList{
            u"== Lens Lab: f/1.4, f/1.8, f/2.8 and f/5.6 compared with real math"_s,
            u"PASS  rows sorted fastest first"_s,
            u"PASS  f/1.4 vs kit f/5.6: stops: 4.0000 ≈ 4.0000 (±0.05)"_s,
            u"PASS  f/1.8 vs kit f/5.6: stops: 3.2749 ≈ 3.2800 (±0.05)"_s,
            u"PASS  f/2.8 vs kit f/5.6: stops: 2.0000 ≈ 2.0000 (±0.05)"_s,
            u"PASS  in the same light the kit lens needs a 16× longer shutter than f/1.4: "
            "16.0000 ≈ 16.0000 (±0.01)"_s,
            u"PASS  living room (EV 6), ISO 1600: f/1.4 → 1/500, f/5.6 → 1/30"_s,
            u"PASS  background blur f/1.4 = 4× f/5.6: 4.0000 ≈ 4.0000 (±0.001)"_s,
            u"PASS  depth of field grows from f/1.4 to f/5.6"_s,
        }));
}
