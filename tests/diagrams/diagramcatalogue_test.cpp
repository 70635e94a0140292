#include "diagrams/diagramcatalogue.h"

#include "kit/printing.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Diagrams;
using namespace Qt::StringLiterals;

namespace {

struct Content {
    QLatin1StringView id;
    size_t shapes;
    QStringList callouts;
};

// What every drawing consists of.
// clang-format off
const std::vector<Content> kContents = {
    { "dslr"_L1, 3, { u"Pentaprism / viewfinder"_s, u"Lens mount"_s, u"Grip"_s, u"Mode dial"_s } },
    { "mirrorless"_L1, 3, { u"Electronic viewfinder"_s, u"Short flange: no mirror"_s, u"Grip"_s } },
    { "medium-format"_L1, 4,
        { u"Film back / digital back"_s,
            u"Waist-level finder"_s,
            u"Lens with leaf shutter"_s } },
    { "rangefinder"_L1, 5, { u"Rangefinder window"_s, u"Viewfinder window"_s, u"Lens"_s } },
    { "tlr"_L1, 4, { u"Viewing lens"_s, u"Taking lens"_s, u"Waist-level finder hood"_s } },
    { "view-camera"_L1, 7,
        { u"Lens standard"_s,
            u"Bellows"_s,
            u"Ground glass / film holder"_s,
            u"Rail"_s } },
    { "compact"_L1, 4,
        { u"Built-in zoom lens"_s,
            u"Small 1-inch type sensor"_s,
            u"Pop-up flash"_s } },
    { "instant"_L1, 4, { u"Print comes out here"_s, u"Lens"_s, u"Flash"_s } },
    { "action"_L1, 4, { u"Ultra-wide lens"_s, u"Front screen"_s, u"Rugged waterproof body"_s } },
    { "phone"_L1, 5,
        { u"Several small cameras (wide, ultra-wide, tele)"_s,
            u"Computational processing"_s } },
    { "drone"_L1, 10, { u"Gimbal camera"_s, u"Propellers"_s } },
    { "prime"_L1, 2, { u"One focal length (e.g. 50 mm)"_s, u"Mount"_s, u"Focus ring"_s } },
    { "zoom"_L1, 2, { u"Zoom ring"_s, u"Focus ring"_s, u"Range e.g. 24–70 mm"_s } },
    { "telephoto"_L1, 3,
        { u"Tripod collar & foot"_s,
            u"Large front element"_s,
            u"e.g. 400–600 mm"_s } },
    { "wide"_L1, 3, { u"Bulging front element"_s, u"Very wide angle of view"_s } },
    { "macro"_L1, 3, { u"1:1 life-size at close focus"_s, u"Tiny subject very close"_s } },
    { "fisheye"_L1, 3, { u"Hemispherical front element"_s, u"~180° view, curved lines"_s } },
    { "tilt-shift"_L1, 3, { u"Tilt / shift mechanism"_s, u"Front tilts and slides"_s } },
    { "teleconverter"_L1, 3, { u"Camera"_s, u"1.4× / 2× converter"_s, u"Long lens"_s } },
    { "extension-tube"_L1, 4, { u"Hollow tubes (no glass)"_s, u"Lens focuses closer"_s } },
    { "lens-adapter"_L1, 3, { u"Mount A (lens side)"_s, u"Mount B (camera side)"_s } },
    { "filter-round"_L1, 2, { u"Threaded ring (e.g. 77 mm)"_s, u"Glass"_s } },
    { "filter-square"_L1, 3,
        { u"Dark top half (graduated ND)"_s,
            u"Clear bottom"_s,
            u"Holder"_s } },
    { "polarizer"_L1, 10, { u"Rotating front ring"_s, u"Cuts glare & reflections"_s } },
    { "hood"_L1, 2, { u"Petal / tube hood blocks stray light"_s } },
    { "lens-cap"_L1, 4, { u"Pinch clips"_s, u"Protects the front glass"_s } },
    { "tripod"_L1, 6,
        { u"Head (camera plate)"_s,
            u"Center column"_s,
            u"Leg locks"_s,
            u"Feet / spikes"_s } },
    { "monopod"_L1, 6, { u"One leg: support that moves with you"_s, u"Optional small feet"_s } },
    { "ball-head"_L1, 5,
        { u"Quick-release plate"_s,
            u"Ball moves in all directions"_s,
            u"One locking knob"_s } },
    { "pan-tilt"_L1, 5, { u"Separate handles for pan and tilt"_s } },
    { "gimbal-head"_L1, 3, { u"Lens balances on its center of gravity"_s, u"Swing arm"_s } },
    { "l-bracket"_L1, 1,
        { u"Side plate: quick switch to vertical"_s,
            u"Base plate (Arca-type)"_s } },
    { "clamp"_L1, 4, { u"Screw jaw"_s, u"Ball / spigot for camera or light"_s } },
    { "slider"_L1, 5, { u"Carriage glides along rails"_s, u"Mount on tripods or stands"_s } },
    { "speedlight"_L1, 4,
        { u"Tilting / swivelling flash head"_s,
            u"Batteries & controls"_s,
            u"Hot-shoe foot"_s } },
    { "strobe"_L1, 4,
        { u"Flash tube & modeling lamp"_s,
            u"Power & controls"_s,
            u"Stand mount"_s } },
    { "led-panel"_L1, 26, { u"Continuous light: see it as you shoot"_s } },
    { "softbox"_L1, 3, { u"Diffuser front"_s, u"Light inside"_s } },
    { "umbrella"_L1, 4,
        { u"Shoot-through or reflective fabric"_s,
            u"Flash aimed at the umbrella"_s } },
    { "reflector"_L1, 2, { u"Bounces light back (white, silver, gold)"_s, u"Folds small"_s } },
    { "light-stand"_L1, 3, { u"Spigot for lights"_s, u"Telescoping column"_s } },
    { "beauty-dish"_L1, 2, { u"Center deflector"_s, u"Crisp, punchy portrait light"_s } },
    { "trigger"_L1, 4,
        { u"Radio transmitter on the hot shoe"_s,
            u"Fires flashes off the camera"_s } },
    { "light-meter"_L1, 4,
        { u"White dome reads light falling on the subject"_s,
            u"Reading: f/5.6 at 1/125"_s } },
    { "ring-light"_L1, 3,
        { u"Even, shadowless front light"_s,
            u"Camera or phone in the middle"_s } },
    { "backpack"_L1, 3, { u"Padded dividers inside"_s, u"Carry handle"_s } },
    { "shoulder-bag"_L1, 3, { u"Quick side access"_s, u"Shoulder strap"_s } },
    { "roller"_L1, 4, { u"Telescoping handle"_s, u"Wheels for airports"_s } },
    { "hard-case"_L1, 4, { u"Waterproof latches"_s, u"Foam cut to your gear"_s } },
    { "rain-cover"_L1, 2, { u"Clear window to see controls"_s, u"Lens sleeve"_s } },
    { "strap"_L1, 3, { u"Padded neck / shoulder section"_s, u"Anchor clips"_s } },
    { "harness"_L1, 5, { u"Two cameras at the hips"_s, u"Shoulder straps"_s } },
    { "battery-grip"_L1, 3,
        { u"Second shutter button for vertical shots"_s,
            u"Holds extra batteries"_s } },
    { "battery"_L1, 3, { u"Lithium-ion pack"_s, u"Contacts"_s } },
    { "charger"_L1, 4, { u"Charge light"_s, u"Battery slot"_s } },
    { "memory-card"_L1, 6, { u"Speed class & capacity printed here"_s, u"Contacts"_s } },
    { "card-reader"_L1, 3, { u"Card slot"_s, u"USB-C to the computer"_s } },
    { "remote"_L1, 3, { u"Fires without touching the camera"_s, u"Wireless or app"_s } },
    { "cable-release"_L1, 4,
        { u"Lockable button for bulb exposures"_s,
            u"Plugs into the camera"_s } },
    { "motor-drive"_L1, 3, { u"Film-era motor drive: winds film for you"_s, u"Battery handle"_s } },
    { "blower"_L1, 2, { u"Air puffs dust off without touching"_s, u"Nozzle"_s } },
    { "cleaning-kit"_L1, 4, { u"Microfiber cloth"_s, u"Lens pen / brush"_s, u"Lens fluid"_s } },
    { "sensor-swab"_L1, 2,
        { u"Wet swab, sized to the sensor width"_s,
            u"Use only as the maker directs"_s } },
    { "loupe"_L1, 2, { u"Magnifier for negatives or screens"_s, u"Sits flat on the light box"_s } },
    { "gray-card"_L1, 1,
        { u"18% gray: a known middle tone"_s,
            u"Use for exposure & white balance"_s } },
    { "color-chart"_L1, 25, { u"Known color patches for accurate color"_s } },
    { "monitor"_L1, 4, { u"Wide-gamut, calibrated screen"_s, u"Shading hood"_s } },
    { "calibrator"_L1, 3, { u"Puck measures the screen's colors"_s } },
    { "laptop"_L1, 2, { u"Editing and tethered shooting"_s } },
    { "hard-drive"_L1, 4, { u"Backups: keep 3 copies"_s, u"SSD or hard disk"_s } },
    { "pen-tablet"_L1, 3, { u"Pressure-sensitive pen for retouching"_s } },
    { "tether-cable"_L1, 3,
        { u"Camera"_s,
            u"Long USB-C cable"_s,
            u"Laptop shows each shot big"_s } },
    { "film-35"_L1, 19,
        { u"Light-tight cassette"_s,
            u"Sprocket holes"_s,
            u"24 × 36 mm frames"_s } },
    { "film-120"_L1, 3,
        { u"Spool with paper backing"_s,
            u"Wide film: 6×4.5, 6×6, 6×7 cm frames"_s } },
    { "sheet-film"_L1, 3, { u"One sheet per picture (4×5 inch and up)"_s, u"Dark slide"_s } },
    { "dev-tank"_L1, 4, { u"Light-tight lid"_s, u"Reel holds the film in a spiral"_s } },
    { "enlarger"_L1, 6,
        { u"Lamp head"_s,
            u"Negative carrier & lens"_s,
            u"Baseboard with paper"_s } },
    { "trays"_L1, 3, { u"Developer"_s, u"Stop bath"_s, u"Fixer"_s } },
    { "safelight"_L1, 2, { u"Dim red/amber light paper can't see"_s } },
    { "scanner"_L1, 3, { u"Light in the lid for film"_s, u"Glass with film holder"_s } },
    { "film-holder"_L1, 5, { u"Holds a strip flat for scanning or copying"_s } },
    { "backdrop"_L1, 4, { u"Paper or cloth roll"_s, u"Stands and crossbar"_s } },
    { "viewfinder"_L1, 2, { u"Eyecup and diopter dial"_s, u"Shows the frame with settings"_s } },
    { "hot-shoe"_L1, 6, { u"Contacts talk to the flash (TTL)"_s, u"Rails hold the foot"_s } },
    { "sensor"_L1, 64, { u"Millions of light-sensitive photosites"_s } },
    { "printer"_L1, 8, { u"Paper feed"_s, u"Pigment inks"_s, u"Print comes out here"_s } },
};
// clang-format on

template <typename S>
const S &shape(DiagramKind kind, size_t index)
{
    return std::get<S>(drawing(kind).shapes.at(index));
}

void expectBox(const Box &box, const Box &expected)
{
    EXPECT_EQ(box.x, expected.x);
    EXPECT_EQ(box.y, expected.y);
    EXPECT_EQ(box.w, expected.w);
    EXPECT_EQ(box.h, expected.h);
    EXPECT_EQ(box.r, expected.r);
    EXPECT_DOUBLE_EQ(box.fill, expected.fill);
}

void expectCircle(const Circle &circle, const Circle &expected)
{
    EXPECT_EQ(circle.cx, expected.cx);
    EXPECT_EQ(circle.cy, expected.cy);
    EXPECT_EQ(circle.r, expected.r);
    EXPECT_EQ(circle.fill, expected.fill);
}

void expectLens(const LensBarrel &lens, const LensBarrel &expected)
{
    EXPECT_EQ(lens.x, expected.x);
    EXPECT_EQ(lens.y, expected.y);
    EXPECT_EQ(lens.length, expected.length);
    EXPECT_EQ(lens.radius, expected.radius);
    EXPECT_EQ(lens.rings, expected.rings);
}

void expectCamera(const CameraBody &camera, const CameraBody &expected)
{
    EXPECT_EQ(camera.x, expected.x);
    EXPECT_EQ(camera.y, expected.y);
    EXPECT_EQ(camera.w, expected.w);
    EXPECT_EQ(camera.h, expected.h);
    EXPECT_EQ(camera.hump, expected.hump);
    EXPECT_EQ(camera.grip, expected.grip);
}

void expectLine(const Line &line, const std::vector<QPointF> &points, double width)
{
    EXPECT_EQ(line.points, points);
    EXPECT_FALSE(line.closed);
    EXPECT_EQ(line.width, width);
}

void expectPoly(const Line &line, const std::vector<QPointF> &points, double fill)
{
    EXPECT_EQ(line.points, points);
    EXPECT_TRUE(line.closed);
    EXPECT_EQ(line.fill, fill);
    EXPECT_EQ(line.width, 1.6);
}

void expectCallout(DiagramKind kind, qsizetype index, QPointF at, QPointF target)
{
    const Callout &callout = drawing(kind).callouts.at(index);
    EXPECT_EQ(callout.at, at);
    EXPECT_EQ(callout.target, target);
}

} // namespace

