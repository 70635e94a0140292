#include "support/testcourse.h"

#include "content/contentlibrary.h"

#include <QDir>
#include <QFile>

#include <memory>

using namespace Qt::StringLiterals;

namespace TestCourse {

Files files()
{
    return {
        { u"course.txt"_s, R"(=== MODULE a1
title: Light
level: Beginner
summary: What a camera does with light.

=== LESSON a1-l1
module: a1
title: What a camera does
minutes: 9
gear: tripod
videos: vid-light
---
A dark box with a hole draws the world upside down.

=== LESSON a1-l2
module: a1
title: The hole
minutes: 7
gear: fast-prime
---
At f/1.4 the hole is wide, and a tripod can stay at home.

=== MODULE a2
title: Sharpness
level: Advanced
summary: What is sharp, and why.

=== LESSON a2-l1
module: a2
title: Depth of field
minutes: 11
gear: fast-prime
videos: vid-lens
---
Sharpness ends where the eye notices the blur.
)" },
        { u"quizzes.txt"_s, R"(=== QUESTION a1-q1
module: a1
q: Which opening is the widest?
wrong: f/8
right: f/1.4
wrong: f/22
why: The number divides the focal length.

=== QUESTION a1-q2
module: a1
q: Which way up is the picture in the box?
right: Upside down
wrong: Upright
wrong: Sideways
why: Light travels straight.
)" },
        { u"gear.txt"_s, R"(=== GEAR tripod
name: Tripod
category: Supports
diagram: tripod
see: fast-prime
model: Steady One | travel | 1.4 kg, four sections | https://example.com/steady | 2026-10-24
---
A tripod holds still.

It does so on three legs.

=== GEAR fast-prime
name: Fast prime
category: Lenses
diagram: fast-prime
see: tripod
---
One focal length, a wide opening.
)" },
        { u"timeline.txt"_s, R"(=== EVENT daguerre
year: 1839
date: 19 August 1839
era: Pioneers
title: The daguerreotype is given to the world
source: Proceedings | https://example.com/1839 | 2026-10-24
---
A silvered plate keeps the picture.

=== EVENT obscura
year: 1015
date: about 1015
era: Before film
title: The dark room is described
source: Book of Optics | https://example.com/1015 | 2026-10-24
---
Light enters through a hole.
)" },
        { u"videos.tsv"_s,
            "id\ttitle\tchannel\tmoduleID\ttopic\tseconds\tpublished\tchecked\n"
            "vid-light\tWhat light does\tBright Room\ta1\tLight\t600\t2020-01-02\t2026-10-24\n"
            "vid-lens\tLenses on a tripod\tBright Room\ta2\tLenses\t61\t2021-03-04\t2026-10-24\n" },
        { u"software.txt"_s, R"(=== SOFTWARE darkroom
name: Dark Room
kind: Raw editor
maker: A workshop
url: https://example.com/darkroom
platforms: Linux
---
It develops raw files.
)" },
        { u"workflows.txt"_s, R"(=== STEP load
stage: Load
film: Load the film in the shade.
digital: Format the card.

=== STEP develop
stage: Develop
film: Develop at 20 degrees.
digital: Develop the raw file.
)" },
    };
}

void write(const QString &folder, const Files &files)
{
    if (!QDir().mkpath(folder))
        qFatal("%s can't be made.", qPrintable(folder));
    for (auto [name, text] : files.asKeyValueRange()) {
        QFile file(QDir(folder).filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    }
}

void share(const QString &folder, const Files &files)
{
    write(folder, files);
    ContentLibrary::setShared(std::make_unique<const ContentLibrary>(folder));
}

} // namespace TestCourse
