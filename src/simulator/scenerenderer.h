// The photograph that a camera's settings would take of the program's scene.
//
// Depth of field, motion streaks, exposure and grain are not illustrated but computed into pixels:
// each layer of the scene is blurred by the disc that the lens would draw and the line that the
// open shutter would, the layers are laid over each other and exposed in linear light, and what is
// brighter than white clips only then, as in a camera.
#pragma once

#include "simulator/scenemetrics.h"
#include "simulator/simsettings.h"

#include <QImage>
#include <QRectF>
#include <QSize>

#include <memory>
#include <vector>

class SceneRenderer
{
public:
    /// How the renderer may use the machine. Both give the same bytes.
    enum class Threads {
        One,
        AllCores,
    };

    /// Paints the layers of a scene of `size` pixels and prepares all that depends on the size
    /// alone.
    /// @pre width and height are positive.
    explicit SceneRenderer(QSize size = { 720, 450 }, Threads threads = Threads::AllCores);
    ~SceneRenderer();
    SceneRenderer(const SceneRenderer &) = delete;
    SceneRenderer &operator=(const SceneRenderer &) = delete;

    /// The renderer of the Exposure Lab, 720 × 450, made on first use.
    [[nodiscard]] static const SceneRenderer &shared();

    [[nodiscard]] QSize size() const;

    /// The photograph: Format_RGBA8888_Premultiplied, sRGB, alpha 255 everywhere, row 0 at the top.
    /// Equal settings give the same bytes, grain included, whatever was rendered before, on any
    /// number of threads at once. Settings out of any sensible range give some picture. Null if the
    /// memory for the picture can't be had.
    [[nodiscard]] QImage render(const SimSettings &settings) const;

    /// The same before the grain is laid over it.
    [[nodiscard]] QImage renderWithoutGrain(const SimSettings &settings) const;

    /// Where SceneMetrics looks, in fractions of the picture from the top-left corner: smooth sky,
    /// the string of lights, the cyclist, the weave of the subject's shirt.
    static constexpr QRectF skyRegion{ 0.04, 0.03, 0.3, 0.12 };
    static constexpr QRectF lightsRegion{ 0.05, 0.3, 0.4, 0.16 };
    static constexpr QRectF moverRegion{ 0.3, 0.52, 0.22, 0.22 };
    static constexpr QRectF subjectRegion{ 0.68, 0.62, 0.12, 0.18 };

    /// A picture as RGBA bytes: 4 · w a row, row 0 at the top.
    struct Pixels {
        std::vector<unsigned char> data;
        int w = 0;
        int h = 0;
    };
    [[nodiscard]] static Pixels pixels(const QImage &image);

    /// What can be measured on a picture.
    /// @pre The picture is large enough for a pixel in each region (30 × 30 is).
    [[nodiscard]] static SceneMetrics metrics(const QImage &image);

private:
    [[nodiscard]] QImage picture(const SimSettings &settings, double sigma) const;

    class Private;
    std::unique_ptr<Private> d;
};
