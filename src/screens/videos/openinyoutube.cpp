#include "screens/videos/openinyoutube.h"

#include "kit/netstatus.h"
#include "kit/opener.h"
#include "screens/videos/hvvideo.h"

bool HVVideo::openInYouTube(const Video &video)
{
    if (!NetStatus::shared().isOnline())
        return false;
    Opener::open(watchURL(video));
    return true;
}
