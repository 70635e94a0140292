#include "screens/videos/openinyoutube.h"

#include "content/records.h"
#include "kit/netstatus.h"
#include "kit/opener.h"
#include "kit/printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class OpenInYouTube : public testing::Test
{
protected:
    OpenInYouTube()
    {
        Opener::setAction([this](const QUrl &address) { opened.append(address.toString()); });
    }
    ~OpenInYouTube() override
    {
        Opener::setAction({});
        NetStatus::setOverride({});
    }

    const Video film{ .id = u"aB3_-xyz019"_s };
    QStringList opened;
};

} // namespace

TEST_F(OpenInYouTube, HandsTheFilmsPageToTheBrowser)
{
    NetStatus::setOverride(true);
    EXPECT_TRUE(HVVideo::openInYouTube(film));
    EXPECT_EQ(opened, QStringList(u"https://www.youtube.com/watch?v=aB3_-xyz019"_s));
}

TEST_F(OpenInYouTube, DoesNothingWithoutANetwork)
{
    NetStatus::setOverride(false);
    EXPECT_FALSE(HVVideo::openInYouTube(film));
    EXPECT_EQ(opened, QStringList());
}
