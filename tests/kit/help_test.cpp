#include "kit/help.h"

#include "kit/kit.h"
#include "kit/printing.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using CRVNHelp::Block;

namespace {

const QList<CRVNHelpTopic> kTopics = {
    { u"feet"_s, u"Standing still"_s, u"A tripod holds the camera.\nLegs first."_s,
        { u"support"_s, u"f/1.4"_s } },
    { u"glass"_s, u"Lenses"_s, u"A zoom changes its angle; on a tripod it stays put."_s, {} },
    { u"past"_s, u"History"_s, u"Niépce waited for hours."_s, { u"dates"_s } },
    { u"thanks"_s, u"Credits and lenses"_s, u"Names of those who helped."_s, {} },
};

QStringList idsOf(const QList<CRVNHelpTopic> &topics)
{
    QStringList ids;
    for (const CRVNHelpTopic &topic : topics)
        ids.append(topic.id);
    return ids;
}

QStringList found(const QString &query)
{
    return idsOf(CRVNHelp::search(query));
}

class Help : public ::testing::Test
{
protected:
    Help() { install(kTopics); }
    ~Help() override
    {
        CRVNHelp::setOpener({});
        CRVNKit::install({});
    }

    static void install(const QList<CRVNHelpTopic> &topics)
    {
        CRVNKit::install({ .name = u"A Program"_s,
            .website = QUrl(u"https://maker.example"_s),
            .helpTopics = [topics] { return topics; } });
    }

    const QStringList everything{ u"feet"_s, u"glass"_s, u"past"_s, u"thanks"_s, u"look"_s,
        u"about"_s };
};

} // namespace

// Topics

TEST_F(Help, HasTheApplicationsTopicsAndThenItsOwnTwo)
{
    EXPECT_EQ(idsOf(CRVNHelp::allTopics()), everything);
}

TEST_F(Help, HasItsOwnTopicsOnceHoweverOftenTheApplicationIsInstalled)
{
    install(kTopics);
    install(kTopics);
    EXPECT_EQ(idsOf(CRVNHelp::allTopics()), everything);
}

TEST_F(Help, LeavesItsOwnTopicsOutWhereTheApplicationHasThem)
{
    const CRVNHelpTopic look{ u"look"_s, u"How it looks"_s, u"Splendid."_s, {} };
    const CRVNHelpTopic about{ u"about"_s, u"About us"_s, u"We did it."_s, {} };
    install({ about, look, kTopics[0] });
    EXPECT_EQ(CRVNHelp::allTopics(), (QList{ about, look, kTopics[0] }));
}

TEST_F(Help, HasItsOwnTopicsEvenWithoutAnApplication)
{
    CRVNKit::install({});
    EXPECT_EQ(CRVNHelp::topics(), QList<CRVNHelpTopic>());
    EXPECT_EQ(idsOf(CRVNHelp::allTopics()), (QStringList{ u"look"_s, u"about"_s }));
}

TEST_F(Help, AsksForTheTopicsAnewAtEachUse)
{
    QString title = u"First"_s;
    CRVNHelp::setTopics([&title] { return QList{ CRVNHelpTopic{ u"a"_s, title, {}, {} } }; });
    EXPECT_EQ(CRVNHelp::allTopics().first().title, u"First"_s);
    title = u"Second"_s;
    EXPECT_EQ(CRVNHelp::allTopics().first().title, u"Second"_s);
}

TEST_F(Help, NamesTheKitsOwnThemesAndTheLimitsOfTheZoom)
{
    const CRVNHelpTopic look = CRVNHelp::lookTopic();
    EXPECT_EQ(look.title, u"Themes and interface zoom"_s);
    EXPECT_EQ(look.keywords,
        (QStringList{ u"color"_s, u"colour"_s, u"theme"_s, u"zoom"_s, u"bigger"_s, u"smaller"_s,
            u"text size"_s, u"font size"_s, u"dark"_s }));
    EXPECT_TRUE(look.body.contains(
        u"Choose a color theme from the Theme menu: Cobalt Gunmetal, Candy Red Titanium, Rose "
        "Gold, Lavender Pearl, Midnight Black or Brushed Gray. Some apps add more."_s))
        << qPrintable(look.body);
    EXPECT_TRUE(look.body.contains(u"Make everything bigger or smaller, from 85% to 200%:"_s));
    for (const QString &entry : { u"Zoom In"_s, u"Zoom Out"_s, u"Actual Size (100%)"_s })
        EXPECT_TRUE(look.body.contains(u"\n• View → "_s + entry)) << qPrintable(entry);
}

