#include "screens/history/timeline.h"

#include "content/contentlibrary.h"
#include "kit/printing.h"
#include "screens/coursetesting.h"
#include "screens/history/private/eventlist.h"
#include "screens/history/private/eventreading.h"
#include "shell/appmodel.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using CourseTesting::Course;
using CourseTesting::World;

namespace {

QList<TimelineEvent> eventsOf(const QStringList &eras)
{
    QList<TimelineEvent> events;
    for (const QString &era : eras)
        events.append({ .id = QString::number(events.size()), .era = era });
    return events;
}

QStringList ids(const QList<const TimelineEvent *> &events)
{
    QStringList ids;
    for (const TimelineEvent *event : events)
        ids.append(event->id);
    return ids;
}

QString opened(const std::optional<QString> &id, const QList<TimelineEvent> &events)
{
    const TimelineEvent *event = Timeline::open(id, events);
    return event ? event->id : u"nothing"_s;
}

QVariant value(const QAbstractListModel &list, int row, const char *role)
{
    return list.data(list.index(row), list.roleNames().key(role, -1));
}

} // namespace

TEST(Timeline, OrdersErasByHistory)
{
    EXPECT_EQ(Timeline::eras(eventsOf({ u"The digital era"_s, u"The last film cameras"_s,
                  u"Automation"_s, u"The 35 mm age"_s, u"Film arrives"_s, u"Pioneers"_s })),
        (QStringList{ u"Pioneers"_s, u"Film arrives"_s, u"The 35 mm age"_s, u"Automation"_s,
            u"The last film cameras"_s, u"The digital era"_s }));
}

TEST(Timeline, PutsUnknownErasBehindInTheOrderOfTheirAppearance)
{
    EXPECT_EQ(
        Timeline::eras(eventsOf({ u"Zinc"_s, u"Digital"_s, u"The digital era"_s, u"pioneers"_s })),
        (QStringList{ u"The digital era"_s, u"Zinc"_s, u"Digital"_s, u"pioneers"_s }));
}

TEST(Timeline, GathersTheEventsOfAnEra)
{
    const QList<TimelineEvent> events
        = eventsOf({ u"The digital era"_s, u"Pioneers"_s, u"Automation"_s, u"Pioneers"_s });
    EXPECT_EQ(ids(Timeline::byEra(events)), (QStringList{ u"1"_s, u"3"_s, u"2"_s, u"0"_s }));
}

TEST(Timeline, OpensTheFirstEventForWantOfTheChosen)
{
    const QList<TimelineEvent> events = eventsOf({ u"Automation"_s, u"Pioneers"_s });
    EXPECT_EQ(opened({}, events), u"0"_s);
    EXPECT_EQ(opened(u"1"_s, events), u"1"_s);
    EXPECT_EQ(opened(u"gone"_s, events), u"0"_s);
    EXPECT_EQ(opened(u"gone"_s, {}), u"nothing"_s);
    EXPECT_EQ(opened({}, {}), u"nothing"_s);
    EXPECT_TRUE(Timeline::eras({}).isEmpty());
}

TEST(EventListTest, MarksTheChosenEventAlone)
{
    const World world(Course::Library);
    EventList list;
    const QAbstractItemModelTester tester(&list);
    ASSERT_EQ(list.count(), 4);
    QStringList order;
    for (int row = 0; row < 4; ++row) {
        order.append(value(list, row, "eventID").toString());
        EXPECT_EQ(value(list, row, "selected"), false);
    }
    EXPECT_EQ(order, (QStringList{ u"obscura"_s, u"daguerre"_s, u"digital"_s, u"later"_s }));
    EXPECT_EQ(value(list, 0, "year"), u"1015"_s);
    EXPECT_EQ(list.selectedRow(), -1);

    list.open(2);
    EXPECT_EQ(AppModel::shared().eventID(), u"digital"_s);
    EXPECT_EQ(list.selectedRow(), 2);
    EXPECT_EQ(value(list, 2, "selected"), true);
    list.open(4);
    list.open(-1);
    EXPECT_EQ(AppModel::shared().eventID(), u"digital"_s);
    AppModel::shared().setEventID(u"gone"_s);
    EXPECT_EQ(list.selectedRow(), -1);
}

TEST(EventReadingTest, FollowsTheChoice)
{
    const World world(Course::Library);
    EventReading page;
    EXPECT_EQ(page.eventID(), u"obscura"_s); // events are sorted by their years
    ASSERT_EQ(page.sources()->count(), 2);
    EXPECT_EQ(value(*page.sources(), 0, "host"), u"books.example.org"_s);
    EXPECT_EQ(value(*page.sources(), 0, "checked"), u"checked 2026-10-24"_s);
    EXPECT_EQ(value(*page.sources(), 1, "host"), QString());
    AppModel::shared().setEventID(u"daguerre"_s);
    EXPECT_EQ(page.dateText(), u"19 August 1839"_s);
    EXPECT_EQ(page.sources()->count(), 0);

    page.toggleBookmark();
    EXPECT_TRUE(page.isBookmarked());
    EXPECT_TRUE(UserStore::shared()->isBookmarked(u"history"_s, u"daguerre"_s));
    page.addNote();
    EXPECT_EQ(AppModel::shared().noteDraft()->targetID, u"daguerre"_s);
}

TEST(EventReadingTest, IsEmptyWithoutEvents)
{
    const World world(Course::Empty);
    EventReading page;
    EXPECT_FALSE(page.exists());
    EXPECT_EQ(page.title(), QString());
    page.toggleBookmark();
    page.addNote();
    EXPECT_FALSE(page.isBookmarked());
    EXPECT_FALSE(AppModel::shared().noteDraft());
    EXPECT_EQ(UserStore::shared()->bookmarks().size(), 0);
}

TEST(EventReadingTest, HasNoBookmarkWithoutAStore)
{
    const World world(Course::Library, World::Store::None);
    EventReading page;
    page.toggleBookmark();
    EXPECT_FALSE(page.isBookmarked());
}
