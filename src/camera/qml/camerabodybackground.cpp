#include "camerabodybackground.h"

#include "camera/housing.h"

std::shared_future<QImage> CameraBodyBackground::startedPicture()
{
    return Housing::startedPicture(Housing::Body{
        .size = size(), .display = m_display, .colors = c(), .pixels = textureSize() });
}
