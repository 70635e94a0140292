// The sizes of the camera, which its parts, its painters and the screens on its display agree on.
#pragma once

#include <QObject>
#include <QSizeF>

/// Lengths in points, from the window inwards. A size that only one part needs stands in that part.
/// QML reads them by the same names from its singleton Geometry.
class Geometry : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QSizeF usualWindow MEMBER usualWindow CONSTANT)
    Q_PROPERTY(QSizeF minimumWindow MEMBER minimumWindow CONSTANT)
    Q_PROPERTY(QSizeF minimumLayout MEMBER minimumLayout CONSTANT)
    Q_PROPERTY(qreal bodyMargin MEMBER bodyMargin CONSTANT)
    Q_PROPERTY(qreal bodyRadius MEMBER bodyRadius CONSTANT)
    Q_PROPERTY(qreal bodySideInset MEMBER bodySideInset CONSTANT)
    Q_PROPERTY(qreal bodyTopInset MEMBER bodyTopInset CONSTANT)
    Q_PROPERTY(qreal rowGap MEMBER rowGap CONSTANT)
    Q_PROPERTY(qreal columnGap MEMBER columnGap CONSTANT)
    Q_PROPERTY(qreal plateHeight MEMBER plateHeight CONSTANT)
    Q_PROPERTY(qreal plateRadius MEMBER plateRadius CONSTANT)
    Q_PROPERTY(qreal railWidth MEMBER railWidth CONSTANT)
    Q_PROPERTY(qreal railRadius MEMBER railRadius CONSTANT)
    Q_PROPERTY(qreal strapWidth MEMBER strapWidth CONSTANT)
    Q_PROPERTY(qreal bezel MEMBER bezel CONSTANT)
    Q_PROPERTY(qreal bezelReach MEMBER bezelReach CONSTANT)
    Q_PROPERTY(qreal displayPadding MEMBER displayPadding CONSTANT)
    Q_PROPERTY(qreal displayRadius MEMBER displayRadius CONSTANT)
    Q_PROPERTY(qreal cardRadius MEMBER cardRadius CONSTANT)
    Q_PROPERTY(qreal buttonRadius MEMBER buttonRadius CONSTANT)
    Q_PROPERTY(qreal ringGlow MEMBER ringGlow CONSTANT)
public:
    /// Of the camera; a menu bar stands above it.
    static constexpr QSizeF usualWindow{ 1440, 920 };
    static constexpr QSizeF minimumWindow{ 900, 620 };
    /// Below this the camera isn't laid out smaller but scrolled.
    static constexpr QSizeF minimumLayout{ 1240, 800 };

    static constexpr qreal bodyMargin = 14;
    static constexpr qreal bodyRadius = 46;
    static constexpr qreal bodySideInset = 22;
    static constexpr qreal bodyTopInset = 18;
    static constexpr qreal leatherInset = 10;
    static constexpr qreal leatherRadius = 40;
    static constexpr qreal rowGap = 14;    ///< Between the top plate and what is below.
    static constexpr qreal columnGap = 12; ///< Between rail, display and strap.

    static constexpr qreal plateHeight = 78;
    static constexpr qreal plateRadius = 22;
    static constexpr qreal railWidth = 214;
    static constexpr qreal railRadius = 34;
    static constexpr qreal strapWidth = 26;

    static constexpr qreal bezel = 7;
    static constexpr qreal bezelRadius = 28;
    /// How far along an edge its continuous corner reaches: 1.6 radii.
    static constexpr qreal bezelReach = 45;
    static constexpr qreal glassRadius = 22;
    static constexpr qreal displayPadding = 10;
    /// The glass gives the display's corners their shape; what lies under it only has to end there.
    static constexpr qreal displayRadius = 14;

    static constexpr qreal cardRadius = 16;
    static constexpr qreal buttonRadius = 10;
    static constexpr qreal ringWidth = 12;
    static constexpr qreal ringGlow = 6;
};
