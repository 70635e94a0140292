#include "diagrams/diagramcatalogue.h"

#include <initializer_list>
#include <utility>

using namespace Qt::StringLiterals;

namespace Diagrams {
namespace {

// --- The words of the table --------------------------------------------------------------------

// Numbers that are neither places nor sizes carry what they are: 10_r is a corner's radius, 0.1_f a
// fill, 3_w the width of a stroke, 2_rings the number of a barrel's rings.
struct Corner {
    double radius;
};
struct Fill {
    double opacity;
};
struct Width {
    double width;
};
struct Rings {
    int count;
};

constexpr Corner operator""_r(unsigned long long radius)
{
    return { static_cast<double>(radius) };
}
constexpr Fill operator""_f(long double opacity)
{
    return { static_cast<double>(opacity) };
}
constexpr Fill operator""_f(unsigned long long opacity)
{
    return { static_cast<double>(opacity) };
}
constexpr Width operator""_w(long double width)
{
    return { static_cast<double>(width) };
}
constexpr Width operator""_w(unsigned long long width)
{
    return { static_cast<double>(width) };
}
constexpr Rings operator""_rings(unsigned long long count)
{
    return { static_cast<int>(count) };
}

enum BodyParts { hump = 1, grip = 2 };

constexpr BodyParts operator|(BodyParts a, BodyParts b)
{
    return static_cast<BodyParts>(static_cast<int>(a) | static_cast<int>(b));
}

using Points = std::vector<QPointF>;

Shape box(double x, double y, double w, double h, Corner corner, Fill fill)
{
    return Box{ x, y, w, h, corner.radius, fill.opacity };
}

Shape circle(double cx, double cy, double r, Fill fill)
{
    return Circle{ cx, cy, r, fill.opacity };
}

Shape ellipse(double cx, double cy, double rx, double ry, Fill fill)
{
    return Ellipse{ cx, cy, rx, ry, fill.opacity };
}

Shape line(Points points, Width width = { kStroke })
{
    return Line{ .points = std::move(points), .width = width.width };
}

Shape poly(Points points, Fill fill)
{
    return Line{ .points = std::move(points), .closed = true, .fill = fill.opacity };
}

Shape arc(double cx, double cy, double r, double start, double end)
{
    return Arc{ cx, cy, r, start, end };
}

Shape lensBarrel(double x, double y, double length, double radius, Rings rings)
{
    return LensBarrel{ x, y, length, radius, rings.count };
}

Shape cameraBody(double x, double y, double w, double h, BodyParts parts)
{
    return CameraBody{ x, y, w, h, (parts & hump) != 0, (parts & grip) != 0 };
}

Shape legs(double x, double y, double spread, double foot)
{
    return Legs{ x, y, spread, foot };
}

// --- Rows --------------------------------------------------------------------------------------

// What stands at one place of a row: a shape, or several that a rule repeats.
struct Group {
    std::vector<Shape> shapes;

    Group() = default;
    Group(Shape shape) // NOLINT(*-explicit-*): a row lists shapes and groups side by side
        : shapes{ std::move(shape) }
    { }
    Group(std::initializer_list<Shape> several)
        : shapes(several)
    { }

