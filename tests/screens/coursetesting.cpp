#include "screens/coursetesting.h"

#include "kit/preferences.h"
#include "kit/themes.h"
#include "kit/zoom.h"
#include "shell/appmodel.h"
#include "store/userstore.h"
#include "support/testcourse.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kCourse = R"(=== MODULE light
title: Light and the camera
level: Beginner
summary: What happens between the scene and the file.

=== MODULE time
title: Time
level: Advanced
summary: How long the shutter stays open.

=== MODULE later
title: Chapters to come

=== LESSON l1
module: light
title: A hole in the dark
minutes: 7
gear: tripod, no-such-thing
videos: abcdefghijk, no-such-film
---
## A hole sorts the light

Hold a card with a pinhole in front of the wall.

• the hole is small
• the picture is dim

> Never look into the sun.

It stands on its head.

=== LESSON l2
module: light
title: A lens in the hole
minutes: 5
gear: no-such-thing, nor-this
videos: no-such-film
---
Glass bends the light.

=== LESSON l3
module: time
title: The shutter
minutes: 12
---
It opens and it closes.

=== LESSON stray
module: gone
title: A lesson without a module
---
Nobody's lesson.
)";

constexpr auto kQuizzes = R"(=== QUESTION q1
module: light
q: What sorts the light?
right: The hole
wrong: The wall
why: One ray for each point gets through.

=== QUESTION q2
module: light
q: How does the picture stand?
right: On its head
wrong: On its feet
why: Rays cross in the hole.
)";

constexpr auto kGear = R"(=== GEAR tripod
name: Tripod
category: Support
---
Three legs.
)";

constexpr auto kVideos = "id\ttitle\tchannel\tmodule\ttopic\tseconds\tpublished\tchecked\n"
                         "abcdefghijk\tPinhole\tThe Bench\tlight\tlight\t60\t2020\t2026-10-24\n";

constexpr auto kBareCourse = R"(=== MODULE alone
title: The only one
level: Professional
summary: Without a lesson.
)";

TestCourse::Files filesOf(CourseTesting::Course course)
{
    switch (course) {
    case CourseTesting::Course::Small:
        return { { u"course.txt"_s, kCourse }, { u"quizzes.txt"_s, kQuizzes },
            { u"gear.txt"_s, kGear }, { u"videos.tsv"_s, kVideos } };
    case CourseTesting::Course::Bare:
        return { { u"course.txt"_s, kBareCourse } };
    case CourseTesting::Course::Empty:
        return {};
    }
    Q_UNREACHABLE();
}

// Choices of an earlier test, taken back so that whatever follows them hears of it.
void resetPreferences()
{
    [[maybe_unused]] static const bool inMemory = [] {
        Preferences::shared().keepInMemory();
        return true;
    }();
    Preferences::shared().remove(CRVNThemes::key);
    Preferences::shared().remove(CNZoom::key);
}

void resetModel()
{
    AppModel &model = AppModel::shared();
    model.setScreen(Screen::Home);
    model.setModuleID({});
    model.setLessonID({});
    model.setQuizModuleID({});
    model.setGearID({});
    model.setEventID({});
    model.setVideoID({});
    model.setSoftwareID({});
    model.setGearQuery({});
    model.setGlobalQuery({});
    model.setNoteDraft({});
    model.setMessage({});
    model.setSim({});
    model.setSavePanel({});
}

} // namespace

namespace CourseTesting {

World::World(Course course, Store store)
{
    resetPreferences();
    TestCourse::share(m_folder.path(), filesOf(course));
    UserStore::setShared(store == Store::Fresh
            ? std::make_unique<UserStore>(QUrl::fromLocalFile(progressPath()))
            : nullptr);
    resetModel();
}

World::~World()
{
    resetModel();
    UserStore::setShared(nullptr);
}

QString World::progressPath() const
{
    return m_folder.filePath(u"Progress.sqlite"_s);
}

void World::refuseWrites(const QString &reason)
{
    SQLiteDB file(progressPath());
    for (const auto table : { "progress"_L1, "bookmarks"_L1, "notes"_L1, "quiz_results"_L1 }) {
        for (const auto change : { "INSERT"_L1, "UPDATE"_L1, "DELETE"_L1 }) {
            file.exec(u"CREATE TRIGGER refuse_%1_%2 BEFORE %2 ON %1 "
                      "BEGIN SELECT RAISE(ABORT, '%3'); END"_s.arg(table, change, reason));
        }
    }
}

QStringList lessonIDs()
{
    return { u"l1"_s, u"l2"_s, u"l3"_s, u"stray"_s };
}

} // namespace CourseTesting
