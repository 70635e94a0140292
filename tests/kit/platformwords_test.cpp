#include "kit/platformwords.h"

#include "kit/printing.h"

#include <QDir>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using PlatformWords::localized;

TEST(PlatformWords, LeaveOtherTextsAlone)
{
    for (const QString &text : { u""_s, u"Search lessons, gear, history, videos…"_s,
             u"Mode dial: Campus. Click to turn to the next screen."_s, u"6×4.5 · ƒ/2"_s })
        EXPECT_EQ(localized(text), text);
}

#ifdef Q_OS_MACOS

TEST(PlatformWords, AreTheirOwnOnMacOS)
{
    const QString text = u"On this Mac, ⇧⌘E writes to ~/Library/Application Support."_s;
    EXPECT_EQ(localized(text), text);
}

#else

TEST(PlatformWords, NameTheComputer)
{
    EXPECT_EQ(localized(u"Everything stays on this Mac, and this Mac alone."_s),
        u"Everything stays on this computer, and this computer alone."_s);
}

TEST(PlatformWords, NameTheKeys)
{
    EXPECT_EQ(localized(u"Previous screen (⌘[)"_s), u"Previous screen (Ctrl+[)"_s);
    EXPECT_EQ(localized(u"Next screen (⌘])"_s), u"Next screen (Ctrl+])"_s);
    EXPECT_EQ(localized(u"⌘1 to ⌘9"_s), u"Ctrl+1 to Ctrl+9"_s);
    EXPECT_EQ(localized(u"⌘+"_s), u"Ctrl++"_s);
}

TEST(PlatformWords, NameKeysAsMenusDo)
{
    EXPECT_EQ(localized(u"⌘+, ⌘− and ⌘0"_s), u"Ctrl++, Ctrl+- and Ctrl+0"_s);
    EXPECT_EQ(localized(u"⌘?: this help."_s), u"Ctrl+Shift+/: this help."_s);
    EXPECT_EQ(localized(u"The minus − stays."_s), u"The minus − stays."_s);
}

TEST(PlatformWords, NameKeysWithTwoModifiers)
{
    EXPECT_EQ(
        localized(u"Export (⇧⌘E), new note (⌘N)"_s), u"Export (Ctrl+Shift+E), new note (Ctrl+N)"_s);
}

TEST(PlatformWords, NameTheRealFolderOfApplicationData)
{
    const QString folder = QDir::toNativeSeparators(
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    ASSERT_FALSE(folder.isEmpty());
    EXPECT_EQ(localized(u"In ~/Library/Application Support/CRVN Halvorin you find it."_s),
        u"In "_s + folder + u"/CRVN Halvorin you find it."_s);
}

#ifdef Q_OS_LINUX
TEST(PlatformWords, FollowTheEnvironmentOfTheUser)
{
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", "/somewhere/else");
    EXPECT_EQ(localized(u"~/Library/Application Support"_s), u"/somewhere/else"_s);
    if (before.isNull())
        qunsetenv("XDG_DATA_HOME");
    else
        qputenv("XDG_DATA_HOME", before);
}
#endif

TEST(PlatformWords, NameAFileByItsWholePath)
{
    const QString file = QDir::homePath() + u"/a folder/file.txt"_s;
    EXPECT_EQ(PlatformWords::pathInText(file), QDir::toNativeSeparators(file));
}

TEST(PlatformWords, AreThereOnceAndForAll)
{
    // Words that have been put in place don't change when the text comes by again.
    const QString once = localized(u"On this Mac press ⇧⌘E, ⌘− or ⌘?."_s);
    EXPECT_EQ(localized(once), once);
}

#endif
