// Named brightnesses of a scene.
#pragma once

#include <QString>
#include <QStringView>

#include <span>

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
