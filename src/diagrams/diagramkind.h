// The drawings of the gear encyclopedia by their ids. What each one shows is another file's
// business: whoever only checks an id needs no painting.
#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <optional>
#include <span>

// Formatted by hand: a family is a paragraph.
// clang-format off
/// All drawings, family by family, in the order in which catalogue and sheet go through them.
enum class DiagramKind {
    // Camera bodies
    Dslr, Mirrorless, MediumFormat, Rangefinder, Tlr, ViewCamera, Compact, Instant, Action,
    Phone, Drone,

    // Lenses and lens accessories
    Prime, Zoom, Telephoto, Wide, Macro, Fisheye, TiltShift, Teleconverter, ExtensionTube,
    LensAdapter, FilterRound, FilterSquare, Polarizer, Hood, LensCap,

    // Supports
    Tripod, Monopod, BallHead, PanTilt, GimbalHead, LBracket, Clamp, Slider,

    // Lighting
    Speedlight, Strobe, LedPanel, Softbox, Umbrella, Reflector, LightStand, BeautyDish, Trigger,
    LightMeter, RingLight,

    // Carrying
    Backpack, ShoulderBag, Roller, HardCase, RainCover, Strap, Harness,

    // Power, cards and release
    BatteryGrip, Battery, Charger, MemoryCard, CardReader, Remote, CableRelease, MotorDrive,

    // Cleaning and reference
    Blower, CleaningKit, SensorSwab, Loupe, GrayCard, ColorChart,

    // Computer and printing
    Monitor, Calibrator, Laptop, HardDrive, PenTablet, TetherCable,

    // Film and darkroom
    Film35, Film120, SheetFilm, DevTank, Enlarger, Trays, Safelight, Scanner, FilmHolder,

    // Studio and camera parts
    Backdrop, Viewfinder, HotShoe, Sensor, Printer,
};
// clang-format on

/// Every kind once, in the order of the enumeration.
[[nodiscard]] std::span<const DiagramKind> allDiagramKinds();

/// The id of a drawing, as course files write it.
[[nodiscard]] QLatin1StringView rawValue(DiagramKind kind);

/// The kind with exactly this id: case matters, and so does a blank at either end.
[[nodiscard]] std::optional<DiagramKind> diagramKindNamed(QStringView rawValue);
