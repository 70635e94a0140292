// What the labs' adapters do to the camera, and when they tell of it.
#include "shell/appmodel.h"
#include "simulator/previewrenderer.h"
#include "simulator/screens/common/unhurriedtext.h"
#include "simulator/screens/exposure/exposurecontrols.h"
#include "simulator/screens/exposure/exposurereadout.h"
#include "simulator/screens/lens/lenscomparison.h"
#include "support/qtprinters.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class Labs : public testing::Test
{
protected:
    Labs()
    {
        PreviewRenderer::setSynchronous(true);
        model.setSim({});
    }
    ~Labs() override
    {
        model.setSim({});
        PreviewRenderer::setSynchronous(false);
    }

    AppModel &model = AppModel::shared();
};

class ExposureControlsTest : public Labs
{
};

class ExposureReadoutTest : public Labs
{
};

class LensComparisonTest : public Labs
{
};

QVariant cell(const RowModel &rows, int row, const char *role)
{
    return rows.data(rows.index(row), rows.roleNames().key(role));
}

QStringList column(const RowModel &rows, const char *role)
{
    QStringList texts;
    for (int row = 0; row < rows.count(); ++row)
        texts.append(cell(rows, row, role).toString());
    return texts;
}

QImage thumb(const LensComparison &comparison, int row)
{
    return cell(comparison, row, "thumb").value<Photo>().image;
}

} // namespace

TEST_F(ExposureControlsTest, ReadAndWriteTheCameraOfTheApplication)
{
    ExposureControls controls;
    const QSignalSpy changes(&controls, &ExposureControls::changed);
    controls.setAperture(8);
    controls.setShutter(0.5);
    controls.setIso(800);
    controls.setFocal(85);
    controls.setFormatID(u"mft"_s);
    controls.setSubjectDistance(2);
    controls.setBackgroundDistance(50);
    controls.setMoverSpeed(0);
    const SimSettings expected{ .aperture = 8,
        .shutter = 0.5,
        .iso = 800,
        .focal = 85,
        .format = SensorFormat::mft(),
        .subjectDistance = 2,
        .backgroundDistance = 50,
        .moverSpeed = 0 };
    EXPECT_EQ(model.sim(), expected);
    EXPECT_EQ(changes.count(), 8);
    EXPECT_EQ(controls.aperture(), 8);
    EXPECT_EQ(controls.formatID(), u"mft"_s);
    EXPECT_EQ(controls.moverSpeed(), 0);
}

TEST_F(ExposureControlsTest, ChooseTheLightOfTheSettingsThatAnEarlierVisitLeft)
{
    EXPECT_EQ(ExposureControls().lightID(), u"office"_s);
    ExposureControls().setLightID(u"sun"_s);
    EXPECT_EQ(model.sim().sceneEV, 15);
    EXPECT_EQ(ExposureControls().lightID(), u"sun"_s);
}

TEST_F(ExposureControlsTest, LeaveTheBackgroundThatTheSubjectOvertakes)
{
    ExposureControls controls;
    controls.setBackgroundDistance(5);
    controls.setSubjectDistance(12);
    EXPECT_EQ(controls.nearestBackground(), 12.5);
    EXPECT_EQ(controls.backgroundDistance(), 5);
    controls.setSubjectDistance(0.5);
    EXPECT_EQ(controls.nearestBackground(), 1);
}

TEST_F(ExposureControlsTest, MeterOnce)
{
    ExposureControls controls;
    controls.meterShutter();
    EXPECT_EQ(controls.shutter(), 1.0 / 60);
    controls.setShutter(1.0 / 125);
    controls.meterAperture();
    EXPECT_EQ(controls.aperture(), 2.8);
}

TEST_F(ExposureReadoutTest, HasThePictureOfTheSettingsThatItFinds)
{
    const ExposureReadout readout;
    EXPECT_EQ(readout.picture().image.size(), QSize(720, 450));
}

TEST_F(ExposureReadoutTest, FollowsTheCamera)
{
    ExposureReadout readout;
    const QSignalSpy changes(&readout, &ExposureReadout::changed);
    const QImage before = readout.picture().image;
    SimSettings settings;
    settings.iso = 800;
    model.setSim(settings);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(readout.verdict(), u"Correct exposure (meter at zero)."_s);
    EXPECT_EQ(readout.caption(), u"f/4  1/125  ISO 800"_s);
    EXPECT_EQ(column(*readout.math(), "title").at(1), u"…adjusted for ISO 800"_s);
    EXPECT_EQ(column(*readout.math(), "value").at(3), u"0 stops"_s);
    EXPECT_NE(readout.picture().image, before);
}

