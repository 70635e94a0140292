// Which pictures are kept, and how many.

#include "kit/picturecache.h"

#include <QImage>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace Painting;

namespace {

constexpr qsizetype kLimit = 1024 * 1024;

using Cache = PictureCache<int, QImage>;

// The picture under `width`: so many pixels wide and 100 high.
QImage ask(Cache &cache, int width)
{
    return cache.picture(width, qsizetype(width) * 100 * 4,
        [width] { return QImage(width, 100, QImage::Format_ARGB32_Premultiplied); });
}

} // namespace

TEST(PictureCache, GivesThePictureThatItMadeBefore)
{
    Cache cache(kLimit);
    const QImage once = ask(cache, 30);
    EXPECT_EQ(once.width(), 30);
    EXPECT_EQ(ask(cache, 30).cacheKey(), once.cacheKey());
    EXPECT_NE(ask(cache, 31).cacheKey(), once.cacheKey());
}

TEST(PictureCache, NeverKeepsMoreThanItsLimit)
{
    Cache cache(kLimit);
    for (int width = 1; width <= 800; ++width) {
        EXPECT_EQ(ask(cache, width).width(), width);
        ASSERT_LE(cache.bytes(), kLimit) << width;
    }
    EXPECT_GT(cache.bytes(), kLimit / 2);
}

TEST(PictureCache, LetsGoFirstOfWhatNobodyAskedForLongest)
{
    Cache cache(kLimit);
    const QImage used = ask(cache, 100);
    const QImage unused = ask(cache, 101);
    for (int width = 200; width < 300; ++width) {
        std::ignore = ask(cache, width);
        EXPECT_EQ(ask(cache, 100).cacheKey(), used.cacheKey());
    }
    EXPECT_NE(ask(cache, 101).cacheKey(), unused.cacheKey());
}

TEST(PictureCache, HandsOutWhatIsTooLargeToKeep)
{
    Cache cache(kLimit);
    const QImage small = ask(cache, 10);
    const QImage large = ask(cache, 5000);
    EXPECT_EQ(large.width(), 5000);
    EXPECT_NE(ask(cache, 5000).cacheKey(), large.cacheKey());
    EXPECT_EQ(ask(cache, 10).cacheKey(), small.cacheKey());
}

TEST(PictureCache, CountsPicturesOfNoPixelsToo)
{
    Cache cache(kLimit);
    for (int key = 0; key > -200000; --key)
        std::ignore = cache.picture(key, 0, [] { return QImage(); });
    EXPECT_LE(cache.bytes(), kLimit);
    EXPECT_GT(cache.bytes(), 0);
}

TEST(PictureCache, MayBeAskedWhileItMakesAPicture)
{
    Cache cache(kLimit);
    const QImage outer = cache.picture(1, 400, [&cache] { return ask(cache, 50); });
    EXPECT_EQ(ask(cache, 50).cacheKey(), outer.cacheKey());
}

TEST(PictureCache, GivesTheSamePictureToThreadsThatAskAtOnce)
{
    Cache cache(kLimit);
    std::vector<QImage> given(8);
    std::vector<std::thread> threads;
    for (QImage &image : given)
        threads.emplace_back([&] { image = ask(cache, 70); });
    for (std::thread &thread : threads)
        thread.join();
    for (const QImage &image : given)
        EXPECT_EQ(image.cacheKey(), given.front().cacheKey());
}
