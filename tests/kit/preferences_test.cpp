#include "kit/preferences.h"

#include "kit/printing.h"
#include "support/watchdog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const QString kTheme = u"crvn.theme"_s;
const QString kZoom = u"crvn.zoom"_s;

class PreferencesTest : public ::testing::Test
{
protected:
    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    [[nodiscard]] QJsonObject stored() const { return QJsonDocument::fromJson(bytes()).object(); }

    // As a user leaves it who edits the file by hand while the program isn't running.
    void writeByHand(const QByteArray &content) const
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"A Program/A Program.json"_s);
};

// The keys of the changes that a Preferences object has signalled, in their order.
class Changes
{
public:
    explicit Changes(Preferences &preferences)
    {
        QObject::connect(&preferences, &Preferences::changed, &m_context,
            [this](const QString &key) { keys.append(key); });
    }
    QStringList keys;

private:
    QObject m_context;
};

} // namespace

TEST_F(PreferencesTest, HoldNothingAtFirst)
{
    const Preferences preferences(path);
    EXPECT_FALSE(preferences.contains(kTheme));
    EXPECT_EQ(preferences.text(kTheme), QString());
    EXPECT_EQ(preferences.number(kZoom), 0);
}

TEST_F(PreferencesTest, MakeNoFileUntilSomethingIsSet)
{
    {
        Preferences preferences(path);
        preferences.remove(kTheme);
        EXPECT_EQ(preferences.text(kTheme), QString());
    }
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(PreferencesTest, GiveBackWhatWasSet)
{
    Preferences preferences(path);
    preferences.set(kTheme, u"rose-gold"_s);
    preferences.set(kZoom, 1.15);
    EXPECT_TRUE(preferences.contains(kTheme));
    EXPECT_EQ(preferences.text(kTheme), u"rose-gold"_s);
    EXPECT_EQ(preferences.number(kZoom), 1.15);
}

TEST_F(PreferencesTest, AreAnObjectWithTheKeysAsTheyStand)
{
    Preferences preferences(path);
    preferences.set(kTheme, u"rose-gold"_s);
    preferences.set(kZoom, 1.15);
    EXPECT_EQ(bytes(), "{\n    \"crvn.theme\": \"rose-gold\",\n    \"crvn.zoom\": 1.15\n}\n");
}

TEST_F(PreferencesTest, AreWrittenThroughAtEachChange)
{
    Preferences preferences(path);
    preferences.set(kTheme, u"rose-gold"_s);
    EXPECT_EQ(stored().value(kTheme), u"rose-gold"_s);
    preferences.set(kTheme, u"brushed-gray"_s);
    EXPECT_EQ(stored().value(kTheme), u"brushed-gray"_s);

    const Preferences second(path);
    EXPECT_EQ(second.text(kTheme), u"brushed-gray"_s);
}

TEST_F(PreferencesTest, AreThereAgainAfterALaunch)
{
    {
        Preferences before(path);
        before.set(kTheme, u"rose-gold"_s);
        before.set(kZoom, 1.3);
    }
    const Preferences after(path);
    EXPECT_EQ(after.text(kTheme), u"rose-gold"_s);
    EXPECT_EQ(after.number(kZoom), 1.3);
}

TEST_F(PreferencesTest, KeepTextsWhateverTheirCharacters)
{
    const QStringList texts = { u"@Size(1 2)"_s, u"a, b"_s, u"50%"_s, u"\"quoted\""_s, u"a;b=c"_s,
        u"Grün 🎨"_s, u"two\nlines"_s, u" blanks "_s };
    for (const QString &text : texts) {
        {
            Preferences before(path);
            before.set(kTheme, text);
        }
        const Preferences after(path);
        EXPECT_EQ(after.text(kTheme), text);
    }
}

TEST_F(PreferencesTest, RemovedAreGoneFromTheFileToo)
{
    Preferences preferences(path);
    preferences.set(kTheme, u"rose-gold"_s);
    preferences.set(kZoom, 1.3);
    preferences.remove(kTheme);
    EXPECT_FALSE(preferences.contains(kTheme));
    EXPECT_EQ(preferences.text(kTheme), QString());
    EXPECT_EQ(preferences.number(kZoom), 1.3);
    EXPECT_FALSE(bytes().contains("crvn.theme"));
    EXPECT_TRUE(bytes().contains("crvn.zoom"));
    EXPECT_FALSE(Preferences(path).contains(kTheme));
}

TEST_F(PreferencesTest, AreTheirOwnersAlone)
{
    Preferences(path).set(kTheme, u"crvn.sky"_s);
    constexpr QFile::Permissions ownersOnly
        = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(path), ownersOnly);
    EXPECT_EQ(
        QFile::permissions(QFileInfo(path).path()), ownersOnly | QFile::ExeOwner | QFile::ExeUser);
}