// All of it

TEST(DiagramCatalogue, HasARowForEveryKindInTheirOrder)
{
    ASSERT_EQ(catalogue().size(), 86u);
    for (size_t i = 0; i < catalogue().size(); ++i)
        EXPECT_EQ(catalogue()[i].kind, allDiagramKinds()[i]) << i;
}

TEST(DiagramCatalogue, GivesTheRowOfAKind)
{
    for (const DiagramKind kind : allDiagramKinds())
        EXPECT_EQ(drawing(kind).kind, kind) << rawValue(kind).latin1();
}

TEST(DiagramCatalogue, HasSoManyShapesAndTheseCalloutsInEveryRow)
{
    ASSERT_EQ(kContents.size(), 86u);
    for (size_t i = 0; i < kContents.size(); ++i) {
        const Content &expected = kContents[i];
        SCOPED_TRACE(expected.id.latin1());
        const Drawing &row = catalogue()[i];
        EXPECT_TRUE(rawValue(row.kind) == expected.id);
        EXPECT_EQ(row.shapes.size(), expected.shapes);
        QStringList texts;
        for (const Callout &callout : row.callouts)
            texts.append(callout.text);
        EXPECT_EQ(texts, expected.callouts);
    }
}

TEST(DiagramCatalogue, IsTheSameAtEachCall)
{
    EXPECT_EQ(catalogue().data(), catalogue().data());
}

