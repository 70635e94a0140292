#include "screens/gear/gearshelf.h"

#include "content/contentlibrary.h"
#include "kit/printing.h"
#include "screens/coursetesting.h"
#include "screens/gear/private/gearcategories.h"
#include "screens/gear/private/gearlist.h"
#include "screens/gear/private/gearreading.h"
#include "shell/appmodel.h"
#include "shell/info.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

namespace {

class Shelf : public ::testing::Test
{
protected:
    [[nodiscard]] static QStringList shown(
        const QString &query, const QString &category = GearShelf::allCategories)
    {
        QStringList ids;
        for (const GearEntry *entry : GearShelf::shown(query, category, ContentLibrary::shared()))
            ids.append(entry->id);
        return ids;
    }
    [[nodiscard]] static QString open(
        const std::optional<QString> &gearID, const QString &query = {})
    {
        const ContentLibrary &library = ContentLibrary::shared();
        const GearEntry *entry = GearShelf::open(
            gearID, GearShelf::shown(query, GearShelf::allCategories, library), library);
        return entry ? entry->id : u"nothing"_s;
    }
    [[nodiscard]] static QVariant value(const QAbstractListModel &list, int row, const char *role)
    {
        return list.data(list.index(row), list.roleNames().key(role, -1));
    }

    World world{ Course::Library };
    AppModel &model = AppModel::shared();
};

} // namespace

TEST_F(Shelf, ShowsEverythingInTheCoursesOrder)
{
    const QStringList all{ u"tripod"_s, u"monopod"_s, u"fast-prime"_s, u"bare"_s, u"crowded"_s,
        u"long"_s, u"arabic"_s, u"accents"_s };
    EXPECT_EQ(shown({}), all);
    EXPECT_EQ(shown(u" \t "_s), all);
    EXPECT_EQ(shown(u"\u00a0\u3000"_s), all);
}

TEST_F(Shelf, ShowsHitsBestFirst)
{
    EXPECT_EQ(shown(u"tripod"_s), (QStringList{ u"tripod"_s, u"monopod"_s }));
    EXPECT_EQ(shown(u"  tripod\t"_s), (QStringList{ u"tripod"_s, u"monopod"_s }));
    EXPECT_EQ(shown(u"zeppelin"_s), QStringList());
}

TEST_F(Shelf, KeepsTheCategoryWhileItIsSearched)
{
    EXPECT_EQ(shown({}, u"Lenses"_s), QStringList{ u"fast-prime"_s });
    EXPECT_EQ(shown(u"tripod"_s, u"Lenses"_s), QStringList());
    EXPECT_EQ(shown(u"tripod"_s, u"Supports"_s).size(), 2);
    EXPECT_EQ(shown({}, u"lenses"_s), QStringList());
}

TEST_F(Shelf, OpensTheFirstWithoutAChoice)
{
    EXPECT_EQ(open({}), u"tripod"_s);
    EXPECT_EQ(open({}, u"prime"_s), u"fast-prime"_s);
    EXPECT_EQ(open({}, u"zeppelin"_s), u"nothing"_s);
}

TEST_F(Shelf, KeepsAChoiceThatTheListHides)
{
    EXPECT_EQ(open(u"monopod"_s, u"prime"_s), u"monopod"_s);
    EXPECT_EQ(open(u"monopod"_s, u"zeppelin"_s), u"monopod"_s);
}

TEST_F(Shelf, OpensNothingForAnUnknownChoice)
{
    EXPECT_EQ(open(u"gone"_s), u"nothing"_s);
    EXPECT_EQ(open(QString()), u"nothing"_s);
}

TEST(GearShelf, CountsMatches)
{
    EXPECT_EQ(GearShelf::matches(0), u"0 matches"_s);
    EXPECT_EQ(GearShelf::matches(1), u"1 match"_s);
    EXPECT_EQ(GearShelf::matches(2), u"2 matches"_s);
    EXPECT_EQ(GearShelf::matches(1000), u"1000 matches"_s);
}

TEST(GearShelf, SaysNothingOfWhatIsntThere)
{
    EXPECT_EQ(GearShelf::alsoCalled({}), QString());
    EXPECT_EQ(GearShelf::alsoCalled({ .aka = u"legs, %1"_s }), u"Also called: legs, %1"_s);
    EXPECT_EQ(GearShelf::checkedLine({}), QString());
    EXPECT_EQ(
        GearShelf::checkedLine(u"2026-10-24"_s), u"Specs checked 2026-10-24 on the maker's page"_s);
}