TEST_F(PreferencesTest, ThatOthersCouldReadBecomeTheirOwnersAlone)
{
    writeByHand("{}");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::Permissions(0x6666)));
    Preferences(path).set(kTheme, u"crvn.sky"_s);
    EXPECT_EQ(QFile::permissions(path) & QFile::Permissions(0x0077), QFile::Permissions());
}

TEST_F(PreferencesTest, BehindALinkKeepTheirRightsAndTheLink)
{
    writeByHand("{}");
    const QString real = folder.filePath(u"dotfile"_s);
    ASSERT_TRUE(QFile::rename(path, real));
    ASSERT_TRUE(QFile::setPermissions(real, QFile::Permissions(0x6644)));
    ASSERT_TRUE(QFile::link(real, path));
    Preferences(path).set(kTheme, u"crvn.sky"_s);
    EXPECT_TRUE(QFileInfo(path).isSymbolicLink());
    EXPECT_EQ(QFile::permissions(real), QFile::Permissions(0x6644));
    EXPECT_EQ(Preferences(real).text(kTheme), u"crvn.sky"_s);
}

TEST_F(PreferencesTest, SignalAChangeOnce)
{
    Preferences preferences(path);
    const Changes changes(preferences);
    preferences.set(kTheme, u"rose-gold"_s);
    preferences.set(kZoom, 1.3);
    preferences.remove(kTheme);
    EXPECT_EQ(changes.keys, QStringList({ kTheme, kZoom, kTheme }));
}

TEST_F(PreferencesTest, SignalNothingIfNothingChanges)
{
    Preferences preferences(path);
    preferences.set(kTheme, u"rose-gold"_s);
    preferences.set(kZoom, 1.3);
    const Changes changes(preferences);
    preferences.set(kTheme, u"rose-gold"_s);
    preferences.set(kZoom, 1.3);
    preferences.remove(u"no.such.key"_s);
    EXPECT_EQ(changes.keys, QStringList());
}

TEST_F(PreferencesTest, SettingWhatIsThereAlreadyWritesNothing)
{
    writeByHand(R"({"crvn.zoom":1.30,"crvn.theme":"rose-gold"})");
    const QByteArray before = bytes();
    Preferences preferences(path);
    preferences.set(kTheme, u"rose-gold"_s);
    EXPECT_EQ(bytes(), before);
}

TEST_F(PreferencesTest, ReadFromTheFileCountAsSet)
{
    writeByHand(R"({ "crvn.zoom": 1.3 })");
    Preferences preferences(path);
    const Changes changes(preferences);
    preferences.set(kZoom, 1.3);
    EXPECT_EQ(changes.keys, QStringList());
    preferences.set(kZoom, 1.15);
    EXPECT_EQ(changes.keys, QStringList(kZoom));
}

TEST_F(PreferencesTest, TheNewValueIsThereWhenTheSignalComes)
{
    Preferences preferences(path);
    QString seen;
    QObject::connect(&preferences, &Preferences::changed, &preferences,
        [&](const QString &key) { seen = preferences.text(key); });
    preferences.set(kTheme, u"rose-gold"_s);
    EXPECT_EQ(seen, u"rose-gold"_s);
}