TEST(DiagramCatalogue, WritesItsDashesDegreesAndTimesSignsAsTheyAre)
{
    EXPECT_EQ(drawing(DiagramKind::Zoom).callouts.at(2).text, u"Range e.g. 24\u201370 mm"_s);
    EXPECT_EQ(
        drawing(DiagramKind::Fisheye).callouts.at(1).text, u"~180\u00B0 view, curved lines"_s);
    EXPECT_EQ(drawing(DiagramKind::Teleconverter).callouts.at(1).text,
        u"1.4\u00D7 / 2\u00D7 converter"_s);
    EXPECT_EQ(drawing(DiagramKind::Film35).callouts.at(2).text, u"24 \u00D7 36 mm frames"_s);
}

// Something of each family

TEST(DiagramCatalogue, DslrIsABodyWithPrismGripAndMount)
{
    expectCamera(shape<CameraBody>(DiagramKind::Dslr, 0), { 110, 90, 180, 110, true, true });
    expectCircle(shape<Circle>(DiagramKind::Dslr, 1), { 200, 150, 34, 0.1 });
    expectCircle(shape<Circle>(DiagramKind::Dslr, 2), { 200, 150, 22, 0.2 });
    expectCallout(DiagramKind::Dslr, 0, { 330, 50 }, { 220, 70 });
    expectCallout(DiagramKind::Dslr, 3, { 330, 95 }, { 254, 86 });
}

