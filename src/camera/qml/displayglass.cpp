#include "displayglass.h"

#include "camera/housing.h"

std::shared_future<QImage> DisplayGlass::startedPicture()
{
    return Housing::startedPicture(
        Housing::Glass{ .size = size(), .colors = c(), .pixels = textureSize() });
}