TEST_F(PreferencesTest, AnEmptyTextIsAValue)
{
    Preferences preferences(path);
    const Changes changes(preferences);
    preferences.set(kTheme, QString());
    EXPECT_TRUE(preferences.contains(kTheme));
    EXPECT_EQ(preferences.text(kTheme), QString());
    EXPECT_EQ(changes.keys, QStringList(kTheme));
}

TEST_F(PreferencesTest, WhatIsNoNumberReadsAsZero)
{
    for (const char *value : { R"("")", R"("large")", R"("115%")", R"("1,5")", R"("1.15 or so")",
             "null", "false", "[1.15]", R"({ "crvn.zoom": 1.15 })", "1.15 or so", "1e999" }) {
        writeByHand(R"({ "crvn.zoom": )" + QByteArray(value) + " }");
        EXPECT_EQ(Preferences(path).number(kZoom), 0) << value;
    }
}

TEST_F(PreferencesTest, ANumberInOtherSpellingsReadsAsThatNumber)
{
    for (const char *value : { "1.5", "1.50", "15e-1", R"("1.5")", R"("+1.5")" }) {
        writeByHand(R"({ "crvn.zoom": )" + QByteArray(value) + " }");
        EXPECT_EQ(Preferences(path).number(kZoom), 1.5) << value;
    }
}

TEST_F(PreferencesTest, WhatIsNoTextReadsAsEmpty)
{
    for (const char *value : { "null", R"(["rose-gold"])", R"({ "crvn.theme": "rose-gold" })" }) {
        writeByHand(R"({ "crvn.theme": )" + QByteArray(value) + " }");
        EXPECT_EQ(Preferences(path).text(kTheme), QString()) << value;
    }
}

TEST_F(PreferencesTest, ATextCanBeReplacedByNothing)
{
    writeByHand(R"({ "crvn.theme": "rose-gold" })");
    Preferences preferences(path);
    const Changes changes(preferences);
    preferences.set(kTheme, QString());
    EXPECT_EQ(preferences.text(kTheme), QString());
    EXPECT_EQ(changes.keys, QStringList(kTheme));
}

TEST_F(PreferencesTest, AreTextsWhateverTheFileSaysTheyAre)
{
    // In QSettings' own form the second asks for a list of four thousand million values.
    for (const char *value : { "@Size(1 2)",
             R"(@Variant(\u0000\u0000\u0000\u0009\u00ff\u00ff\u00ff\u00ff))", "@ByteArray(x)" }) {
        writeByHand(R"({ "crvn.theme": ")" + QByteArray(value) + R"(" })");
        EXPECT_TRUE(Preferences(path).text(kTheme).startsWith(u'@')) << value;
        EXPECT_EQ(Preferences(path).number(kTheme), 0) << value;
    }
}

TEST_F(PreferencesTest, AFileThatIsNoneReadsAsEmptyAndCanBeWritten)
{
    const QByteArray noise("\x00\xFF[[[\n=\n%%%=\xC3\n]]", 16);
    writeByHand(noise);
    {
        Preferences preferences(path);
        EXPECT_FALSE(preferences.contains(kTheme));
        EXPECT_EQ(preferences.number(kZoom), 0);
        preferences.set(kTheme, u"rose-gold"_s);
    }
    EXPECT_EQ(Preferences(path).text(kTheme), u"rose-gold"_s);
}

TEST_F(PreferencesTest, ValuesOfOthersInTheFileStay)
{
    writeByHand(R"({ "written.by": "hand", "list": [1, null], "inner": { "crvn.theme": "x" } })");
    const QJsonObject before = stored();
    Preferences(path).set(kTheme, u"rose-gold"_s);
    QJsonObject after = stored();
    EXPECT_EQ(after.take(kTheme), u"rose-gold"_s);
    EXPECT_EQ(after, before);
}