TEST(DiagramCatalogue, ViewCameraHasABellowsBetweenTwoStraightLines)
{
    constexpr auto kind = DiagramKind::ViewCamera;
    expectLine(shape<Line>(kind, 2), { { 90, 80 }, { 300, 60 } }, 1.6);
    expectLine(shape<Line>(kind, 3), { { 90, 180 }, { 300, 200 } }, 1.6);
    expectLine(shape<Line>(kind, 4),
        { { 90, 80 }, { 110, 70 }, { 130, 85 }, { 150, 72 }, { 170, 88 }, { 190, 75 }, { 210, 90 },
            { 230, 78 }, { 250, 92 }, { 270, 80 }, { 300, 60 } },
        1.6);
    expectLine(shape<Line>(kind, 5), { { 40, 220 }, { 360, 220 } }, 3);
}

TEST(DiagramCatalogue, MediumFormatWearsItsLensToTheLeftOfTheBody)
{
    expectLens(shape<LensBarrel>(DiagramKind::MediumFormat, 3), { 40, 135, 70, 34, 2 });
    expectBox(shape<Box>(DiagramKind::MediumFormat, 0), { 110, 70, 120, 130, 10, 0.1 });
}

TEST(DiagramCatalogue, ZoomIsABarrelOfTwoRingsAndItsMount)
{
    expectLens(shape<LensBarrel>(DiagramKind::Zoom, 0), { 90, 130, 200, 50, 2 });
    expectBox(shape<Box>(DiagramKind::Zoom, 1), { 70, 92, 20, 76, 4, 0.2 });
    expectCallout(DiagramKind::Zoom, 0, { 160, 40 }, { 157, 80 });
}

