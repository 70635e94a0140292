#include "content/contentlibrary.h"
#include "content/text.h"
#include "diagrams/diagramkind.h"
#include "selfcheck/selftest/groups.h"
#include "shell/help/helptopics.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kProblemsTold = 12;

// What a course must hold at least.
constexpr qsizetype kModules = 12;
constexpr qsizetype kLessons = 60;
constexpr qsizetype kLessonText = 400; // characters
constexpr qsizetype kQuestionsOfAModule = 5;
constexpr qsizetype kOptions = 3;
constexpr qsizetype kGear = 150;
constexpr qsizetype kModels = 60;
constexpr qsizetype kEvents = 25;
constexpr qsizetype kVideos = 40;
constexpr qsizetype kSoftware = 10;
constexpr qsizetype kSteps = 8;

bool hasOneRightAnswer(const Question &question)
{
    return question.correct >= 0 && question.correct < question.options.size()
        && question.options.size() >= kOptions;
}

bool isTraceable(const GearModel &model)
{
    return model.url.startsWith("https://"_L1) && model.checked.startsWith("2026-"_L1);
}

QString textOfFNumberLessons(const ContentLibrary &course)
{
    QStringList bodies;
    for (const Lesson &lesson : course.lessons()) {
        const QString title = lesson.title.toLower();
        if (title.contains("f/1.4"_L1) || title.contains("f-number"_L1))
            bodies.append(lesson.body);
    }
    return bodies.join(u'\n').toLower();
}

// The maker's name never stands without what tells it from other names.
bool namesTheMakerInFullOnly(const ContentLibrary &course)
{
    QStringList texts;
    for (const Lesson &lesson : course.lessons())
        texts.append(lesson.body);
    for (const GearEntry &entry : course.gear())
        texts.append(entry.body);
    for (const CRVNHelpTopic &topic : HVHelp::topics(course))
        texts << topic.title << topic.body;
    return !texts.join(u'\n').remove("Corvane (CRVN)"_L1).contains("Corvane"_L1);
}

} // namespace

void HVSelfTest::contentTests(HVTestRun &run)
{
    using std::ranges::all_of;
    const ContentLibrary &course = ContentLibrary::shared();

    run.begin(u"Course content: everything loads, every quiz has one right answer, every entry has "
              "a diagram"_s);

    const QStringList problems = course.problems();
    QString clean = u"content files check clean"_s;
    if (!problems.isEmpty())
        clean += ": "_L1 + problems.first(qMin(kProblemsTold, problems.size())).join(" | "_L1);
    run.check(problems.isEmpty(), clean);

    const QList<Module> &modules = course.modules();
    const QList<Lesson> &lessons = course.lessons();
    const QList<Question> &questions = course.questions();
    run.check(modules.size() >= kModules, u"%1 modules (12 or more)"_s.arg(modules.size()));
    run.check(lessons.size() >= kLessons, u"%1 lessons (60 or more)"_s.arg(lessons.size()));
    run.check(all_of(modules,
                  [&](const Module &module) { return !course.lessonsIn(module.id).isEmpty(); }),
        u"every module has lessons"_s);
    run.check(all_of(lessons,
                  [](const Lesson &lesson) {
                      return !lesson.title.isEmpty()
                          && Text::characterCount(lesson.body) >= kLessonText;
                  }),
        u"every lesson opens with a title and full text"_s);
    run.check(all_of(modules,
                  [&](const Module &module) {
                      return course.questionsIn(module.id).size() >= kQuestionsOfAModule;
                  }),
        u"every module has a quiz of 5+ questions (%1 questions)"_s.arg(questions.size()));
    run.check(all_of(questions, hasOneRightAnswer),
        u"every quiz question has exactly one correct answer among 3+ choices"_s);

    const QList<GearEntry> &gear = course.gear();
    const QList<GearModel> models = course.namedModels();
    run.check(gear.size() >= kGear, u"%1 encyclopedia entries (150 or more)"_s.arg(gear.size()));
    run.check(
        all_of(gear,
            [](const GearEntry &entry) { return diagramKindNamed(entry.diagram).has_value(); }),
        u"every encyclopedia entry has a drawn diagram"_s);
    run.check(models.size() >= kModels && all_of(models, isTraceable),
        u"%1 named example models, each with the maker's link and the date checked"_s.arg(
            models.size()));

    const QList<TimelineEvent> &events = course.timeline();
    run.check(events.size() >= kEvents
            && all_of(events, [](const TimelineEvent &event) { return !event.sources.isEmpty(); }),
        u"%1 history events, every one cited"_s.arg(events.size()));
    run.check(
        course.videos().size() >= kVideos, u"%1 videos (40 or more)"_s.arg(course.videos().size()));
    run.check(course.software().size() >= kSoftware && course.workflow().size() >= kSteps,
        u"%1 software/plug-in entries and a %2-step film vs digital workflow"_s
            .arg(course.software().size())
            .arg(course.workflow().size()));

    const QString fNumbers = textOfFNumberLessons(course);
    run.check(all_of(QList{ "depth of field"_L1, "focal length"_L1, "sensor"_L1, "exposure"_L1 },
                  [&](QLatin1StringView idea) { return fNumbers.contains(idea); }),
        u"the f-number lessons explain exposure, depth of field, focal length and sensor size "
        "separately"_s);
    run.check(namesTheMakerInFullOnly(course),
        u"no bare \"Corvane\" branding anywhere in the content or help"_s);
}