TEST_F(Help, TellsWhoMadeTheApplicationAndWhere)
{
    EXPECT_EQ(CRVNHelp::aboutTopic(),
        (CRVNHelpTopic{ u"about"_s, u"About Corvane"_s,
            u"A Program is made by Corvane (CRVN).\n\n"
            "Website, updates and support: https://maker.example"_s,
            {} }));
}

TEST_F(Help, FindsATopicByItsIdAndElseGivesTheFirst)
{
    EXPECT_EQ(CRVNHelp::topic(u"past"_s).id, u"past"_s);
    EXPECT_EQ(CRVNHelp::topic(u"no-such-topic"_s).id, u"feet"_s);
    EXPECT_EQ(CRVNHelp::topic({}).id, u"feet"_s);
}

// Search

TEST_F(Help, FindsEverythingForAQueryWithoutWords)
{
    for (const QString &query : { u""_s, u"   "_s, u"\t\n"_s })
        EXPECT_EQ(found(query), everything);
}

TEST_F(Help, FindsWordsInTitleTextAndKeywords)
{
    EXPECT_EQ(found(u"standing"_s), QStringList(u"feet"_s));
    EXPECT_EQ(found(u"angle"_s), QStringList(u"glass"_s));
    EXPECT_EQ(found(u"support"_s), (QStringList{ u"feet"_s, u"about"_s }));
    EXPECT_EQ(found(u"f/1.4"_s), QStringList(u"feet"_s));
}

TEST_F(Help, FindsAPieceInsideALongerWord)
{
    EXPECT_EQ(found(u"ripo"_s), (QStringList{ u"feet"_s, u"glass"_s }));
}

TEST_F(Help, AsksForEveryWordInOneTopic)
{
    EXPECT_EQ(found(u"tripod zoom"_s), QStringList(u"glass"_s));
    EXPECT_EQ(found(u" zoom\ttripod "_s), QStringList(u"glass"_s));
    EXPECT_EQ(found(u"tripod zoom legs"_s), QStringList());
}

TEST_F(Help, FindsNothingAcrossTheEndOfAField)
{
    // "still" ends the title of a topic whose text begins with "A tripod".
    EXPECT_EQ(found(u"stilla"_s), QStringList());
}

TEST_F(Help, MakesNothingOfCase)
{
    EXPECT_EQ(found(u"COLOUR"_s), QStringList(u"look"_s));
    EXPECT_EQ(found(u"TriPod"_s), (QStringList{ u"feet"_s, u"glass"_s }));
}

TEST_F(Help, MakesNothingOfDiacriticsOnEitherSide)
{
    const QString decomposed = u"nie\u0301pce"_s;
    for (const QString &query : { u"niepce"_s, u"Niépce"_s, u"NIÉPCE"_s, decomposed })
        EXPECT_EQ(found(query), QStringList(u"past"_s)) << qPrintable(query);
    EXPECT_EQ(found(u"hoürs"_s), QStringList(u"past"_s));
}

TEST_F(Help, SearchesAlikeUnderEveryLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Turkish));
    EXPECT_EQ(found(u"HISTORY"_s), QStringList(u"past"_s));
    EXPECT_EQ(found(u"TRIPOD"_s), (QStringList{ u"feet"_s, u"glass"_s }));
    QLocale::setDefault(before);
}

