// What a camera and its surroundings are set by: shutter times, sensor formats and levels of light.
#pragma once

#include <QString>
#include <QStringView>

#include <span>

/// A shutter time. Equal to another when the seconds are equal.
struct Shutter {
    double seconds = 0;

    /// As on a camera's display, where a double quote is the sign for seconds: 2", 2.5", 0.5",
    /// 1/125.
    /// @pre seconds is finite and positive.
    [[nodiscard]] QString label() const;

    friend bool operator==(const Shutter &, const Shutter &) = default;
};

/// A sensor or film size. Looked up by `id`; equal when every field is equal.
struct SensorFormat {
    QString id;
    QString name;
    double width = 36;  ///< mm
    double height = 24; ///< mm

    [[nodiscard]] double diagonal() const; ///< mm
    [[nodiscard]] double coc() const;      ///< circle of confusion, mm: diagonal / 1500

    /// How much narrower the view is than on full frame: 43.2666 / diagonal. The constant is the
    /// rounded diagonal of full frame, whose own factor is thus 0.99999965.
    [[nodiscard]] double crop() const;

    [[nodiscard]] static const SensorFormat &fullFrame();
    [[nodiscard]] static const SensorFormat &apsc();
    [[nodiscard]] static const SensorFormat &mft();
    [[nodiscard]] static const SensorFormat &oneInch();
    [[nodiscard]] static const SensorFormat &mf4433();
    [[nodiscard]] static const SensorFormat &film66();

    /// All formats in the order in which they are offered.
    [[nodiscard]] static std::span<const SensorFormat> all();

    /// The format with this id; an unknown id gives full frame.
    [[nodiscard]] static const SensorFormat &named(QStringView id);

    friend bool operator==(const SensorFormat &, const SensorFormat &) = default;
};

/// A named scene brightness. Looked up by `id`; equal when every field is equal.
struct LightLevel {
    QString id;
    QString name;
    double ev = 15; ///< EV at ISO 100

    /// All levels, brightest first.
    [[nodiscard]] static std::span<const LightLevel> all();

    /// The level with this id; an unknown id gives full sun.
    [[nodiscard]] static const LightLevel &named(QStringView id);

    friend bool operator==(const LightLevel &, const LightLevel &) = default;
};
