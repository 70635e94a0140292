// The scene's photograph made plainly and slowly, to hold the renderer against.
#pragma once

#include "simulator/simsettings.h"

#include <QSize>

#include <vector>

/// RGBA bytes of the picture that SceneRenderer::render() gives, in double precision from end to
/// end, pixel by pixel: blurs are sums over the pixels under the disc and the line, layers are laid
/// over each other, exposed, limited, encoded and rounded, and grain comes from one plain loop.
class PlainRenderer
{
public:
    explicit PlainRenderer(QSize size);

    [[nodiscard]] std::vector<unsigned char> renderWithoutGrain(const SimSettings &settings) const;

    /// Adds the grain of a picture to its bytes.
    static void addGrain(std::vector<unsigned char> &bytes, double sigma);

    /// W × H pixels of four channels, linear light, premultiplied.
    struct Picture {
        int width;
        int height;
        std::vector<double> values;

        [[nodiscard]] double at(int x, int y, int channel) const; ///< repeats the edges
    };

    [[nodiscard]] static Picture discBlur(const Picture &in, double radius);
    [[nodiscard]] static Picture streak(const Picture &in, double halfLength);

private:
    Picture m_background;
    Picture m_mover;
    Picture m_subject;
};