TEST(DiagramCatalogue, WideHasAnArcForItsAngleOfView)
{
    const Arc &arc = shape<Arc>(DiagramKind::Wide, 2);
    EXPECT_EQ(arc.cx, 262);
    EXPECT_EQ(arc.cy, 130);
    EXPECT_EQ(arc.r, 60);
    EXPECT_EQ(arc.start, -70);
    EXPECT_EQ(arc.end, 70);
    const Ellipse &front = shape<Ellipse>(DiagramKind::Wide, 1);
    EXPECT_EQ(front.cx, 260);
    EXPECT_EQ(front.cy, 130);
    EXPECT_EQ(front.rx, 20);
    EXPECT_EQ(front.ry, 60);
    EXPECT_EQ(front.fill, 0.2);
}

TEST(DiagramCatalogue, PolarizerIsHatchedEveryFourteen)
{
    for (int i = 0; i < 8; ++i) {
        const double x = 150 + 14 * i;
        expectLine(shape<Line>(DiagramKind::Polarizer, 2 + i), { { x, 75 }, { x, 185 } }, 0.8);
    }
}

TEST(DiagramCatalogue, TripodStandsOnItsLegs)
{
    constexpr auto kind = DiagramKind::Tripod;
    expectBox(shape<Box>(kind, 0), { 170, 30, 60, 26, 6, 0.1 });
    expectCircle(shape<Circle>(kind, 1), { 200, 70, 12, 0.1 });
    expectBox(shape<Box>(kind, 2), { 194, 76, 12, 40, 3, 0.2 });
    const Legs &legs = shape<Legs>(kind, 3);
    EXPECT_EQ(legs.x, 200);
    EXPECT_EQ(legs.y, 112);
    EXPECT_EQ(legs.spread, 120);
    EXPECT_EQ(legs.foot, 240);
    expectBox(shape<Box>(kind, 4), { 102, 165, 16, 10, 2, 0.3 });
    expectBox(shape<Box>(kind, 5), { 282, 165, 16, 10, 2, 0.3 });
    expectCallout(kind, 3, { 70, 238 }, { 82, 238 });
}

TEST(DiagramCatalogue, LedPanelHasItsLampsColumnByColumn)
{
    for (int i = 0; i < 24; ++i) {
        expectCircle(shape<Circle>(DiagramKind::LedPanel, 1 + i),
            { 135.0 + 26 * (i / 4), 75.0 + 30 * (i % 4), 7, 0.3 });
    }
    expectLine(shape<Line>(DiagramKind::LedPanel, 25), { { 200, 190 }, { 200, 240 } }, 4);
}

TEST(DiagramCatalogue, RingLightIsOpenInTheMiddle)
{
    expectCircle(shape<Circle>(DiagramKind::RingLight, 0), { 200, 130, 90, 0.04 });
    expectCircle(shape<Circle>(DiagramKind::RingLight, 1), { 200, 130, 64, 0 });
}

TEST(DiagramCatalogue, BackpackHasAnOpenHandle)
{
    expectBox(shape<Box>(DiagramKind::Backpack, 0), { 130, 30, 140, 200, 30, 0.1 });
    expectLine(shape<Line>(DiagramKind::Backpack, 2),
        { { 170, 30 }, { 170, 15 }, { 230, 15 }, { 230, 30 } }, 1.6);
}

