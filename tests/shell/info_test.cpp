#include "shell/info.h"

#include "store/storetesting.h"
#include "support/environment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
    | QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;

// A user who has set nothing: application data go to a folder of the test's own.
class HVInfoPlaces : public ::testing::Test
{
protected:
    Folder home;
    EnvironmentVariable data{ "XDG_DATA_HOME", home.path(u"data"_s) };
    EnvironmentVariable database{ "HV_DB_PATH", std::nullopt };
    EnvironmentVariable content{ "HV_CONTENT", std::nullopt };
};

// The working folder of the process, for as long as this lives.
class WorkingFolder
{
public:
    explicit WorkingFolder(const QString &path) { QDir::setCurrent(path); }
    ~WorkingFolder() { QDir::setCurrent(m_before); }
    Q_DISABLE_COPY_MOVE(WorkingFolder)

private:
    QString m_before = QDir::currentPath();
};

// A program that stands in "bin" under a prefix of its own.
class HVInfoInstalled : public HVInfoPlaces
{
protected:
    HVInfoInstalled()
    {
        if (!QDir().mkpath(prefix + u"/bin"_s)
            || !QFile::copy(QStringLiteral(HV_INFO_TEST_CHILD), prefix + u"/bin/program"_s))
            qFatal("The program can't be installed for a test.");
    }

    [[nodiscard]] QString contentFolder() const { return printed({}); }
    [[nodiscard]] QString pluginFolder() const { return printed({ u"plugins"_s }); }
    [[nodiscard]] QString printed(const QStringList &arguments) const
    {
        QProcess program;
        program.setWorkingDirectory(home.path());
        program.start(prefix + u"/bin/program"_s, arguments);
        program.waitForFinished();
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 0);
        return QString::fromUtf8(program.readAllStandardOutput()).chopped(1);
    }

    const QString prefix = QDir(home.path()).canonicalPath() + u"/prefix"_s;
};

} // namespace

TEST(HVInfo, NamesTheProgramAndItsMaker)
{
    EXPECT_EQ(HVInfo::appName, u"CRVN Halvorin"_s);
    EXPECT_EQ(HVInfo::creditLine, u"by Corvane (CRVN)"_s);
}

TEST(HVInfo, SaysWhenTheFactsWereLastChecked)
{
    EXPECT_EQ(HVInfo::checkedISO, u"2026-10-24"_s);
    EXPECT_EQ(HVInfo::specsNote,
        u"Specs as of Oct 2026, from each maker's own product page (link and date checked shown). "
        "Makers change, discontinue and replace products; check the maker's page before you "
        "buy."_s);
}

TEST(HVInfo, HasAWebsiteThatIsReachedSecurely)
{
    EXPECT_TRUE(HVInfo::website().isValid());
    EXPECT_EQ(HVInfo::website().scheme(), u"https"_s);
    EXPECT_FALSE(HVInfo::website().host().isEmpty());
}

TEST(HVInfo, HasAVersionAndTheNumberOfABuild)
{
    static const QRegularExpression twoNumbers(uR"(^\d+\.\d+$)"_s);
    static const QRegularExpression number(uR"(^[1-9]\d*$)"_s);
    EXPECT_TRUE(twoNumbers.match(HVInfo::version()).hasMatch()) << qPrintable(HVInfo::version());
    EXPECT_TRUE(number.match(HVInfo::build()).hasMatch()) << qPrintable(HVInfo::build());
}

TEST_F(HVInfoPlaces, CanBeNamedWithoutBeingCreated)
{
    EXPECT_EQ(HVInfo::dataFolderPath(), home.path(u"data/CRVN Halvorin"_s));
    EXPECT_EQ(HVInfo::databasePath(), home.path(u"data/CRVN Halvorin/My Progress.sqlite"_s));
    EXPECT_FALSE(QFileInfo::exists(home.path(u"data"_s)));

    const EnvironmentVariable path("HV_DB_PATH", home.path(u"mine.sqlite"_s));
    EXPECT_EQ(HVInfo::databasePath(), home.path(u"mine.sqlite"_s));
}

TEST_F(HVInfoPlaces, DataOfAUserWithoutAHomeLieUnderTheRoot)
{
    const EnvironmentVariable noData("XDG_DATA_HOME", std::nullopt);
    const EnvironmentVariable noHome("HOME", std::nullopt);
    EXPECT_EQ(HVInfo::dataFolderPath(), u"/.local/share/CRVN Halvorin"_s);
}

TEST_F(HVInfoPlaces, TheDataFolderStandsInThePlatformsPlaceForApplicationData)
{
    EXPECT_EQ(HVInfo::dataFolder(), home.path(u"data/CRVN Halvorin"_s));
}

