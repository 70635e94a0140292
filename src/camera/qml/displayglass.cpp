#include "displayglass.h"

#include "camera/camerabody.h"

std::shared_future<QImage> DisplayGlass::paintAsync()
{
    return CameraBody::paintAsync(
        CameraBody::Glass{ .size = size(), .colors = c(), .pixels = textureSize() });
}