TEST(DiagramCatalogue, GripAndMotorDriveHaveOnePartOfABodyEach)
{
    expectCamera(shape<CameraBody>(DiagramKind::BatteryGrip, 0), { 120, 50, 170, 90, false, true });
    expectCamera(shape<CameraBody>(DiagramKind::MotorDrive, 0), { 110, 50, 180, 90, true, false });
}

TEST(DiagramCatalogue, MemoryCardHasACutCornerAndARowOfContacts)
{
    expectPoly(shape<Line>(DiagramKind::MemoryCard, 0),
        { { 140, 40 }, { 240, 40 }, { 270, 70 }, { 270, 220 }, { 140, 220 } }, 0.12);
    for (int i = 0; i < 5; ++i)
        expectBox(
            shape<Box>(DiagramKind::MemoryCard, 1 + i), { 152.0 + 20 * i, 190, 12, 22, 2, 0.3 });
}

TEST(DiagramCatalogue, ColorChartStepsItsGraysAlongDiagonals)
{
    constexpr double kGrays[] = { 0.08, 0.16, 0.24, 0.32 };
    for (int c = 0; c < 6; ++c) {
        for (int r = 0; r < 4; ++r) {
            expectBox(shape<Box>(DiagramKind::ColorChart, 1 + 4 * c + r),
                { 120.0 + 28 * c, 70.0 + 28 * r, 24, 24, 3, kGrays[(c + r) % 4] });
        }
    }
}

TEST(DiagramCatalogue, LaptopIsAScreenOverAKeyboard)
{
    expectPoly(shape<Line>(DiagramKind::Laptop, 0),
        { { 110, 40 }, { 290, 40 }, { 290, 160 }, { 110, 160 } }, 0.1);
    expectPoly(shape<Line>(DiagramKind::Laptop, 1),
        { { 80, 175 }, { 320, 175 }, { 300, 160 }, { 100, 160 } }, 0.18);
}

TEST(DiagramCatalogue, FilmHasEightPairsOfHoles)
{
    for (int i = 0; i < 8; ++i) {
        const double x = 238 + 16 * i;
        expectBox(shape<Box>(DiagramKind::Film35, 2 + 2 * i), { x, 103, 8, 6, 1, 0.4 });
        expectBox(shape<Box>(DiagramKind::Film35, 3 + 2 * i), { x, 161, 8, 6, 1, 0.4 });
    }
}

TEST(DiagramCatalogue, TraysStandInTheOrderOfTheirBaths)
{
    for (int i = 0; i < 3; ++i) {
        const double x = 40 + 120 * i;
        expectPoly(shape<Line>(DiagramKind::Trays, i),
            { { x, 140 }, { x + 100, 140 }, { x + 90, 190 }, { x + 10, 190 } }, 0.1);
        expectCallout(DiagramKind::Trays, i, { x + 50, 100 }, { x + 50, 140 });
    }
}

TEST(DiagramCatalogue, FilmHolderHasFourFrames)
{
    for (int i = 0; i < 4; ++i) {
        expectBox(
            shape<Box>(DiagramKind::FilmHolder, 1 + i), { 92.0 + 58 * i, 108, 50, 44, 2, 0.25 });
    }
}

TEST(DiagramCatalogue, HotShoeHasFourContactsBetweenItsRails)
{
    expectLine(shape<Line>(DiagramKind::HotShoe, 1),
        { { 130, 120 }, { 130, 104 }, { 270, 104 }, { 270, 120 } }, 3);
    for (int i = 0; i < 4; ++i)
        expectCircle(shape<Circle>(DiagramKind::HotShoe, 2 + i), { 170.0 + 20 * i, 135, 4, 0.5 });
}

TEST(DiagramCatalogue, SensorHasItsPhotositesColumnByColumn)
{
    expectBox(shape<Box>(DiagramKind::Sensor, 0), { 110, 50, 180, 140, 8, 0.1 });
    constexpr double kFills[] = { 0.35, 0.2, 0.1 };
    for (int c = 0; c < 9; ++c) {
        for (int r = 0; r < 7; ++r) {
            expectBox(shape<Box>(DiagramKind::Sensor, 1 + 7 * c + r),
                { 122.0 + 18 * c, 62.0 + 17 * r, 12, 11, 2, kFills[(c + r) % 3] });
        }
    }
}
