#include "kit/motion.h"

#include "kit/printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

bool isReducedBy(const QString &group, const QString &name, const QVariant &value)
{
    return Motion::isReducedBy({ { group, { { name, value } } } });
}

} // namespace

TEST(Motion, IsThereUnlessSomebodyObjects)
{
    EXPECT_FALSE(Motion::isReducedBy({}));
    EXPECT_FALSE(Motion().isReduced());
}

TEST(Motion, IsReducedByTheSettingThatDesktopsShare)
{
    EXPECT_TRUE(isReducedBy(u"org.freedesktop.appearance"_s, u"reduced-motion"_s, 1u));
    EXPECT_FALSE(isReducedBy(u"org.freedesktop.appearance"_s, u"reduced-motion"_s, 0u));
}

TEST(Motion, IsReducedByADesktopsOwnSetting)
{
    EXPECT_TRUE(isReducedBy(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, false));
    EXPECT_FALSE(isReducedBy(u"org.gnome.desktop.interface"_s, u"enable-animations"_s, true));
    EXPECT_TRUE(isReducedBy(u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"0"_s));
    EXPECT_FALSE(isReducedBy(u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"0.5"_s));
    EXPECT_FALSE(isReducedBy(u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"?"_s));
}

TEST(Motion, IsReducedIfAnySettingAsksForIt)
{
    EXPECT_TRUE(Motion::isReducedBy({
        { u"org.freedesktop.appearance"_s, { { u"reduced-motion"_s, 0u } } },
        { u"org.gnome.desktop.interface"_s, { { u"enable-animations"_s, false } } },
    }));
}

TEST(Motion, TellsOfAChangeOnce)
{
    Motion motion;
    int changes = 0;
    QObject::connect(&motion, &Motion::changed, [&changes] { ++changes; });
    motion.setReduced(true);
    motion.setReduced(true);
    EXPECT_TRUE(motion.isReduced());
    EXPECT_EQ(changes, 1);
}
