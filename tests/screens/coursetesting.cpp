#include "screens/coursetesting.h"

#include "kit/preferences.h"
#include "kit/themes.h"
#include "kit/zoom.h"
#include "shell/appmodel.h"
#include "store/userstore.h"
#include "store/watcheddisk.h"
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

constexpr auto kFilms
    = "id\ttitle\tchannel\tmodule\ttopic\tseconds\tpublished\tchecked\n"
      "shutters_01\tShutters\tThe Bench\ttime\ttime\t725\t2020-01-02\t2026-10-24\n"
      "abcdefghijk\tPinhole\tThe Bench\tlight\tlight\t60\t2021-03-04\t2026-10-24\n"
      "nobodysfilm\tNobody's film\tStray\tgone\tstray\t61\t2022-05-06\t2026-10-24\n"
      "nopinhole_2\tPinhole for two\tBright & "
      "<b>Room</b>\tlight\tlight\t3665\t2023-07-08\t2026-10-24\n";

constexpr auto kBareCourse = R"(=== MODULE alone
title: The only one
level: Professional
summary: Without a lesson.
)";

constexpr auto kTimeline = R"(=== EVENT digital
year: 1991
date: May 1991
era: The digital era
title: A camera without film
---
It weighed five kilograms.

=== EVENT obscura
year: 1015
date: about 1015
era: Pioneers
title: The dark room
source: An old book | https://books.example.org/obscura | 2026-10-24
source: A rumor | not an address |
---
A hole sorts the light.

=== EVENT later
year: 2000
era: Digital
title: Everybody has one

=== EVENT daguerre
year: 1839
date: 19 August 1839
era: Pioneers
title: The mirror with a memory
---
Silver and patience.
)";

constexpr auto kSoftware = R"(=== SOFTWARE darkroom
name: Darkroom
kind: Raw editor
maker: The Bench
url: https://darkroom.example.org/download
platforms: Linux, macOS
---
Develops.

=== SOFTWARE archive
name: Archive
kind: Catalog
maker: Nobody
platforms: Windows
---
Keeps.

=== SOFTWARE lightbox
name: Lightbox
kind: Raw editor
maker: The Bench
url: file:///etc/passwd
platforms: Linux
---
Shows.
)";

constexpr auto kWorkflow = R"(=== STEP load
stage: Load
film: Put a roll in.
digital: Put a card in.

=== STEP develop
stage: Develop
film: In a tank.
digital: On a desk.
)";

QByteArray oddGear()
{
    QByteArray text = R"(=== GEAR tripod
name: Tripod
category: Supports
diagram: tripod
aka: three legs
see: monopod, gone, fast-prime
model: Stout 3 | for wind | 1.9 kg, carries 12 kg | https://www.stout.example.com/3?a=1 | 2026-10-24
model: Feather | for walking | 0.9 kg | |
---
Three legs stand anywhere.

=== GEAR monopod
name: Monopod
category: Supports
diagram: monopod
---
One leg, where a tripod has no room.

=== GEAR fast-prime
name: Fast prime lens
category: Lenses
diagram: prime
see: gone
model: Nifty | for dusk | f/1.8 | not an address | 2026-10-24
---
Gathers light.

=== GEAR bare
name: Bare thing
category: Odd

=== GEAR crowded
name: Crowded
category: Odd
diagram: sensor
)";
    for (int i = 0; i < 100; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "model: Product " + number + " | use " + number + " | specs " + number
            + " | https://example.com/" + number + " | 2026-10-24\n";
    }
    text += "---\nMany.\n\n=== GEAR long\ncategory: Odd\ndiagram: backpack\nname: "
        + QByteArray("Unendinglylongword ").repeated(27).left(500)
        + "\n---\nLong.\n\n=== GEAR arabic\ncategory: Odd\ndiagram: clamp\nname: حامل ثلاثي "
          "القوائم\n"
          "aka: حامل\nmodel: حامل ١ | للريح | ١٫٩ كغ | https://example.com/a | 2026-10-24\n"
          "---\nثلاث أرجل.\n\n=== GEAR accents\ncategory: Odd\ndiagram: loupe\n"
          "name: Ĺ̇̃̂̄̈o̊̂̄̈̀u̇̃̂̄̈́p̂̄̈̀e̊̂̄̈̀\n---\nMärked.\n";
    return text;
}

TestCourse::Files filesOf(CourseTesting::Course course)
{
    switch (course) {
    case CourseTesting::Course::Small:
        return { { u"course.txt"_s, kCourse }, { u"quizzes.txt"_s, kQuizzes },
            { u"gear.txt"_s, kGear }, { u"videos.tsv"_s, kVideos } };
    case CourseTesting::Course::Library:
        return { { u"gear.txt"_s, oddGear() }, { u"timeline.txt"_s, kTimeline },
            { u"software.txt"_s, kSoftware }, { u"workflows.txt"_s, kWorkflow } };
    case CourseTesting::Course::Films:
        return { { u"course.txt"_s, kCourse }, { u"videos.tsv"_s, kFilms } };
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

bool g_diskIsFull = false;

// For good: the index of a course is a database too, and stays with the process.
void watchDisk()
{
    static const WatchedDisk disk([](const DiskOperation &operation) {
        return g_diskIsFull && operation.kind == DiskOperation::Write ? SQLITE_FULL : SQLITE_OK;
    });
    g_diskIsFull = false;
}

} // namespace

namespace CourseTesting {

World::World(Course course, Store store)
{
    resetPreferences();
    watchDisk();
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

void World::fillDisk()
{
    g_diskIsFull = true;
}

QStringList lessonIDs()
{
    return { u"l1"_s, u"l2"_s, u"l3"_s, u"stray"_s };
}

} // namespace CourseTesting
