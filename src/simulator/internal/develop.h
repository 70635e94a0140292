// From layers in linear light to the picture's bytes.
#pragma once

#include "simulator/internal/planes.h"

#include <QImage>
#include <QRect>

#include <functional>

namespace Simulator {

class GrainField;
class Layer;
class Parallel;

/// The layers of a picture, already blurred, back to front.
struct Exposed {
    /// The rows from `top` to before `bottom`, of three channels; valid until the thread's next
    /// call.
    std::function<Planes(int top, int bottom)> background;
    Planes mover;    ///< four channels, where `moverArea` says
    QRect moverArea; ///< the rest of the frame is transparent; may be empty
    const Layer *subject;
    float gain; ///< what linear light is multiplied with; NaN counts as 1
};

/// Lays the layers over each other, multiplies with the gain, limits to 0 to 1, encodes in sRGB and
/// writes RGBA bytes with alpha 255 to `picture`, of Format_RGBA8888 or its premultiplied form.
///
/// With `sigma`, in steps of a byte, grain is added to the encoded bytes, to the last bit as
/// withGrain() gives it; none is added up to 0.01, as it could not change a byte.
void develop(const Exposed &layers, double sigma, const GrainField &grain, QImage &picture,
    const Parallel &parallel);

} // namespace Simulator