TEST_F(Shelf, ListFollowsQueryCategoryAndChoice)
{
    GearList list;
    const QAbstractItemModelTester tester(&list);
    EXPECT_EQ(list.count(), 8);
    EXPECT_FALSE(list.isSearching());
    EXPECT_EQ(list.outcome(), QString());
    EXPECT_EQ(list.openID(), u"tripod"_s);
    EXPECT_EQ(list.selectedRow(), -1);
    EXPECT_EQ(value(list, 0, "exampleCount"), 2);

    model.setGearQuery(u"prime"_s);
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(list.outcome(), u"1 match"_s);

    list.setCategory(u"Supports"_s);
    EXPECT_EQ(list.outcome(), u"0 matches"_s);
    EXPECT_EQ(list.openID(), QString());

    model.setGearQuery({});
    EXPECT_EQ(list.count(), 2);
    list.open(1);
    EXPECT_EQ(model.gearID(), u"monopod"_s);
    EXPECT_EQ(list.selectedRow(), 1);
    EXPECT_EQ(value(list, 0, "selected"), false);
    EXPECT_EQ(value(list, 1, "selected"), true);
    list.open(2);
    list.open(-1);
    EXPECT_EQ(model.gearID(), u"monopod"_s);
}

TEST_F(Shelf, ListOfBlanksTellsACountOfEverything)
{
    GearList list;
    model.setGearQuery(u"  "_s);
    EXPECT_TRUE(list.isSearching());
    EXPECT_EQ(list.outcome(), u"8 matches"_s);
}

TEST_F(Shelf, ListKeepsItsPlaceWhileItsRowsStayTheSame)
{
    GearList list;
    const QSignalSpy resets(&list, &QAbstractItemModel::modelReset);
    model.setGearQuery(u" "_s);
    model.setGearID(u"bare"_s);
    EXPECT_EQ(resets.size(), 0);
    model.setGearQuery(u"prime"_s);
    EXPECT_EQ(resets.size(), 1);
}

TEST_F(Shelf, CategoriesBeginWithAll)
{
    const GearCategories categories;
    EXPECT_EQ(categories.count(), 4);
    EXPECT_EQ(value(categories, 0, "optionID"), u"All"_s);
    EXPECT_EQ(value(categories, 0, "title"), u"All (8)"_s);
    EXPECT_EQ(value(categories, 2, "optionID"), u"Lenses"_s);
    EXPECT_EQ(value(categories, 2, "title"), u"Lenses"_s);
}

TEST_F(Shelf, PageTellsAllOfAnEntry)
{
    GearReading page;
    page.setEntryID(u"tripod"_s);
    EXPECT_EQ(page.name(), u"Tripod"_s);
    EXPECT_EQ(page.category(), u"Supports"_s);
    EXPECT_EQ(page.alsoCalled(), u"Also called: three legs"_s);
    EXPECT_EQ(page.diagram(), u"tripod"_s);
    EXPECT_EQ(page.body(), u"Three legs stand anywhere."_s);
    EXPECT_EQ(page.specsNote(), HVInfo::specsNote);
    ASSERT_EQ(page.examples()->count(), 2);
    EXPECT_EQ(value(*page.examples(), 0, "host"), u"www.stout.example.com"_s);
    EXPECT_EQ(value(*page.examples(), 1, "address"), QString());
    EXPECT_EQ(value(*page.examples(), 1, "checked"), QString());
    ASSERT_EQ(page.seeAlso()->count(), 2); // the third is gone
    EXPECT_EQ(value(*page.seeAlso(), 0, "title"), u"Monopod"_s);
}

TEST_F(Shelf, PageOfAnUnknownEntryIsEmpty)
{
    GearReading page;
    page.setEntryID(u"tripod"_s);
    page.setEntryID(u"gone"_s);
    EXPECT_EQ(page.name(), QString());
    EXPECT_EQ(page.examples()->count(), 0);
    EXPECT_EQ(page.seeAlso()->count(), 0);
    EXPECT_FALSE(page.isBookmarked());
}

TEST_F(Shelf, PageTogglesItsBookmarkAndBeginsANote)
{
    GearReading page;
    page.setEntryID(u"tripod"_s);
    const QSignalSpy changes(&page, &GearReading::marksChanged);
    page.toggleBookmark();
    EXPECT_TRUE(page.isBookmarked());
    EXPECT_EQ(changes.size(), 1);
    page.toggleBookmark();
    EXPECT_FALSE(page.isBookmarked());
    page.addNote();
    ASSERT_TRUE(model.noteDraft());
    EXPECT_EQ(model.noteDraft()->targetType, u"gear"_s);
    EXPECT_EQ(model.noteDraft()->targetID, u"tripod"_s);
}
