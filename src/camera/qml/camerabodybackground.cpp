#include "camerabodybackground.h"

#include "camera/camerabody.h"

std::shared_future<QImage> CameraBodyBackground::paintAsync()
{
    return CameraBody::paintAsync(CameraBody::Body{
        .size = size(), .display = m_display, .colors = c(), .pixels = textureSize() });
}