TEST_F(HVInfoPlaces, TheDataFolderIsCreatedWithTheFoldersAboveIt)
{
    const EnvironmentVariable deep("XDG_DATA_HOME", home.path(u"some/where/new"_s));
    EXPECT_TRUE(QFileInfo(HVInfo::dataFolder()).isDir());
    EXPECT_TRUE(QFileInfo(home.path(u"some/where/new/CRVN Halvorin"_s)).isDir());
}

TEST_F(HVInfoPlaces, TheDataFolderIsItsOwnersAlone)
{
    EXPECT_EQ(QFile::permissions(HVInfo::dataFolder()), kOwnerOnly);
}

TEST_F(HVInfoPlaces, ADataFolderThatOthersCouldReadBecomesItsOwnersAlone)
{
    // given
    const QString folder = home.path(u"data/CRVN Halvorin"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(QFile::setPermissions(folder, kOwnerOnly | QFile::ReadGroup | QFile::ReadOther));
    // when
    static_cast<void>(HVInfo::dataFolder());
    // then
    EXPECT_EQ(QFile::permissions(folder), kOwnerOnly);
}

TEST_F(HVInfoPlaces, WhatStandsInTheDataFolderStays)
{
    ASSERT_TRUE(QDir().mkpath(home.path(u"data/CRVN Halvorin"_s)));
    writeFile(home.path(u"data/CRVN Halvorin/My Progress.sqlite"_s), "notes");
    const Fingerprint before = fingerprint(home.path(u"data/CRVN Halvorin"_s));
    EXPECT_EQ(fingerprint(HVInfo::dataFolder()), before);
}

TEST_F(HVInfoPlaces, ADataFolderThatCanNotBeMadeIsNamedAllTheSame)
{
    // given: a file where the folder above it should be
    writeFile(home.path(u"data"_s), "in the way");
    // then
    EXPECT_EQ(HVInfo::dataFolder(), home.path(u"data/CRVN Halvorin"_s));
    EXPECT_EQ(fileBytes(home.path(u"data"_s)), "in the way");
}

TEST_F(HVInfoPlaces, TheProgressFileStandsInTheDataFolder)
{
    EXPECT_EQ(HVInfo::databaseURL(), home.url(u"data/CRVN Halvorin/My Progress.sqlite"_s));
}

TEST_F(HVInfoPlaces, TheEnvironmentCanNameAnotherProgressFile)
{
    const EnvironmentVariable path("HV_DB_PATH", home.path(u"elsewhere/mine.sqlite"_s));
    EXPECT_EQ(HVInfo::databaseURL(), home.url(u"elsewhere/mine.sqlite"_s));
}

TEST_F(HVInfoPlaces, AnEmptyNameInTheEnvironmentMeansTheUsualProgressFile)
{
    const EnvironmentVariable path("HV_DB_PATH", u""_s);
    EXPECT_EQ(HVInfo::databaseURL(), home.url(u"data/CRVN Halvorin/My Progress.sqlite"_s));
}

TEST_F(HVInfoPlaces, ARelativeProgressFileCountsFromTheWorkingFolder)
{
    const WorkingFolder here(home.path());
    const EnvironmentVariable path("HV_DB_PATH", u"my notes.sqlite"_s);
    EXPECT_EQ(
        HVInfo::databaseURL(), QUrl::fromLocalFile(QDir::currentPath() + u"/my notes.sqlite"_s));
}

TEST_F(HVInfoPlaces, AProgressFileBehindALinkStandsWhereItLeadsTo)
{
    // given: ".." behind a link means the folder above the one that it leads to
    ASSERT_TRUE(QDir().mkpath(home.path(u"far/away"_s)));
    ASSERT_TRUE(QFile::link(home.path(u"far/away"_s), home.path(u"link"_s)));
    writeFile(home.path(u"far/mine.sqlite"_s), "notes");
    // then
    const EnvironmentVariable path("HV_DB_PATH", home.path(u"link/../mine.sqlite"_s));
    EXPECT_EQ(QFileInfo(HVInfo::databaseURL().toLocalFile()).canonicalFilePath(),
        QFileInfo(home.path(u"far/mine.sqlite"_s)).canonicalFilePath());
}

TEST_F(HVInfoPlaces, AProgressFileWhoseNameBeginsWithAColonStandsInTheWorkingFolder)
{
    const WorkingFolder here(home.path());
    const EnvironmentVariable path("HV_DB_PATH", u":mine.sqlite"_s);
    EXPECT_EQ(HVInfo::databaseURL(), QUrl::fromLocalFile(QDir::currentPath() + u"/:mine.sqlite"_s));
}

TEST_F(HVInfoPlaces, AContentFolderWhoseNameBeginsWithAColonStandsInTheWorkingFolder)
{
    const WorkingFolder here(home.path());
    const EnvironmentVariable path("HV_CONTENT", u":course"_s);
    EXPECT_EQ(HVInfo::contentFolder(), QDir::currentPath() + u"/:course"_s);
}

TEST_F(HVInfoPlaces, AProgressFileMayHaveCharactersThatMeanSomethingInAnAddress)
{
    const QString name = home.path(u"100%25 of #my? notes ü.sqlite"_s);
    const EnvironmentVariable path("HV_DB_PATH", name);
    EXPECT_EQ(HVInfo::databaseURL().toLocalFile(), name);
}

TEST_F(HVInfoPlaces, AChangeOfTheEnvironmentCountsAtOnce)
{
    const QUrl usual = HVInfo::databaseURL();
    {
        const EnvironmentVariable path("HV_DB_PATH", home.path(u"first.sqlite"_s));
        EXPECT_EQ(HVInfo::databaseURL(), home.url(u"first.sqlite"_s));
    }
    EXPECT_EQ(HVInfo::databaseURL(), usual);
}

TEST_F(HVInfoPlaces, TheEnvironmentCanNameAnotherContentFolder)
{
    const EnvironmentVariable path("HV_CONTENT", home.path(u"my course"_s));
    EXPECT_EQ(HVInfo::contentFolder(), home.path(u"my course"_s));
}

TEST_F(HVInfoPlaces, ARelativeContentFolderCountsFromTheWorkingFolder)
{
    const WorkingFolder here(home.path());
    const EnvironmentVariable path("HV_CONTENT", u"my course"_s);
    EXPECT_EQ(HVInfo::contentFolder(), QDir::currentPath() + u"/my course"_s);
}

TEST_F(HVInfoPlaces, AnEmptyNameInTheEnvironmentMeansTheUsualContentFolder)
{
    const QString usual = HVInfo::contentFolder();
    const EnvironmentVariable path("HV_CONTENT", u""_s);
    EXPECT_EQ(HVInfo::contentFolder(), usual);
}

TEST_F(HVInfoInstalled, TheContentFolderStandsBesideTheExecutable)
{
    ASSERT_TRUE(QDir().mkpath(prefix + u"/bin/content"_s));
    EXPECT_EQ(contentFolder(), prefix + u"/bin/content"_s);
}

TEST_F(HVInfoInstalled, TheContentFolderBesideTheExecutableMayBeALink)
{
    ASSERT_TRUE(QDir().mkpath(home.path(u"sources/content"_s)));
    ASSERT_TRUE(QFile::link(home.path(u"sources/content"_s), prefix + u"/bin/content"_s));
    EXPECT_EQ(contentFolder(), prefix + u"/bin/content"_s);
}

TEST_F(HVInfoInstalled, TheContentFolderBesideTheExecutableComesBeforeTheOneUnderThePrefix)
{
    ASSERT_TRUE(QDir().mkpath(prefix + u"/bin/content"_s));
    ASSERT_TRUE(QDir().mkpath(prefix + u"/share/crvn-halvorin/content"_s));
    EXPECT_EQ(contentFolder(), prefix + u"/bin/content"_s);
}

TEST_F(HVInfoInstalled, ElseTheContentFolderStandsUnderThePrefix)
{
    ASSERT_TRUE(QDir().mkpath(prefix + u"/share/crvn-halvorin/content"_s));
    EXPECT_EQ(contentFolder(), prefix + u"/share/crvn-halvorin/content"_s);
}

TEST_F(HVInfoInstalled, AFileBesideTheExecutableIsNoContentFolder)
{
    writeFile(prefix + u"/bin/content"_s, "a file");
    EXPECT_EQ(contentFolder(), prefix + u"/share/crvn-halvorin/content"_s);
}

TEST_F(HVInfoInstalled, AContentFolderThatIsMissingIsNamedAllTheSame)
{
    EXPECT_EQ(contentFolder(), prefix + u"/share/crvn-halvorin/content"_s);
}

TEST_F(HVInfoInstalled, PluginsStandBesideTheExecutableOrUnderThePrefix)
{
    EXPECT_EQ(pluginFolder(), prefix + u"/lib/crvn-halvorin"_s);
    ASSERT_TRUE(QDir().mkpath(prefix + u"/bin/plugins"_s));
    EXPECT_EQ(pluginFolder(), prefix + u"/bin/plugins"_s);
}