TEST_F(Help, PutsTopicsWithAWordInTheirTitleFirst)
{
    // "glass" and "thanks" have the word in their titles, the others in their texts alone.
    install({ { u"text-1"_s, u"One"_s, u"lenses"_s, {} }, kTopics[1],
        { u"text-2"_s, u"Two"_s, u"lenses"_s, {} }, kTopics[3] });
    EXPECT_EQ(
        found(u"lenses"_s), (QStringList{ u"glass"_s, u"thanks"_s, u"text-1"_s, u"text-2"_s }));
}

TEST_F(Help, CountsATitleForAnyWordOfTheQuery)
{
    // All words are in both texts; one of them is in a title.
    install({ { u"a"_s, u"Plain"_s, u"red green"_s, {} }, { u"b"_s, u"Green"_s, u"red"_s, {} } });
    EXPECT_EQ(found(u"red green"_s), (QStringList{ u"b"_s, u"a"_s }));
}

TEST_F(Help, TakesALongQueryAsItComes)
{
    EXPECT_EQ(found(QString(10'000, u'x')), QStringList());
    EXPECT_EQ(found(u"tripod "_s.repeated(1'429)), (QStringList{ u"feet"_s, u"glass"_s }));
    EXPECT_EQ(found(QString(10'000, u' ')), everything);
    EXPECT_EQ(found(u"% . * ( \\ \" "_s.repeated(800)), QStringList());
}

// Opening

TEST_F(Help, OpensAtTheTopicThatIsAskedFor)
{
    CRVNHelp::show(u"past"_s); // no window yet

    QStringList opened;
    CRVNHelp::setOpener(
        [&opened](const std::optional<QString> &id) { opened.append(id.value_or(u"none"_s)); });
    CRVNHelp::show(u"past"_s);
    CRVNHelp::show();
    EXPECT_EQ(opened, (QStringList{ u"past"_s, u"none"_s }));
}

TEST_F(Help, OpensFromAnyScreen)
{
    QStringList opened;
    CRVNHelp::setOpener(
        [&opened](const std::optional<QString> &id) { opened.append(id.value_or(u"none"_s)); });
    CRVNKitHost::showHelp(u"glass"_s);
    EXPECT_EQ(opened, QStringList(u"glass"_s));
}

TEST_F(Help, OpensWhereTheHostSaysForScreens)
{
    QString asked;
    CRVNKitHost::setShowHelp([&asked](const QString &id) { asked = id; });
    CRVNKitHost::showHelp(u"glass"_s);
    CRVNKitHost::setShowHelp([](const QString &id) { CRVNHelp::show(id); });
    EXPECT_EQ(asked, u"glass"_s);
}

// Marks in the text

TEST_F(Help, SplitsATextIntoHeadingsBulletsAndParagraphs)
{
    using enum Block::Kind;
    EXPECT_EQ(CRVNHelp::blocks(u"First.\nSecond.\n\n## A head\n• one\n• two\n\n\nLast."_s),
        (QList<Block>{ { Paragraph, u"First."_s }, { Paragraph, u"Second."_s },
            { Heading, u"A head"_s }, { Bullet, u"one"_s }, { Bullet, u"two"_s },
            { Paragraph, u"Last."_s } }));
}

TEST_F(Help, TakesAMarkOnlyWithItsBlank)
{
    using enum Block::Kind;
    EXPECT_EQ(CRVNHelp::blocks(u"##x\n•x\n## \n• "_s),
        (QList<Block>{ { Paragraph, u"##x"_s }, { Paragraph, u"•x"_s }, { Heading, u""_s },
            { Bullet, u""_s } }));
}

TEST_F(Help, TakesEverythingElseAsItStands)
{
    using enum Block::Kind;
    for (const QString &line : { u"<b>bold</b> & *stars* %1"_s, u"> a quotation"_s, u" ## x"_s,
             u"  "_s, u"# x"_s, u"### x"_s })
        EXPECT_EQ(CRVNHelp::blocks(line), (QList<Block>{ { Paragraph, line } }));
}

TEST_F(Help, MakesNoBlockOfNothing)
{
    EXPECT_EQ(CRVNHelp::blocks(u""_s), QList<Block>());
    EXPECT_EQ(CRVNHelp::blocks(u"\n\n"_s), QList<Block>());
}