    void append(const Group &other)
    {
        shapes.insert(shapes.end(), other.shapes.begin(), other.shapes.end());
    }
};

// `make` of 0, 1 … count − 1.
template <typename Make>
Group repeated(int count, const Make &make)
{
    Group group;
    for (int i = 0; i < count; ++i)
        group.append(make(i));
    return group;
}

// `make` of each column and row, column by column.
template <typename Make>
Group grid(int columns, int rows, const Make &make)
{
    return repeated(
        columns, [&](int c) { return repeated(rows, [&](int r) { return Group(make(c, r)); }); });
}

Drawing row(DiagramKind kind, std::initializer_list<Group> parts, std::vector<Callout> callouts)
{
    Group all;
    for (const Group &part : parts)
        all.append(part);
    return { kind, std::move(all.shapes), std::move(callouts) };
}

// --- The table ---------------------------------------------------------------------------------

std::vector<Drawing> makeCatalogue()
{
    // A row is a kind, its shapes and its callouts: the text, where it stands, what it points at.
    // Formatted by hand, so that what belongs together stays together.
    // clang-format off
    return {
        // Camera bodies
        row(DiagramKind::Dslr,
          { cameraBody(110, 90, 180, 110, hump | grip), circle(200, 150, 34, 0.1_f),
            circle(200, 150, 22, 0.2_f) },
          { { u"Pentaprism / viewfinder"_s, { 330, 50 }, { 220, 70 } },
            { u"Lens mount"_s, { 330, 150 }, { 234, 150 } },
            { u"Grip"_s, { 60, 150 }, { 112, 150 } },
            { u"Mode dial"_s, { 330, 95 }, { 254, 86 } } }),
        row(DiagramKind::Mirrorless,
          { cameraBody(120, 95, 170, 100, hump | grip), circle(210, 148, 32, 0.1_f),
            circle(210, 148, 20, 0.2_f) },
          { { u"Electronic viewfinder"_s, { 330, 55 }, { 225, 75 } },
            { u"Short flange: no mirror"_s, { 330, 150 }, { 242, 148 } },
            { u"Grip"_s, { 70, 150 }, { 122, 150 } } }),
        row(DiagramKind::MediumFormat,
          { box(110, 70, 120, 130, 10_r, 0.1_f), box(230, 80, 60, 110, 8_r, 0.2_f),
            box(110, 40, 120, 30, 6_r, 0.1_f), lensBarrel(40, 135, 70, 34, 2_rings) },
          { { u"Film back / digital back"_s, { 320, 70 }, { 262, 100 } },
            { u"Waist-level finder"_s, { 300, 30 }, { 200, 48 } },
            { u"Lens with leaf shutter"_s, { 60, 225 }, { 75, 168 } } }),
        row(DiagramKind::Rangefinder,
          { box(90, 90, 230, 100, 14_r, 0.1_f), box(110, 104, 28, 18, 4_r, 0.3_f),
            box(270, 104, 28, 18, 4_r, 0.3_f), circle(205, 150, 30, 0.1_f),
            circle(205, 150, 18, 0.2_f) },
          { { u"Rangefinder window"_s, { 80, 60 }, { 124, 104 } },
            { u"Viewfinder window"_s, { 330, 60 }, { 284, 104 } },
            { u"Lens"_s, { 300, 220 }, { 230, 165 } } }),
        row(DiagramKind::Tlr,
          { box(140, 30, 120, 200, 10_r, 0.1_f), circle(200, 85, 30, 0.1_f),
            circle(200, 175, 30, 0.1_f), box(150, 10, 100, 20, 4_r, 0.1_f) },
          { { u"Viewing lens"_s, { 330, 85 }, { 230, 85 } },
            { u"Taking lens"_s, { 330, 175 }, { 230, 175 } },
            { u"Waist-level finder hood"_s, { 70, 20 }, { 152, 20 } } }),
        row(DiagramKind::ViewCamera,
          { box(60, 60, 30, 140, 4_r, 0.1_f), box(300, 50, 30, 160, 4_r, 0.1_f),
            line({ { 90, 80 }, { 300, 60 } }), line({ { 90, 180 }, { 300, 200 } }),
            line({ { 90, 80 }, { 110, 70 }, { 130, 85 }, { 150, 72 }, { 170, 88 },
                { 190, 75 }, { 210, 90 }, { 230, 78 }, { 250, 92 }, { 270, 80 },
                { 300, 60 } }),
            line({ { 40, 220 }, { 360, 220 } }, 3_w), circle(75, 130, 18, 0.1_f) },
          { { u"Lens standard"_s, { 60, 30 }, { 75, 60 } },
            { u"Bellows"_s, { 200, 30 }, { 190, 78 } },
            { u"Ground glass / film holder"_s, { 330, 240 }, { 315, 200 } },
            { u"Rail"_s, { 200, 240 }, { 200, 220 } } }),
        row(DiagramKind::Compact,
          { box(110, 80, 180, 110, 16_r, 0.1_f), circle(200, 140, 30, 0.1_f),
            circle(200, 140, 18, 0.2_f), box(130, 66, 30, 14, 4_r, 0.1_f) },
          { { u"Built-in zoom lens"_s, { 330, 160 }, { 228, 145 } },
            { u"Small 1-inch type sensor"_s, { 330, 110 }, { 270, 110 } },
            { u"Pop-up flash"_s, { 80, 50 }, { 145, 66 } } }),
        row(DiagramKind::Instant,
          { box(100, 70, 200, 140, 18_r, 0.1_f), circle(200, 130, 34, 0.1_f),
            box(130, 210, 140, 16, 4_r, 0.25_f), box(120, 84, 34, 22, 4_r, 0.1_f) },
          { { u"Print comes out here"_s, { 330, 230 }, { 268, 218 } },
            { u"Lens"_s, { 330, 120 }, { 232, 128 } },
            { u"Flash"_s, { 70, 60 }, { 130, 90 } } }),
        row(DiagramKind::Action,
          { box(140, 80, 120, 100, 18_r, 0.1_f), circle(225, 130, 26, 0.1_f),
            circle(225, 130, 14, 0.3_f), box(150, 92, 40, 22, 4_r, 0.1_f) },
          { { u"Ultra-wide lens"_s, { 330, 130 }, { 251, 130 } },
            { u"Front screen"_s, { 80, 70 }, { 150, 100 } },
            { u"Rugged waterproof body"_s, { 80, 210 }, { 160, 178 } } }),
        row(DiagramKind::Phone,
          { box(150, 20, 100, 220, 18_r, 0.1_f), box(165, 35, 40, 60, 10_r, 0.2_f),
            circle(178, 52, 9, 0.1_f), circle(178, 78, 9, 0.1_f), circle(195, 65, 6, 0.1_f) },
          { { u"Several small cameras (wide, ultra-wide, tele)"_s, { 330, 50 }, { 200, 60 } },
            { u"Computational processing"_s, { 330, 160 }, { 245, 160 } } }),
        row(DiagramKind::Drone,
          { box(165, 110, 70, 40, 10_r, 0.1_f), line({ { 200, 130 }, { 110, 80 } }, 3_w),
            ellipse(110, 80, 34, 7, 0.1_f), line({ { 200, 130 }, { 290, 80 } }, 3_w),
            ellipse(290, 80, 34, 7, 0.1_f), line({ { 200, 130 }, { 110, 180 } }, 3_w),
            ellipse(110, 180, 34, 7, 0.1_f), line({ { 200, 130 }, { 290, 180 } }, 3_w),
            ellipse(290, 180, 34, 7, 0.1_f), circle(200, 162, 12, 0.1_f) },
          { { u"Gimbal camera"_s, { 330, 220 }, { 210, 168 } },
            { u"Propellers"_s, { 60, 40 }, { 100, 78 } } }),

        // Lenses and lens accessories
        row(DiagramKind::Prime,
          { lensBarrel(120, 130, 150, 50, 1_rings), box(100, 92, 20, 76, 4_r, 0.2_f) },
          { { u"One focal length (e.g. 50 mm)"_s, { 200, 40 }, { 195, 82 } },
            { u"Mount"_s, { 70, 210 }, { 108, 160 } },
            { u"Focus ring"_s, { 300, 210 }, { 195, 175 } } }),
        row(DiagramKind::Zoom,
          { lensBarrel(90, 130, 200, 50, 2_rings), box(70, 92, 20, 76, 4_r, 0.2_f) },
          { { u"Zoom ring"_s, { 160, 40 }, { 157, 80 } },
            { u"Focus ring"_s, { 260, 40 }, { 223, 80 } },
            { u"Range e.g. 24–70 mm"_s, { 200, 215 }, { 200, 180 } } }),
        row(DiagramKind::Telephoto,
          { lensBarrel(40, 120, 300, 44, 2_rings), box(150, 164, 30, 40, 4_r, 0.1_f),
            box(130, 204, 70, 10, 3_r, 0.25_f) },
          { { u"Tripod collar & foot"_s, { 90, 240 }, { 150, 210 } },
            { u"Large front element"_s, { 360, 60 }, { 345, 100 } },
            { u"e.g. 400–600 mm"_s, { 200, 40 }, { 200, 76 } } }),
        row(DiagramKind::Wide,
          { box(130, 90, 120, 80, 6_r, 0.1_f), ellipse(260, 130, 20, 60, 0.2_f),
            arc(262, 130, 60, -70, 70) },
          { { u"Bulging front element"_s, { 330, 60 }, { 268, 90 } },
            { u"Very wide angle of view"_s, { 300, 225 }, { 300, 180 } } }),
        row(DiagramKind::Macro,
          { lensBarrel(110, 130, 160, 44, 1_rings), circle(350, 130, 10, 0.1_f),
            line({ { 286, 130 }, { 340, 130 } }) },
          { { u"1:1 life-size at close focus"_s, { 200, 40 }, { 200, 86 } },
            { u"Tiny subject very close"_s, { 340, 200 }, { 350, 140 } } }),
        row(DiagramKind::Fisheye,
          { box(150, 100, 90, 60, 6_r, 0.1_f), circle(262, 130, 42, 0.15_f),
            arc(262, 130, 30, -60, 60) },
          { { u"Hemispherical front element"_s, { 330, 60 }, { 290, 100 } },
            { u"~180° view, curved lines"_s, { 200, 220 }, { 230, 160 } } }),
        row(DiagramKind::TiltShift,
          { box(90, 95, 80, 70, 6_r, 0.1_f), box(170, 85, 30, 90, 4_r, 0.25_f),
            poly({ { 200, 85 }, { 290, 70 }, { 300, 190 }, { 200, 175 } }, 0.1_f) },
          { { u"Tilt / shift mechanism"_s, { 185, 40 }, { 185, 85 } },
            { u"Front tilts and slides"_s, { 330, 220 }, { 290, 170 } } }),
        row(DiagramKind::Teleconverter,
          { box(170, 100, 60, 60, 6_r, 0.1_f), lensBarrel(230, 130, 120, 40, 2_rings),
            box(40, 90, 130, 80, 10_r, 0.1_f) },
          { { u"Camera"_s, { 100, 60 }, { 100, 90 } },
            { u"1.4× / 2× converter"_s, { 200, 210 }, { 200, 160 } },
            { u"Long lens"_s, { 300, 60 }, { 290, 92 } } }),
        row(DiagramKind::ExtensionTube,
          { box(40, 90, 120, 80, 10_r, 0.1_f), box(160, 100, 40, 60, 4_r, 0.1_f),
            box(200, 100, 40, 60, 4_r, 0.1_f), lensBarrel(240, 130, 80, 30, 2_rings) },
          { { u"Hollow tubes (no glass)"_s, { 200, 210 }, { 200, 160 } },
            { u"Lens focuses closer"_s, { 300, 60 }, { 285, 100 } } }),
        row(DiagramKind::LensAdapter,
          { box(160, 95, 80, 70, 6_r, 0.1_f), line({ { 160, 110 }, { 130, 110 } }),
            line({ { 240, 110 }, { 270, 110 } }) },
          { { u"Mount A (lens side)"_s, { 300, 60 }, { 240, 110 } },
            { u"Mount B (camera side)"_s, { 90, 210 }, { 160, 150 } } }),
        row(DiagramKind::FilterRound,
          { circle(200, 130, 80, 0.1_f), circle(200, 130, 66, 0.15_f) },
          { { u"Threaded ring (e.g. 77 mm)"_s, { 330, 40 }, { 255, 72 } },
            { u"Glass"_s, { 330, 200 }, { 240, 160 } } }),
        row(DiagramKind::FilterSquare,
          { box(130, 40, 140, 180, 4_r, 0.06_f), box(130, 40, 140, 80, 4_r, 0.35_f),
            box(110, 30, 180, 20, 4_r, 0.1_f) },
          { { u"Dark top half (graduated ND)"_s, { 330, 70 }, { 270, 80 } },
            { u"Clear bottom"_s, { 330, 180 }, { 270, 180 } },
            { u"Holder"_s, { 60, 20 }, { 112, 38 } } }),
        row(DiagramKind::Polarizer,
          { circle(200, 130, 80, 0.1_f), circle(200, 130, 66, 0.2_f),
            repeated(8, [](double i) {
                return line({ { 150 + 14 * i, 75 }, { 150 + 14 * i, 185 } }, 0.8_w);
            }) },
          { { u"Rotating front ring"_s, { 330, 40 }, { 258, 74 } },
            { u"Cuts glare & reflections"_s, { 330, 210 }, { 250, 170 } } }),
        row(DiagramKind::Hood,
          { lensBarrel(60, 130, 160, 42, 2_rings),
            poly({ { 226, 88 }, { 330, 60 }, { 330, 200 }, { 226, 172 } }, 0.08_f) },
          { { u"Petal / tube hood blocks stray light"_s, { 200, 30 }, { 290, 70 } } }),
        row(DiagramKind::LensCap,
          { circle(200, 130, 80, 0.1_f), circle(200, 130, 30, 0.2_f),
            box(110, 120, 20, 20, 4_r, 0.1_f), box(270, 120, 20, 20, 4_r, 0.1_f) },
          { { u"Pinch clips"_s, { 330, 60 }, { 285, 122 } },
            { u"Protects the front glass"_s, { 200, 240 }, { 200, 205 } } }),

        // Supports
        row(DiagramKind::Tripod,
          { box(170, 30, 60, 26, 6_r, 0.1_f), circle(200, 70, 12, 0.1_f),
            box(194, 76, 12, 40, 3_r, 0.2_f), legs(200, 112, 120, 240),
            box(102, 165, 16, 10, 2_r, 0.3_f), box(282, 165, 16, 10, 2_r, 0.3_f) },
          { { u"Head (camera plate)"_s, { 330, 34 }, { 230, 42 } },
            { u"Center column"_s, { 70, 90 }, { 194, 96 } },
            { u"Leg locks"_s, { 330, 170 }, { 298, 170 } },
            { u"Feet / spikes"_s, { 70, 238 }, { 82, 238 } } }),
        row(DiagramKind::Monopod,
          { box(185, 20, 30, 20, 4_r, 0.1_f), line({ { 200, 40 }, { 200, 230 } }, 4_w),
            box(192, 100, 16, 10, 2_r, 0.3_f), box(192, 160, 16, 10, 2_r, 0.3_f),
            line({ { 200, 230 }, { 185, 245 } }, 2_w), line({ { 200, 230 }, { 215, 245 } }, 2_w) },
          { { u"One leg: support that moves with you"_s, { 320, 120 }, { 205, 120 } },
            { u"Optional small feet"_s, { 320, 240 }, { 214, 242 } } }),
        row(DiagramKind::BallHead,
          { box(160, 40, 80, 18, 4_r, 0.1_f), circle(200, 85, 26, 0.1_f),
            box(180, 108, 40, 40, 6_r, 0.1_f), box(150, 148, 100, 16, 4_r, 0.1_f),
            box(220, 115, 34, 10, 3_r, 0.3_f) },
          { { u"Quick-release plate"_s, { 330, 40 }, { 240, 48 } },
            { u"Ball moves in all directions"_s, { 330, 85 }, { 226, 85 } },
            { u"One locking knob"_s, { 330, 130 }, { 254, 120 } } }),
        row(DiagramKind::PanTilt,
          { box(160, 50, 80, 18, 4_r, 0.1_f), box(175, 68, 50, 60, 6_r, 0.1_f),
            line({ { 225, 90 }, { 330, 70 } }, 4_w), line({ { 175, 110 }, { 80, 160 } }, 4_w),
            box(150, 128, 100, 16, 4_r, 0.1_f) },
          { { u"Separate handles for pan and tilt"_s, { 200, 230 }, { 200, 140 } } }),
        row(DiagramKind::GimbalHead,
          { line({ { 150, 220 }, { 150, 60 }, { 260, 60 }, { 260, 120 } }, 5_w),
            circle(260, 130, 14, 0.1_f), lensBarrel(200, 150, 150, 28, 2_rings) },
          { { u"Lens balances on its center of gravity"_s, { 200, 30 }, { 260, 60 } },
            { u"Swing arm"_s, { 70, 140 }, { 150, 140 } } }),
        row(DiagramKind::LBracket,
          { poly({ { 120, 60 }, { 120, 200 }, { 300, 200 }, { 300, 180 }, { 140, 180 },
                { 140, 60 } }, 0.15_f) },
          { { u"Side plate: quick switch to vertical"_s, { 330, 80 }, { 140, 100 } },
            { u"Base plate (Arca-type)"_s, { 330, 220 }, { 260, 200 } } }),
        row(DiagramKind::Clamp,
          { line({ { 120, 80 }, { 240, 80 }, { 240, 180 }, { 120, 180 } }, 5_w),
            box(110, 120, 30, 20, 4_r, 0.1_f), line({ { 80, 130 }, { 110, 130 } }, 3_w),
            circle(260, 130, 14, 0.1_f) },
          { { u"Screw jaw"_s, { 60, 100 }, { 100, 130 } },
            { u"Ball / spigot for camera or light"_s, { 300, 220 }, { 260, 140 } } }),
        row(DiagramKind::Slider,
          { line({ { 40, 140 }, { 360, 140 } }, 5_w), line({ { 40, 160 }, { 360, 160 } }, 5_w),
            box(170, 120, 60, 50, 6_r, 0.1_f), box(30, 130, 14, 40, 3_r, 0.1_f),
            box(356, 130, 14, 40, 3_r, 0.1_f) },
          { { u"Carriage glides along rails"_s, { 200, 60 }, { 200, 120 } },
            { u"Mount on tripods or stands"_s, { 200, 230 }, { 60, 170 } } }),

        // Lighting
        row(DiagramKind::Speedlight,
          { box(150, 30, 100, 60, 8_r, 0.1_f), box(170, 90, 60, 100, 8_r, 0.1_f),
            box(180, 190, 40, 30, 4_r, 0.1_f), box(160, 220, 80, 12, 3_r, 0.1_f) },
          { { u"Tilting / swivelling flash head"_s, { 330, 50 }, { 250, 60 } },
            { u"Batteries & controls"_s, { 330, 140 }, { 230, 140 } },
            { u"Hot-shoe foot"_s, { 330, 225 }, { 240, 225 } } }),
        row(DiagramKind::Strobe,
          { box(90, 80, 170, 100, 14_r, 0.1_f), circle(290, 130, 40, 0.1_f),
            circle(290, 130, 20, 0.3_f), box(140, 180, 30, 50, 4_r, 0.1_f) },
          { { u"Flash tube & modeling lamp"_s, { 330, 60 }, { 300, 100 } },
            { u"Power & controls"_s, { 70, 50 }, { 140, 82 } },
            { u"Stand mount"_s, { 70, 220 }, { 140, 210 } } }),
        row(DiagramKind::LedPanel,
          { box(110, 50, 180, 140, 8_r, 0.1_f),
            grid(6, 4, [](int c, int r) { return circle(135 + 26 * c, 75 + 30 * r, 7, 0.3_f); }),
            line({ { 200, 190 }, { 200, 240 } }, 4_w) },
          { { u"Continuous light: see it as you shoot"_s, { 200, 24 }, { 200, 50 } } }),
        row(DiagramKind::Softbox,
          { poly({ { 110, 130 }, { 250, 40 }, { 250, 220 } }, 0.08_f),
            box(80, 115, 30, 30, 4_r, 0.1_f), line({ { 250, 40 }, { 250, 220 } }, 3_w) },
          { { u"Diffuser front"_s, { 330, 130 }, { 252, 130 } },
            { u"Light inside"_s, { 60, 90 }, { 92, 118 } } }),
        row(DiagramKind::Umbrella,
          { arc(200, 160, 120, 200, 340), line({ { 80, 160 }, { 320, 160 } }),
            line({ { 200, 40 }, { 200, 240 } }, 3_w), box(185, 170, 30, 20, 4_r, 0.1_f) },
          { { u"Shoot-through or reflective fabric"_s, { 200, 20 }, { 200, 42 } },
            { u"Flash aimed at the umbrella"_s, { 330, 200 }, { 214, 180 } } }),
        row(DiagramKind::Reflector,
          { circle(200, 130, 95, 0.06_f), circle(200, 130, 75, 0.15_f) },
          { { u"Bounces light back (white, silver, gold)"_s, { 200, 20 }, { 200, 36 } },
            { u"Folds small"_s, { 330, 220 }, { 262, 190 } } }),
        row(DiagramKind::LightStand,
          { line({ { 200, 30 }, { 200, 200 } }, 4_w), legs(200, 200, 80, 245),
            box(190, 20, 20, 14, 3_r, 0.1_f) },
          { { u"Spigot for lights"_s, { 300, 26 }, { 210, 26 } },
            { u"Telescoping column"_s, { 300, 120 }, { 202, 120 } } }),
        row(DiagramKind::BeautyDish,
          { ellipse(200, 130, 120, 70, 0.08_f), circle(200, 130, 22, 0.3_f) },
          { { u"Center deflector"_s, { 330, 60 }, { 215, 115 } },
            { u"Crisp, punchy portrait light"_s, { 200, 230 }, { 200, 200 } } }),
        row(DiagramKind::Trigger,
          { box(150, 60, 100, 70, 10_r, 0.1_f), box(170, 130, 60, 40, 4_r, 0.1_f),
            box(160, 170, 80, 12, 3_r, 0.1_f), line({ { 240, 60 }, { 260, 20 } }, 2_w) },
          { { u"Radio transmitter on the hot shoe"_s, { 330, 100 }, { 250, 100 } },
            { u"Fires flashes off the camera"_s, { 330, 200 }, { 232, 176 } } }),
        row(DiagramKind::LightMeter,
          { box(150, 30, 100, 200, 16_r, 0.1_f), box(165, 60, 70, 50, 6_r, 0.25_f),
            circle(200, 30, 22, 0.2_f), box(175, 140, 50, 20, 6_r, 0.1_f) },
          { { u"White dome reads light falling on the subject"_s, { 330, 20 }, { 220, 24 } },
            { u"Reading: f/5.6 at 1/125"_s, { 330, 90 }, { 235, 85 } } }),
        row(DiagramKind::RingLight,
          { circle(200, 130, 90, 0.04_f), circle(200, 130, 64, 0_f),
            box(190, 120, 20, 20, 4_r, 0.1_f) },
          { { u"Even, shadowless front light"_s, { 200, 20 }, { 200, 40 } },
            { u"Camera or phone in the middle"_s, { 330, 220 }, { 206, 140 } } }),

        // Carrying
        row(DiagramKind::Backpack,
          { box(130, 30, 140, 200, 30_r, 0.1_f), box(150, 120, 100, 80, 14_r, 0.1_f),
            line({ { 170, 30 }, { 170, 15 }, { 230, 15 }, { 230, 30 } }) },
          { { u"Padded dividers inside"_s, { 330, 140 }, { 250, 150 } },
            { u"Carry handle"_s, { 330, 20 }, { 230, 18 } } }),
        row(DiagramKind::ShoulderBag,
          { box(100, 90, 200, 120, 18_r, 0.1_f),
            line({ { 110, 95 }, { 200, 20 }, { 290, 95 } }, 3_w),
            box(130, 110, 140, 40, 8_r, 0.1_f) },
          { { u"Quick side access"_s, { 330, 200 }, { 290, 180 } },
            { u"Shoulder strap"_s, { 330, 40 }, { 250, 60 } } }),
        row(DiagramKind::Roller,
          { box(130, 40, 140, 180, 14_r, 0.1_f),
            line({ { 170, 40 }, { 170, 10 }, { 230, 10 }, { 230, 40 } }, 3_w),
            circle(150, 228, 12, 0.1_f), circle(250, 228, 12, 0.1_f) },
          { { u"Telescoping handle"_s, { 330, 20 }, { 230, 18 } },
            { u"Wheels for airports"_s, { 330, 230 }, { 262, 228 } } }),
        row(DiagramKind::HardCase,
          { box(80, 60, 240, 160, 12_r, 0.1_f), box(170, 40, 60, 20, 6_r, 0.1_f),
            box(100, 130, 30, 20, 4_r, 0.1_f), box(270, 130, 30, 20, 4_r, 0.1_f) },
          { { u"Waterproof latches"_s, { 60, 230 }, { 110, 150 } },
            { u"Foam cut to your gear"_s, { 330, 220 }, { 290, 200 } } }),
        row(DiagramKind::RainCover,
          { poly({ { 60, 140 }, { 120, 60 }, { 330, 70 }, { 340, 200 }, { 90, 210 } }, 0.06_f),
            lensBarrel(170, 135, 140, 30, 2_rings) },
          { { u"Clear window to see controls"_s, { 60, 30 }, { 120, 64 } },
            { u"Lens sleeve"_s, { 330, 230 }, { 290, 165 } } }),
        row(DiagramKind::Strap,
          { line({ { 60, 200 }, { 140, 60 }, { 260, 60 }, { 340, 200 } }, 6_w),
            box(50, 195, 20, 20, 4_r, 0.1_f), box(330, 195, 20, 20, 4_r, 0.1_f) },
          { { u"Padded neck / shoulder section"_s, { 200, 30 }, { 200, 60 } },
            { u"Anchor clips"_s, { 200, 230 }, { 60, 205 } } }),
        row(DiagramKind::Harness,
          { line({ { 140, 30 }, { 140, 220 } }, 6_w), line({ { 260, 30 }, { 260, 220 } }, 6_w),
            line({ { 140, 150 }, { 260, 150 } }, 6_w), circle(140, 180, 14, 0.1_f),
            circle(260, 180, 14, 0.1_f) },
          { { u"Two cameras at the hips"_s, { 200, 240 }, { 140, 194 } },
            { u"Shoulder straps"_s, { 330, 60 }, { 262, 60 } } }),

        // Power, cards and release
        row(DiagramKind::BatteryGrip,
          { cameraBody(120, 50, 170, 90, grip), box(120, 140, 170, 70, 12_r, 0.2_f),
            box(130, 150, 30, 50, 8_r, 0.3_f) },
          { { u"Second shutter button for vertical shots"_s, { 330, 230 }, { 150, 200 } },
            { u"Holds extra batteries"_s, { 330, 170 }, { 290, 170 } } }),
        row(DiagramKind::Battery,
          { box(120, 70, 160, 110, 10_r, 0.1_f), box(140, 60, 30, 10, 2_r, 0.1_f),
            box(230, 60, 30, 10, 2_r, 0.1_f) },
          { { u"Lithium-ion pack"_s, { 200, 230 }, { 200, 180 } },
            { u"Contacts"_s, { 330, 40 }, { 250, 62 } } }),
        row(DiagramKind::Charger,
          { box(100, 90, 200, 90, 12_r, 0.1_f), box(140, 70, 120, 30, 6_r, 0.2_f),
            circle(270, 135, 6, 0.6_f), line({ { 100, 135 }, { 40, 200 } }, 3_w) },
          { { u"Charge light"_s, { 330, 120 }, { 272, 135 } },
            { u"Battery slot"_s, { 200, 40 }, { 200, 72 } } }),
        row(DiagramKind::MemoryCard,
          { poly({ { 140, 40 }, { 240, 40 }, { 270, 70 }, { 270, 220 }, { 140, 220 } }, 0.12_f),
            repeated(5, [](int i) { return box(152 + 20 * i, 190, 12, 22, 2_r, 0.3_f); }) },
          { { u"Speed class & capacity printed here"_s, { 330, 100 }, { 260, 110 } },
            { u"Contacts"_s, { 330, 220 }, { 230, 200 } } }),
        row(DiagramKind::CardReader,
          { box(120, 100, 160, 70, 10_r, 0.1_f), box(140, 90, 60, 14, 2_r, 0.3_f),
            line({ { 280, 135 }, { 350, 170 } }, 3_w) },
          { { u"Card slot"_s, { 200, 50 }, { 170, 92 } },
            { u"USB-C to the computer"_s, { 330, 210 }, { 340, 166 } } }),
        row(DiagramKind::Remote,
          { box(160, 50, 80, 160, 18_r, 0.1_f), circle(200, 100, 22, 0.2_f),
            box(180, 150, 40, 14, 6_r, 0.1_f) },
          { { u"Fires without touching the camera"_s, { 330, 100 }, { 222, 100 } },
            { u"Wireless or app"_s, { 330, 200 }, { 230, 160 } } }),
        row(DiagramKind::CableRelease,
          { box(170, 40, 60, 110, 14_r, 0.1_f), circle(200, 70, 12, 0.2_f),
            line({ { 200, 150 }, { 200, 190 }, { 300, 200 }, { 330, 230 } }, 3_w),
            box(320, 220, 30, 18, 4_r, 0.1_f) },
          { { u"Lockable button for bulb exposures"_s, { 60, 60 }, { 188, 70 } },
            { u"Plugs into the camera"_s, { 300, 250 }, { 330, 236 } } }),
        row(DiagramKind::MotorDrive,
          { cameraBody(110, 50, 180, 90, hump), box(110, 140, 180, 70, 10_r, 0.2_f),
            box(120, 150, 40, 50, 8_r, 0.3_f) },
          { { u"Film-era motor drive: winds film for you"_s, { 200, 240 }, { 200, 210 } },
            { u"Battery handle"_s, { 60, 180 }, { 120, 175 } } }),

        // Cleaning and reference
        row(DiagramKind::Blower,
          { ellipse(170, 150, 70, 60, 0.1_f), line({ { 230, 120 }, { 330, 60 } }, 6_w) },
          { { u"Air puffs dust off without touching"_s, { 200, 240 }, { 170, 210 } },
            { u"Nozzle"_s, { 350, 40 }, { 330, 60 } } }),
        row(DiagramKind::CleaningKit,
          { box(80, 90, 90, 60, 8_r, 0.1_f), line({ { 200, 160 }, { 320, 60 } }, 4_w),
            box(310, 40, 30, 30, 4_r, 0.1_f), box(200, 180, 60, 40, 4_r, 0.1_f) },
          { { u"Microfiber cloth"_s, { 60, 200 }, { 120, 150 } },
            { u"Lens pen / brush"_s, { 340, 110 }, { 300, 75 } },
            { u"Lens fluid"_s, { 300, 220 }, { 260, 200 } } }),
        row(DiagramKind::SensorSwab,
          { line({ { 200, 230 }, { 200, 60 } }, 5_w),
            poly({ { 170, 60 }, { 230, 60 }, { 220, 30 }, { 180, 30 } }, 0.2_f) },
          { { u"Wet swab, sized to the sensor width"_s, { 330, 40 }, { 225, 45 } },
            { u"Use only as the maker directs"_s, { 200, 250 }, { 200, 230 } } }),
        row(DiagramKind::Loupe,
          { poly({ { 150, 200 }, { 170, 70 }, { 230, 70 }, { 250, 200 } }, 0.1_f),
            ellipse(200, 70, 30, 8, 0.25_f) },
          { { u"Magnifier for negatives or screens"_s, { 330, 60 }, { 230, 70 } },
            { u"Sits flat on the light box"_s, { 330, 210 }, { 250, 200 } } }),
        row(DiagramKind::GrayCard,
          { box(130, 40, 140, 180, 6_r, 0.35_f) },
          { { u"18% gray: a known middle tone"_s, { 330, 60 }, { 270, 80 } },
            { u"Use for exposure & white balance"_s, { 330, 200 }, { 270, 200 } } }),
        row(DiagramKind::ColorChart,
          { box(110, 60, 180, 130, 6_r, 0.1_f),
            grid(6, 4, [](int c, int r) {
                const Fill gray{ 0.08 * (1 + (c + r) % 4) };
                return box(120 + 28 * c, 70 + 28 * r, 24, 24, 3_r, gray);
            }) },
          { { u"Known color patches for accurate color"_s, { 200, 230 }, { 200, 190 } } }),

        // Computer and printing
        row(DiagramKind::Monitor,
          { box(80, 30, 240, 150, 8_r, 0.1_f), line({ { 200, 180 }, { 200, 215 } }, 4_w),
            box(150, 215, 100, 10, 3_r, 0.1_f), box(70, 20, 260, 14, 3_r, 0.2_f) },
          { { u"Wide-gamut, calibrated screen"_s, { 200, 245 }, { 200, 182 } },
            { u"Shading hood"_s, { 340, 14 }, { 300, 24 } } }),
        row(DiagramKind::Calibrator,
          { box(80, 30, 240, 150, 8_r, 0.1_f), circle(200, 100, 26, 0.3_f),
            line({ { 200, 74 }, { 200, 10 } }, 2_w) },
          { { u"Puck measures the screen's colors"_s, { 330, 120 }, { 226, 100 } } }),
        row(DiagramKind::Laptop,
          { poly({ { 110, 40 }, { 290, 40 }, { 290, 160 }, { 110, 160 } }, 0.1_f),
            poly({ { 80, 175 }, { 320, 175 }, { 300, 160 }, { 100, 160 } }, 0.18_f) },
          { { u"Editing and tethered shooting"_s, { 200, 220 }, { 200, 176 } } }),
        row(DiagramKind::HardDrive,
          { box(140, 50, 120, 170, 12_r, 0.1_f), circle(200, 120, 30, 0.1_f),
            circle(200, 120, 6, 0.5_f), box(230, 200, 20, 8, 2_r, 0.5_f) },
          { { u"Backups: keep 3 copies"_s, { 330, 80 }, { 260, 90 } },
            { u"SSD or hard disk"_s, { 330, 200 }, { 258, 200 } } }),
        row(DiagramKind::PenTablet,
          { box(80, 70, 240, 150, 12_r, 0.1_f), box(110, 90, 180, 110, 6_r, 0.05_f),
            line({ { 280, 40 }, { 200, 150 } }, 4_w) },
          { { u"Pressure-sensitive pen for retouching"_s, { 200, 30 }, { 270, 52 } } }),
        row(DiagramKind::TetherCable,
          { box(40, 90, 110, 70, 10_r, 0.1_f),
            line({ { 150, 125 }, { 230, 125 }, { 250, 180 }, { 300, 180 } }, 3_w),
            poly({ { 300, 165 }, { 380, 165 }, { 370, 210 }, { 300, 210 } }, 0.1_f) },
          { { u"Camera"_s, { 95, 60 }, { 95, 90 } },
            { u"Long USB-C cable"_s, { 200, 100 }, { 190, 125 } },
            { u"Laptop shows each shot big"_s, { 330, 240 }, { 340, 210 } } }),

        // Film and darkroom
        row(DiagramKind::Film35,
          { box(120, 80, 110, 110, 18_r, 0.1_f), box(230, 100, 140, 70, 2_r, 0.15_f),
            repeated(8, [](int i) {
                return Group{ box(238 + 16 * i, 103, 8, 6, 1_r, 0.4_f),
                    box(238 + 16 * i, 161, 8, 6, 1_r, 0.4_f) };
            }),
            box(165, 66, 20, 14, 3_r, 0.1_f) },
          { { u"Light-tight cassette"_s, { 70, 40 }, { 140, 85 } },
            { u"Sprocket holes"_s, { 330, 60 }, { 300, 104 } },
            { u"24 × 36 mm frames"_s, { 330, 215 }, { 300, 168 } } }),
        row(DiagramKind::Film120,
          { box(110, 60, 30, 140, 6_r, 0.1_f), box(140, 90, 210, 80, 2_r, 0.12_f),
            circle(125, 130, 8, 0.3_f) },
          { { u"Spool with paper backing"_s, { 80, 230 }, { 125, 200 } },
            { u"Wide film: 6×4.5, 6×6, 6×7 cm frames"_s, { 250, 40 }, { 250, 90 } } }),
        row(DiagramKind::SheetFilm,
          { box(120, 40, 160, 200, 6_r, 0.1_f), box(140, 60, 120, 160, 2_r, 0.15_f),
            box(260, 40, 20, 200, 2_r, 0.3_f) },
          { { u"One sheet per picture (4×5 inch and up)"_s, { 200, 20 }, { 200, 40 } },
            { u"Dark slide"_s, { 340, 140 }, { 280, 140 } } }),
        row(DiagramKind::DevTank,
          { box(140, 60, 120, 170, 14_r, 0.1_f), box(130, 40, 140, 26, 8_r, 0.2_f),
            circle(200, 140, 34, 0.1_f), arc(200, 140, 22, 0, 300) },
          { { u"Light-tight lid"_s, { 330, 40 }, { 270, 50 } },
            { u"Reel holds the film in a spiral"_s, { 330, 160 }, { 234, 140 } } }),
        row(DiagramKind::Enlarger,
          { line({ { 120, 230 }, { 120, 20 } }, 4_w), box(150, 40, 110, 60, 8_r, 0.1_f),
            poly({ { 170, 100 }, { 240, 100 }, { 225, 140 }, { 185, 140 } }, 0.1_f),
            circle(205, 150, 12, 0.1_f), box(80, 220, 260, 16, 3_r, 0.2_f),
            line({ { 120, 70 }, { 150, 70 } }, 3_w) },
          { { u"Lamp head"_s, { 330, 60 }, { 260, 70 } },
            { u"Negative carrier & lens"_s, { 330, 140 }, { 220, 145 } },
            { u"Baseboard with paper"_s, { 330, 230 }, { 300, 228 } } }),
        row(DiagramKind::Trays,
          { poly({ { 40, 140 }, { 140, 140 }, { 130, 190 }, { 50, 190 } }, 0.1_f),
            poly({ { 160, 140 }, { 260, 140 }, { 250, 190 }, { 170, 190 } }, 0.1_f),
            poly({ { 280, 140 }, { 380, 140 }, { 370, 190 }, { 290, 190 } }, 0.1_f) },
          { { u"Developer"_s, { 90, 100 }, { 90, 140 } },
            { u"Stop bath"_s, { 210, 100 }, { 210, 140 } },
            { u"Fixer"_s, { 330, 100 }, { 330, 140 } } }),
        row(DiagramKind::Safelight,
          { box(140, 60, 120, 120, 14_r, 0.35_f), line({ { 200, 30 }, { 200, 60 } }, 3_w) },
          { { u"Dim red/amber light paper can't see"_s, { 200, 230 }, { 200, 180 } } }),
        row(DiagramKind::Scanner,
          { box(80, 90, 240, 110, 10_r, 0.1_f), box(100, 70, 200, 24, 6_r, 0.2_f),
            box(130, 120, 140, 50, 4_r, 0.05_f) },
          { { u"Light in the lid for film"_s, { 330, 50 }, { 280, 76 } },
            { u"Glass with film holder"_s, { 330, 220 }, { 270, 170 } } }),
        row(DiagramKind::FilmHolder,
          { box(80, 100, 240, 60, 6_r, 0.1_f),
            repeated(4, [](int i) { return box(92 + 58 * i, 108, 50, 44, 2_r, 0.25_f); }) },
          { { u"Holds a strip flat for scanning or copying"_s, { 200, 40 }, { 200, 100 } } }),

        // Studio and camera parts
        row(DiagramKind::Backdrop,
          { line({ { 60, 30 }, { 340, 30 } }, 5_w), line({ { 70, 30 }, { 70, 240 } }, 3_w),
            line({ { 330, 30 }, { 330, 240 } }, 3_w),
            poly({ { 90, 34 }, { 310, 34 }, { 310, 200 }, { 340, 240 }, { 60, 240 },
                { 90, 200 } }, 0.08_f) },
          { { u"Paper or cloth roll"_s, { 200, 120 }, { 200, 34 } },
            { u"Stands and crossbar"_s, { 200, 255 }, { 70, 230 } } }),
        row(DiagramKind::Viewfinder,
          { box(140, 80, 120, 100, 14_r, 0.1_f), circle(200, 130, 28, 0.25_f) },
          { { u"Eyecup and diopter dial"_s, { 330, 80 }, { 250, 100 } },
            { u"Shows the frame with settings"_s, { 200, 230 }, { 200, 158 } } }),
        row(DiagramKind::HotShoe,
          { box(120, 120, 160, 30, 4_r, 0.1_f),
            line({ { 130, 120 }, { 130, 104 }, { 270, 104 }, { 270, 120 } }, 3_w),
            repeated(4, [](int i) { return circle(170 + 20 * i, 135, 4, 0.5_f); }) },
          { { u"Contacts talk to the flash (TTL)"_s, { 200, 210 }, { 200, 140 } },
            { u"Rails hold the foot"_s, { 200, 60 }, { 200, 104 } } }),
        row(DiagramKind::Sensor,
          { box(110, 50, 180, 140, 8_r, 0.1_f),
            grid(9, 7, [](int c, int r) {
                constexpr Fill kFills[] = { 0.35_f, 0.2_f, 0.1_f };
                return box(122 + 18 * c, 62 + 17 * r, 12, 11, 2_r, kFills[(c + r) % 3]);
            }) },
          { { u"Millions of light-sensitive photosites"_s, { 200, 230 }, { 200, 190 } } }),
        row(DiagramKind::Printer,
          { box(70, 100, 260, 90, 14_r, 0.1_f),
            poly({ { 120, 100 }, { 140, 40 }, { 260, 40 }, { 280, 100 } }, 0.06_f),
            box(130, 190, 140, 40, 3_r, 0.04_f), circle(270, 122, 4, 0.5_f),
            circle(284, 122, 4, 0.5_f), circle(298, 122, 4, 0.5_f), circle(270, 136, 4, 0.5_f),
            circle(284, 136, 4, 0.5_f) },
          { { u"Paper feed"_s, { 60, 40 }, { 140, 50 } },
            { u"Pigment inks"_s, { 360, 150 }, { 300, 130 } },
            { u"Print comes out here"_s, { 200, 250 }, { 200, 230 } } }),
    };
    // clang-format on
}

} // namespace

std::span<const Drawing> catalogue()
{
    static const std::vector<Drawing> drawings = makeCatalogue();
    return drawings;
}

const Drawing &drawing(DiagramKind kind)
{
    const Drawing &found = catalogue()[size_t(kind)];
    Q_ASSERT(found.kind == kind);
    return found;
}

} // namespace Diagrams
