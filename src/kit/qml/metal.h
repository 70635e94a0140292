#pragma once

#include "kit/gradients.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqml.h>

/// A surface and its edge, each from its top to its bottom.
struct Finish {
    Q_GADGET
    QML_VALUE_TYPE(finish)
    Q_PROPERTY(QColor top MEMBER top)
    Q_PROPERTY(QColor bottom MEMBER bottom)
    Q_PROPERTY(QColor edgeTop MEMBER edgeTop)
    Q_PROPERTY(QColor edgeBottom MEMBER edgeBottom)
public:
    QColor top = Qt::transparent;
    QColor bottom = Qt::transparent;
    QColor edgeTop = Qt::transparent;
    QColor edgeBottom = Qt::transparent;
};

/// What the camera and the kit are made of where no theme colors it: neutral grays, lit from above.
/// Colors come through the palette `c` or the kit's theme.
class Metal : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Finish chrome MEMBER chrome CONSTANT)
    Q_PROPERTY(Finish anodized MEMBER anodized CONSTANT)
    Q_PROPERTY(Finish badge MEMBER badge CONSTANT)
    Q_PROPERTY(Finish lug MEMBER lug CONSTANT)
    Q_PROPERTY(Finish shutter MEMBER shutter CONSTANT)
    Q_PROPERTY(Finish shutterUnderPointer MEMBER shutterUnderPointer CONSTANT)
    Q_PROPERTY(Finish key MEMBER key CONSTANT)
    Q_PROPERTY(Finish keyUnderPointer MEMBER keyUnderPointer CONSTANT)
    Q_PROPERTY(Finish panel MEMBER panel CONSTANT)
    Q_PROPERTY(Finish plate MEMBER plate CONSTANT)
    Q_PROPERTY(Finish cap MEMBER cap CONSTANT)
    Q_PROPERTY(Finish rail MEMBER rail CONSTANT)
    Q_PROPERTY(Finish well MEMBER well CONSTANT)
    Q_PROPERTY(QColor ground MEMBER ground CONSTANT)
    Q_PROPERTY(QColor buttonShadow MEMBER buttonShadow CONSTANT)
    Q_PROPERTY(QColor plateShadow MEMBER plateShadow CONSTANT)
    Q_PROPERTY(QColor keyShadow MEMBER keyShadow CONSTANT)
    Q_PROPERTY(QColor partShadow MEMBER partShadow CONSTANT)
    Q_PROPERTY(QColor bodyShadow MEMBER bodyShadow CONSTANT)
    Q_PROPERTY(QColor dialogShadow MEMBER dialogShadow CONSTANT)
    Q_PROPERTY(QColor veil MEMBER veil CONSTANT)
    Q_PROPERTY(QColor alarm MEMBER alarm CONSTANT)
    Q_PROPERTY(QColor print MEMBER print CONSTANT)
    Q_PROPERTY(QColor litCut MEMBER litCut CONSTANT)
    Q_PROPERTY(QColor darkCut MEMBER darkCut CONSTANT)
    Q_PROPERTY(QColor fieldFill MEMBER fieldFill CONSTANT)
public:
    using QObject::QObject;

    const Finish chrome{ .top = Painting::gray(0.42),
        .bottom = Painting::gray(0.16),
        .edgeTop = Painting::gray(1, 0.55),
        .edgeBottom = Painting::gray(0, 0.5) };
    const Finish anodized{ .top = Painting::gray(1, 0.14),
        .bottom = Painting::gray(1, 0.06),
        .edgeTop = Painting::gray(1, 0.35),
        .edgeBottom = Painting::gray(1, 0.12) };
    const Finish badge{ .top = Painting::gray(0.85),
        .bottom = Painting::gray(0.45),
        .edgeTop = Painting::gray(0, 0.6),
        .edgeBottom = Painting::gray(0, 0.6) };
    const Finish lug{ .top = Painting::gray(0.7),
        .bottom = Painting::gray(0.3),
        .edgeTop = Painting::gray(1, 0.5),
        .edgeBottom = Painting::gray(0, 0.5) };
    const Finish shutter{ .top = Painting::gray(0.75),
        .bottom = Painting::gray(0.35),
        .edgeTop = Painting::gray(1, 0.5),
        .edgeBottom = Painting::gray(0, 0.5) };
    const Finish shutterUnderPointer{ .top = Painting::gray(0.82),
        .bottom = shutter.bottom,
        .edgeTop = shutter.edgeTop,
        .edgeBottom = shutter.edgeBottom };
    const Finish key{ .top = Painting::gray(0.2),
        .bottom = Painting::gray(0.07),
        .edgeTop = Painting::gray(1, 0.3),
        .edgeBottom = Painting::gray(0, 0.8) };
    const Finish keyUnderPointer{ .top = Painting::gray(0.26),
        .bottom = Painting::gray(0.13),
        .edgeTop = key.edgeTop,
        .edgeBottom = key.edgeBottom };

    // What a theme or the palette fills, or what is let into the metal.
    const Finish panel{ .edgeTop = Painting::gray(1, 0.35), .edgeBottom = Painting::gray(0, 0.5) };
    const Finish plate{ .edgeTop = Painting::gray(1, 0.25), .edgeBottom = Painting::gray(0, 0.6) };
    const Finish cap{ .edgeTop = Painting::gray(1, 0.25), .edgeBottom = Painting::gray(0, 0.35) };
    const Finish rail{ .top = Painting::gray(0, 0.55),
        .bottom = Painting::gray(0, 0.55),
        .edgeTop = Painting::gray(1, 0.18),
        .edgeBottom = Painting::gray(0, 0.8) };
    const Finish well{ .top = Painting::gray(0, 0.6),
        .bottom = Painting::gray(0, 0.6),
        .edgeTop = Painting::gray(0, 0.6),
        .edgeBottom = Painting::gray(1, 0.12) };

    /// Under what is lit from within, which would show the leather otherwise.
    const QColor ground = Painting::gray(0.07);

    // Shadows, from the lightest on, by what casts them.
    const QColor buttonShadow = Painting::gray(0, 0.4);
    const QColor plateShadow = Painting::gray(0, 0.45);
    const QColor keyShadow = Painting::gray(0, 0.5);
    const QColor partShadow = Painting::gray(0, 0.6);
    const QColor bodyShadow = Painting::gray(0, 0.65);
    const QColor dialogShadow = Painting::gray(0, 0.7);

    /// Over what a dialog keeps from being used.
    const QColor veil = Painting::gray(0, 0.55);

    /// Under the white label of what can't be undone, in every theme.
    const QColor alarm{ 184, 40, 34 };

    // Lettering: printed on bright metal, and the two cuts of an engraving.
    const QColor print = Painting::gray(0, 0.8);
    const QColor litCut = Painting::gray(1, 0.14);
    const QColor darkCut = Painting::gray(0, 0.85);

    /// Inside the kit's search field.
    const QColor fieldFill = Painting::gray(0, 0.35);
};
