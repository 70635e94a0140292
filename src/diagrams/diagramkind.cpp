#include "diagrams/diagramkind.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    DiagramKind kind;
    QLatin1StringView rawValue;
};

constexpr auto kRows = std::to_array<Row>({
    { DiagramKind::Dslr, "dslr"_L1 },
    { DiagramKind::Mirrorless, "mirrorless"_L1 },
    { DiagramKind::MediumFormat, "medium-format"_L1 },
    { DiagramKind::Rangefinder, "rangefinder"_L1 },
    { DiagramKind::Tlr, "tlr"_L1 },
    { DiagramKind::ViewCamera, "view-camera"_L1 },
    { DiagramKind::Compact, "compact"_L1 },
    { DiagramKind::Instant, "instant"_L1 },
    { DiagramKind::Action, "action"_L1 },
    { DiagramKind::Phone, "phone"_L1 },
    { DiagramKind::Drone, "drone"_L1 },
    { DiagramKind::Prime, "prime"_L1 },
    { DiagramKind::Zoom, "zoom"_L1 },
    { DiagramKind::Telephoto, "telephoto"_L1 },
    { DiagramKind::Wide, "wide"_L1 },
    { DiagramKind::Macro, "macro"_L1 },
    { DiagramKind::Fisheye, "fisheye"_L1 },
    { DiagramKind::TiltShift, "tilt-shift"_L1 },
    { DiagramKind::Teleconverter, "teleconverter"_L1 },
    { DiagramKind::ExtensionTube, "extension-tube"_L1 },
    { DiagramKind::LensAdapter, "lens-adapter"_L1 },
    { DiagramKind::FilterRound, "filter-round"_L1 },
    { DiagramKind::FilterSquare, "filter-square"_L1 },
    { DiagramKind::Polarizer, "polarizer"_L1 },
    { DiagramKind::Hood, "hood"_L1 },
    { DiagramKind::LensCap, "lens-cap"_L1 },
    { DiagramKind::Tripod, "tripod"_L1 },
    { DiagramKind::Monopod, "monopod"_L1 },
    { DiagramKind::BallHead, "ball-head"_L1 },
    { DiagramKind::PanTilt, "pan-tilt"_L1 },
    { DiagramKind::GimbalHead, "gimbal-head"_L1 },
    { DiagramKind::LBracket, "l-bracket"_L1 },
    { DiagramKind::Clamp, "clamp"_L1 },
    { DiagramKind::Slider, "slider"_L1 },
    { DiagramKind::Speedlight, "speedlight"_L1 },
    { DiagramKind::Strobe, "strobe"_L1 },
    { DiagramKind::LedPanel, "led-panel"_L1 },
    { DiagramKind::Softbox, "softbox"_L1 },
    { DiagramKind::Umbrella, "umbrella"_L1 },
    { DiagramKind::Reflector, "reflector"_L1 },
    { DiagramKind::LightStand, "light-stand"_L1 },
    { DiagramKind::BeautyDish, "beauty-dish"_L1 },
    { DiagramKind::Trigger, "trigger"_L1 },
    { DiagramKind::LightMeter, "light-meter"_L1 },
    { DiagramKind::RingLight, "ring-light"_L1 },
    { DiagramKind::Backpack, "backpack"_L1 },
    { DiagramKind::ShoulderBag, "shoulder-bag"_L1 },
    { DiagramKind::Roller, "roller"_L1 },
    { DiagramKind::HardCase, "hard-case"_L1 },
    { DiagramKind::RainCover, "rain-cover"_L1 },
    { DiagramKind::Strap, "strap"_L1 },
    { DiagramKind::Harness, "harness"_L1 },
    { DiagramKind::BatteryGrip, "battery-grip"_L1 },
    { DiagramKind::Battery, "battery"_L1 },
    { DiagramKind::Charger, "charger"_L1 },
    { DiagramKind::MemoryCard, "memory-card"_L1 },
    { DiagramKind::CardReader, "card-reader"_L1 },
    { DiagramKind::Remote, "remote"_L1 },
    { DiagramKind::CableRelease, "cable-release"_L1 },
    { DiagramKind::MotorDrive, "motor-drive"_L1 },
    { DiagramKind::Blower, "blower"_L1 },
    { DiagramKind::CleaningKit, "cleaning-kit"_L1 },
    { DiagramKind::SensorSwab, "sensor-swab"_L1 },
    { DiagramKind::Loupe, "loupe"_L1 },
    { DiagramKind::GrayCard, "gray-card"_L1 },
    { DiagramKind::ColorChart, "color-chart"_L1 },
    { DiagramKind::Monitor, "monitor"_L1 },
    { DiagramKind::Calibrator, "calibrator"_L1 },
    { DiagramKind::Laptop, "laptop"_L1 },
    { DiagramKind::HardDrive, "hard-drive"_L1 },
    { DiagramKind::PenTablet, "pen-tablet"_L1 },
    { DiagramKind::TetherCable, "tether-cable"_L1 },
    { DiagramKind::Film35, "film-35"_L1 },
    { DiagramKind::Film120, "film-120"_L1 },
    { DiagramKind::SheetFilm, "sheet-film"_L1 },
    { DiagramKind::DevTank, "dev-tank"_L1 },
    { DiagramKind::Enlarger, "enlarger"_L1 },
    { DiagramKind::Trays, "trays"_L1 },
    { DiagramKind::Safelight, "safelight"_L1 },
    { DiagramKind::Scanner, "scanner"_L1 },
    { DiagramKind::FilmHolder, "film-holder"_L1 },
    { DiagramKind::Backdrop, "backdrop"_L1 },
    { DiagramKind::Viewfinder, "viewfinder"_L1 },
    { DiagramKind::HotShoe, "hot-shoe"_L1 },
    { DiagramKind::Sensor, "sensor"_L1 },
    { DiagramKind::Printer, "printer"_L1 },
});

constexpr auto kKinds = [] {
    std::array<DiagramKind, kRows.size()> kinds{};
    std::ranges::transform(kRows, kinds.begin(), &Row::kind);
    return kinds;
}();

// A row stands where its case stands: rawValue() looks no further.
static_assert([] {
    for (size_t i = 0; i < kKinds.size(); ++i) {
        if (kKinds[i] != DiagramKind(i))
            return false;
    }
    return kKinds.back() == DiagramKind::Printer;
}());

} // namespace

std::span<const DiagramKind> allDiagramKinds()
{
    return kKinds;
}

QLatin1StringView rawValue(DiagramKind kind)
{
    return kRows[size_t(kind)].rawValue;
}

std::optional<DiagramKind> diagramKindNamed(QStringView rawValue)
{
    const auto found
        = std::ranges::find_if(kRows, [=](const Row &row) { return row.rawValue == rawValue; });
    return found != kRows.end() ? std::optional(found->kind) : std::nullopt;
}
