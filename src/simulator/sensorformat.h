// Sensor and film sizes.
#pragma once

#include <QString>
#include <QStringView>

#include <span>

/// A sensor or film size. Looked up by `id`; equal when every field is equal.
struct SensorFormat {
    QString id;
    QString name;
    double width = 36;  ///< mm
    double height = 24; ///< mm

    [[nodiscard]] static const SensorFormat &fullFrame();

    /// All formats in the order in which they are offered.
    [[nodiscard]] static std::span<const SensorFormat> all();

    /// The format with this id; an unknown id gives full frame.
    [[nodiscard]] static const SensorFormat &named(QStringView id);

    friend bool operator==(const SensorFormat &, const SensorFormat &) = default;
};