TEST_F(ExposureReadoutTest, KeepsTheRowsOfItsPanelsWhileTheirTextsChange)
{
    ExposureReadout readout;
    const QSignalSpy resets(readout.depthAndMotion(), &QAbstractItemModel::modelReset);
    const QSignalSpy changes(readout.depthAndMotion(), &QAbstractItemModel::dataChanged);
    SimSettings settings;
    settings.subjectDistance = 5;
    model.setSim(settings);
    EXPECT_EQ(resets.count(), 0);
    EXPECT_GT(changes.count(), 0);
}

TEST_F(ExposureReadoutTest, ListsThePairsOfTheSameExposureAndMarksTheOneThatIsSet)
{
    ExposureReadout readout;
    const EquivalentList &pairs = *readout.equivalents();
    EXPECT_EQ(column(pairs, "aperture"),
        (QStringList{ u"f/1"_s, u"f/1.4"_s, u"f/2"_s, u"f/2.8"_s, u"f/4"_s, u"f/5.6"_s, u"f/8"_s,
            u"f/11"_s, u"f/16"_s, u"f/22"_s, u"f/32"_s }));
    EXPECT_EQ(cell(pairs, 0, "shutter"), u"1/2000"_s);
    EXPECT_EQ(cell(pairs, 10, "shutter"), u"0.5\""_s);
    EXPECT_EQ(column(pairs, "current").indexOf(u"true"_s), 4);
    EXPECT_EQ(column(pairs, "current").count(u"true"_s), 1);
}

TEST_F(ExposureReadoutTest, MarksNoPairWhileTheApertureLiesBetweenFullStops)
{
    SimSettings settings;
    settings.aperture = 4.5;
    model.setSim(settings);
    ExposureReadout readout;
    EXPECT_FALSE(column(*readout.equivalents(), "current").contains(u"true"_s));
}

TEST_F(ExposureReadoutTest, SetsThePairThatIsChosenAndListsThoseAroundIt)
{
    SimSettings settings;
    settings.aperture = 8;
    model.setSim(settings);
    ExposureReadout readout;
    EquivalentList &pairs = *readout.equivalents();
    const auto row = int(column(pairs, "aperture").indexOf(u"f/16"_s));
    EXPECT_EQ(cell(pairs, row, "shutter"), u"1/30"_s);
    EXPECT_EQ(cell(pairs, row, "iso"), u"ISO 400"_s);
    EXPECT_EQ(cell(pairs, row, "current"), false);
    pairs.choose(row);
    EXPECT_EQ(model.sim().aperture, 16);
    EXPECT_EQ(model.sim().shutter, 1.0 / 30);
    EXPECT_EQ(model.sim().iso, 400);
    const auto now = int(column(pairs, "aperture").indexOf(u"f/16"_s));
    EXPECT_EQ(cell(pairs, now, "current"), true);
    EXPECT_EQ(column(pairs, "current").count(u"true"_s), 1);
    pairs.choose(-1);
    pairs.choose(pairs.count());
    EXPECT_EQ(model.sim().aperture, 16);
}

TEST_F(ExposureReadoutTest, KeepsTheRowsOfThePairsWhileThereAreAsMany)
{
    ExposureReadout readout;
    const QSignalSpy resets(readout.equivalents(), &QAbstractItemModel::modelReset);
    SimSettings settings;
    settings.iso = 800;
    model.setSim(settings);
    EXPECT_EQ(resets.count(), 0);
    settings.shutter = 30;
    model.setSim(settings);
    EXPECT_EQ(resets.count(), 1);
}

TEST(UnhurriedText, ShowsTheFirstChangeAtOnceAndOfThoseThatFollowTheLast)
{
    UnhurriedText words(20ms);
    QSignalSpy changes(&words, &UnhurriedText::textChanged);
    words.setText(u"one"_s);
    EXPECT_EQ(words.text(), u"one"_s);
    words.setText(u"two"_s);
    words.setText(u"three"_s);
    EXPECT_EQ(words.text(), u"one"_s);
    EXPECT_EQ(changes.count(), 1);
    ASSERT_TRUE(changes.wait());
    EXPECT_EQ(words.text(), u"three"_s);
    EXPECT_EQ(changes.count(), 2);
}

TEST(UnhurriedText, TellsNothingWhenTheTextIsBackWhereItWas)
{
    UnhurriedText words(1ms);
    QSignalSpy changes(&words, &UnhurriedText::textChanged);
    words.setText(u"one"_s);
    words.setText(u"two"_s);
    words.setText(u"one"_s);
    words.setText(u"one"_s);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(words.text(), u"one"_s);
}

