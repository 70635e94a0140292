#include "displayglass.h"

#include "camera/camerabody.h"

void DisplayGlass::paint(QPainter *painter)
{
    CameraBody::paintGlass(*painter, size(), c());
}