TEST_F(PreferencesTest, AFileThatCanNotBeWrittenCostsOnlyTheMemoryOfTheNextLaunch)
{
    // A file stands where the folder should be.
    QFile obstacle(folder.filePath(u"A Program"_s));
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    obstacle.close();

    Preferences preferences(path);
    const Changes changes(preferences);
    preferences.set(kTheme, u"rose-gold"_s);
    EXPECT_EQ(preferences.text(kTheme), u"rose-gold"_s);
    EXPECT_EQ(changes.keys, QStringList(kTheme));
    EXPECT_TRUE(QFileInfo(folder.filePath(u"A Program"_s)).isFile());
}

TEST_F(PreferencesTest, KeptInMemoryLeaveTheFileByteForByteAlone)
{
    writeByHand(R"({"crvn.theme":"rose-gold","crvn.zoom":1.30})");
    const QByteArray before = bytes();
    {
        Preferences preferences(path);
        preferences.keepInMemory();
        preferences.set(kTheme, u"brushed-gray"_s);
        preferences.set(kZoom, 2.0);
        preferences.remove(kTheme);
        EXPECT_EQ(bytes(), before);
    }
    EXPECT_EQ(bytes(), before);
}

TEST_F(PreferencesTest, KeptInMemoryMakeNoFile)
{
    {
        Preferences preferences(path);
        preferences.keepInMemory();
        preferences.set(kTheme, u"brushed-gray"_s);
    }
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(path).path()));
}

TEST_F(PreferencesTest, KeptInMemoryForgetWhatTheFileHeld)
{
    writeByHand(R"({ "crvn.theme": "rose-gold" })");
    Preferences preferences(path);
    ASSERT_TRUE(preferences.contains(kTheme));
    preferences.keepInMemory();
    EXPECT_FALSE(preferences.contains(kTheme));
    EXPECT_EQ(preferences.text(kTheme), QString());
}

TEST_F(PreferencesTest, KeptInMemoryBehaveLikeThoseInAFile)
{
    Preferences preferences(path);
    preferences.keepInMemory();
    const Changes changes(preferences);
    preferences.set(kTheme, u"brushed-gray"_s);
    preferences.set(kTheme, u"brushed-gray"_s);
    preferences.set(kZoom, 1.15);
    EXPECT_EQ(preferences.text(kTheme), u"brushed-gray"_s);
    EXPECT_EQ(preferences.number(kZoom), 1.15);
    preferences.remove(kTheme);
    preferences.remove(kTheme);
    EXPECT_FALSE(preferences.contains(kTheme));
    EXPECT_EQ(changes.keys, QStringList({ kTheme, kZoom, kTheme }));
}

TEST_F(PreferencesTest, KeptInMemoryAgainBeginAnew)
{
    Preferences preferences(path);
    preferences.keepInMemory();
    preferences.set(kTheme, u"brushed-gray"_s);
    preferences.keepInMemory();
    EXPECT_FALSE(preferences.contains(kTheme));
}

#ifdef Q_OS_LINUX
TEST(SharedPreferences, LieInTheUsersConfigurationFolder)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    ASSERT_TRUE(folder.startsWith(QDir::tempPath()));

    Preferences::shared().set(u"a.test"_s, u"was here"_s);
    const Preferences file(folder + u"/CRVN Halvorin/CRVN Halvorin.json"_s);
    EXPECT_EQ(file.text(u"a.test"_s), u"was here"_s);
    Preferences::shared().remove(u"a.test"_s);
}
#endif

#ifdef Q_OS_UNIX

TEST_F(PreferencesTest, WaitForNoPipe)
{
    const Watchdog watchdog;
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    Preferences preferences(path);
    EXPECT_EQ(preferences.text(kTheme), QString());
    preferences.set(kTheme, u"brass"_s);
    EXPECT_EQ(preferences.text(kTheme), u"brass"_s);
}

TEST_F(PreferencesTest, ReadNoFileOfTwentyGigabytes)
{
    const Watchdog watchdog;
    writeByHand(R"({ "crvn.theme": "brass" })");
    ASSERT_TRUE(QFile::resize(path, 20LL << 30)); // sparse
    EXPECT_EQ(Preferences(path).text(kTheme), QString());
    EXPECT_EQ(QFileInfo(path).size(), 20LL << 30);
}

#endif
