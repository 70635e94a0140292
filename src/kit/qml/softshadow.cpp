#include "softshadow.h"

#include "kit/softblur.h"

bool SoftShadow::isSeen() const
{
    return NinePatchItem::isSeen() && m_color.alpha() != 0;
}

Painting::NinePatch SoftShadow::patchAsync() const
{
    // Blurred in the pixels of the screen, so that a magnified shadow stays smooth.
    const double radius = qMin(m_radius, qMin(width(), height()) / 2);
    return Painting::shadowPatchAsync(
        deviceSize(), qRound(radius * renderScale()), reach(), m_color);
}

int SoftShadow::reach() const
{
    return qRound(m_blur * renderScale());
}