TEST_F(ExposureReadoutTest, TellsThePictureInWordsNoMoreThanOnceASecond)
{
    ExposureReadout readout;
    QSignalSpy changes(&readout, &ExposureReadout::pictureInWordsChanged);
    EXPECT_EQ(
        readout.pictureInWords(), u"1.0 stop under, background blur 3.8 pixels, streak 5 pixels"_s);
    SimSettings settings;
    for (const double iso : { 500.0, 640.0, 800.0 }) {
        settings.iso = iso;
        model.setSim(settings);
    }
    EXPECT_EQ(changes.count(), 0);
    ASSERT_TRUE(changes.wait());
    EXPECT_EQ(readout.pictureInWords(),
        u"correct exposure, background blur 3.8 pixels, streak 5 pixels"_s);
}

TEST_F(LensComparisonTest, BeginsWithFourLensesInALivingRoom)
{
    LensComparison comparison;
    EXPECT_EQ(column(comparison, "label"),
        (QStringList{ u"f/1.4"_s, u"f/1.8"_s, u"f/2.8"_s, u"f/5.6"_s }));
    EXPECT_EQ(column(comparison, "shutter"),
        (QStringList{ u"1/500"_s, u"1/320"_s, u"1/125"_s, u"1/30"_s }));
    EXPECT_EQ(column(comparison, "light").last(), u"baseline"_s);
    EXPECT_EQ(cell(comparison, 0, "shaky"), false);
    EXPECT_EQ(cell(comparison, 3, "shaky"), true);
    EXPECT_EQ(column(*comparison.offered(), "label"),
        (QStringList{ u"f/1.2"_s, u"f/1.4"_s, u"f/1.5"_s, u"f/1.8"_s, u"f/2"_s, u"f/2.8"_s,
            u"f/4"_s, u"f/5.6"_s }));
}

TEST_F(LensComparisonTest, HasItsPicturesAtOnceWhereWorkIsSynchronous)
{
    const LensComparison comparison;
    for (int row = 0; row < comparison.count(); ++row)
        EXPECT_EQ(thumb(comparison, row).size(), QSize(360, 225));
}

TEST_F(LensComparisonTest, TakesLensesInAndOutWhileTwoRemain)
{
    LensComparison comparison;
    comparison.toggle(1.2);
    EXPECT_EQ(column(comparison, "label").first(), u"f/1.2"_s);
    for (const double aperture : { 1.2, 2.8, 5.6 })
        comparison.toggle(aperture);
    EXPECT_EQ(column(comparison, "label"), (QStringList{ u"f/1.4"_s, u"f/1.8"_s }));
    EXPECT_EQ(column(comparison, "light").last(), u"baseline"_s);
    for (const double aperture : { 1.4, 1.8 })
        comparison.toggle(aperture);
    EXPECT_EQ(column(comparison, "label"), (QStringList{ u"f/1.4"_s, u"f/1.8"_s }));
    EXPECT_EQ(column(*comparison.offered(), "chosen").count(u"true"_s), 2);
}

TEST_F(LensComparisonTest, RendersAnewWhatHasChangedAndNothingElse)
{
    LensComparison comparison;
    const QImage before = thumb(comparison, 0);
    comparison.setIso(comparison.property("iso").toDouble());
    EXPECT_EQ(thumb(comparison, 0).cacheKey(), before.cacheKey());
    comparison.setIso(3200);
    EXPECT_NE(thumb(comparison, 0), before);
    EXPECT_EQ(cell(comparison, 0, "shutter"), u"1/1000"_s);
}

TEST_F(LensComparisonTest, KeepsItsOldPicturesUntilTheNewOnesAreThere)
{
    LensComparison comparison;
    PreviewRenderer::setSynchronous(false);
    QSignalSpy changes(&comparison, &QAbstractItemModel::dataChanged);
    const QImage before = thumb(comparison, 0);
    comparison.setBackground(60);
    EXPECT_EQ(thumb(comparison, 0), before);
    const int told = int(changes.count());
    while (changes.count() == told)
        ASSERT_TRUE(changes.wait());
    EXPECT_NE(thumb(comparison, 0), before);
}

TEST_F(LensComparisonTest, IsIndependentOfTheExposureLab)
{
    LensComparison comparison;
    const QStringList before = column(comparison, "blur");
    SimSettings settings;
    settings.focal = 200;
    model.setSim(settings);
    EXPECT_EQ(column(comparison, "blur"), before);
    comparison.setFocal(100);
    EXPECT_EQ(model.sim(), settings);
}

TEST_F(LensComparisonTest, MovesItsNearestBackgroundWithTheSubject)
{
    LensComparison comparison;
    comparison.setSubject(9);
    EXPECT_EQ(comparison.nearestBackground(), 9.5);
    EXPECT_EQ(comparison.property("background"), 15);
}
