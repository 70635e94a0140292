#include "support/fullcourse.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr int kModules = 14;
constexpr int kLessonsPerModule = 5;
constexpr int kQuestionsPerModule = 7;
constexpr int kGearEntries = 160;
constexpr int kEvents = 40;
constexpr int kVideos = 60;
constexpr int kPrograms = 16;
constexpr int kSteps = 10;

const QStringList kFileNames = { u"course.txt"_s, u"quizzes.txt"_s, u"gear.txt"_s,
    u"timeline.txt"_s, u"videos.tsv"_s, u"software.txt"_s, u"workflows.txt"_s };

// `count` lines as of a course: a sentence or two to a line, typographic marks among the letters.
QString paragraphs(int count)
{
    const QString paragraph
        = u"The aperture sets how much light passes at once and, with it, how deep the picture is "
          u"sharp – f/2.8 lets in twice as much as f/4. “Stopping down” means a higher f‑number.\n\n"_s;
    return paragraph.repeated(count);
}

QString courseText(int modules)
{
    QString text;
    for (int module = 0; module < modules; ++module) {
        text += u"=== MODULE m%1\ntitle: Light and the lens\nlevel: Beginner\n"
                u"summary: What a lens does, and what that means for your pictures.\n\n"_s.arg(
                    module);
        for (int lesson = 0; lesson < kLessonsPerModule; ++lesson) {
            text += u"=== LESSON m%1-l%2\nmodule: m%1\ntitle: What a camera does\nminutes: 9\n"
                    u"gear: g1, g2, g3\nvideos: v1, v2\n---\n"_s.arg(module)
                        .arg(lesson)
                + paragraphs(22);
        }
    }
    return text;
}

QString quizText(int modules)
{
    QString text;
    for (int question = 0; question < modules * kQuestionsPerModule; ++question) {
        text += u"=== QUESTION q%1\nmodule: m%2\nq: Which f-number lets in the most light?\n"
                u"wrong: f/8, since the number is higher\nright: f/2, since the opening is wider\n"
                u"wrong: f/4, since it lies between the two\nwrong: All let in the same light\n"
                u"why: The f-number divides the focal length, so a low one is a wide opening.\n\n"_s
                    .arg(question)
                    .arg(question / kQuestionsPerModule);
    }
    return text;
}

QString gearText(int entries)
{
    QString text;
    for (int entry = 0; entry < entries; ++entry) {
        text += u"=== GEAR g%1\nname: Standard zoom lens\ncategory: Lenses %2\n"
                u"diagram: lens-zoom\naka: kit lens, walk-around zoom\nsee: g1, g2\n"
                u"model: Example 24-70mm f/2.8 | The everyday lens | 82 mm filter, 0.38 m, 695 g | "
                u"https://www.example.com/lenses/24-70 | 2026-10-24\n---\n"_s.arg(entry)
                    .arg(entry / 10)
            + paragraphs(7);
    }
    return text;
}

QString timelineText(int events)
{
    QString text;
    for (int event = 0; event < events; ++event) {
        text += u"=== EVENT e%1\nyear: %2\ndate: in spring\nera: Early photography\n"
                u"title: A picture that stays\n"
                u"source: A history of pictures | https://www.example.com/history | 2026-10-24\n"
                u"---\n"_s.arg(event)
                    .arg(1800 + event * 37 % 200)
            + paragraphs(3);
    }
    return text;
}

QString videoTable(int videos)
{
    QString text = u"id\ttitle\tchannel\tmodule\ttopic\tseconds\tpublished\tchecked\n"_s;
    for (int video = 0; video < videos; ++video) {
        text += u"video-%1\tExposure in ten minutes\tA channel\tm1\tExposure, step by step\t612\t"
                u"2021-04-02\t2026-10-24\n"_s.arg(video);
    }
    return text;
}

QString softwareText(int programs)
{
    QString text;
    for (int program = 0; program < programs; ++program) {
        text += u"=== SOFTWARE s%1\nname: Example\nkind: Raw converter\nmaker: A maker\n"
                u"url: https://www.example.com\nplatforms: Linux, macOS, Windows\n---\n"_s.arg(
                    program)
            + paragraphs(3);
    }
    return text;
}

QString workflowText(int steps)
{
    QString text;
    for (int step = 0; step < steps; ++step) {
        text += u"=== STEP w%1\nstage: Develop\n"
                u"film: The film goes through developer, stop bath, fixer and water.\n"
                u"digital: The raw file is converted: white balance, exposure, contrast.\n\n"_s.arg(
                    step);
    }
    return text;
}

} // namespace

FullCourse::FullCourse(int courses)
{
    const QStringList texts = { courseText(courses * kModules), quizText(courses * kModules),
        gearText(courses * kGearEntries), timelineText(courses * kEvents),
        videoTable(courses * kVideos), softwareText(courses * kPrograms),
        workflowText(courses * kSteps) };
    for (qsizetype i = 0; i < texts.size(); ++i) {
        QFile file(m_folder.filePath(kFileNames[i]));
        const QByteArray bytes = texts[i].toUtf8();
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The course can't be written.");
        m_size += bytes.size();
    }
}

const QStringList &FullCourse::fileNames()
{
    return kFileNames;
}
