#include "applicationicon.h"

#include "kit/kit.h"

#include <algorithm>

void ApplicationIcon::paint(QPainter *painter)
{
    CRVNKitHost::paintIcon(*painter, std::min(width(), height()));
}
