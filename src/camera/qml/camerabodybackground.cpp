#include "camerabodybackground.h"

#include "camera/camerabody.h"

void CameraBodyBackground::paint(QPainter *painter)
{
    CameraBody::paintBody(*painter, size(), c());
}
