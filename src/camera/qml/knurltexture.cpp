#include "knurltexture.h"

#include "camera/textures.h"

void KnurlTexture::paint(QPainter *painter)
{
    Textures::paintKnurl(*painter, size());
}
