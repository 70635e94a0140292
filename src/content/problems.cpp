#include "content/contentlibrary.h"

#include "content/text.h"
#include "diagrams/diagramkind.h"
#include "screens/videos/hvvideo.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLeastLessonText = 400;
constexpr qsizetype kLeastGearText = 120;
constexpr qsizetype kLeastOptions = 3;
constexpr qsizetype kDateLength = 10; // as in 2026-10-24

using Ids = QSet<QString>;

template <typename Value>
Ids idsOf(const QList<Value> &values)
{
    Ids ids;
    for (const Value &value : values)
        ids.insert(value.id);
    return ids;
}

bool isSecureLink(const QString &url)
{
    return url.startsWith("https://"_L1);
}

bool hasDate(const QString &checked)
{
    return Text::characterCount(checked) == kDateLength;
}

bool isComplete(const GearModel &model)
{
    return !model.name.isEmpty() && !model.specs.isEmpty() && isSecureLink(model.url)
        && hasDate(model.checked);
}

bool isCited(const TimelineEvent &event)
{
    return !event.sources.isEmpty()
        && std::ranges::all_of(event.sources, [](const Citation &source) {
               return isSecureLink(source.url) && hasDate(source.checked);
           });
}

bool hasOneRightAnswer(const Question &question)
{
    return question.options.size() >= kLeastOptions && question.correct >= 0
        && question.correct < question.options.size();
}

QStringList problemsOf(const Lesson &lesson, const Ids &modules, const Ids &gear, const Ids &videos)
{
    const QString name = u"lesson "_s + lesson.id;
    QStringList problems;
    if (!modules.contains(lesson.moduleID))
        problems += name + u": unknown module " + lesson.moduleID;
    if (lesson.title.isEmpty() || Text::characterCount(lesson.body) < kLeastLessonText)
        problems += name + u": missing title or too short";
    for (const QString &id : lesson.gear) {
        if (!gear.contains(id))
            problems += name + u": unknown gear " + id;
    }
    for (const QString &id : lesson.videos) {
        if (!videos.contains(id))
            problems += name + u": unknown video " + id;
    }
    return problems;
}

QStringList problemsOf(const Question &question, const Ids &modules)
{
    const QString name = u"question "_s + question.id;
    QStringList problems;
    if (!modules.contains(question.moduleID))
        problems += name + u": unknown module";
    if (!hasOneRightAnswer(question))
        problems += name + u": needs 3+ options and exactly one right answer";
    if (question.why.isEmpty())
        problems += name + u": no explanation";
    if (QSet<QString>(question.options.begin(), question.options.end()).size()
        != question.options.size())
        problems += name + u": duplicate options";
    return problems;
}

QStringList problemsOf(const GearEntry &entry, const Ids &gear)
{
    const QString name = u"gear "_s + entry.id;
    QStringList problems;
    if (!diagramKindNamed(entry.diagram))
        problems += name + u": no diagram '" + entry.diagram + u'\'';
    if (Text::characterCount(entry.body) < kLeastGearText)
        problems += name + u": text too short";
    for (const QString &id : entry.see) {
        if (!gear.contains(id))
            problems += name + u": see-also " + id + u" missing";
    }
    for (const GearModel &model : entry.models) {
        if (!isComplete(model))
            problems
                += name + u": model '" + model.name + u"' needs specs, https link and date checked";
    }
    return problems;
}

} // namespace

QStringList ContentLibrary::problems() const
{
    const Ids moduleIds = idsOf(modules());
    const Ids lessonIds = idsOf(lessons());
    const Ids gearIds = idsOf(gear());
    const Ids videoIds = idsOf(videos());

    QStringList problems = loadErrors();
    for (const Lesson &lesson : lessons())
        problems += problemsOf(lesson, moduleIds, gearIds, videoIds);
    if (lessonIds.size() != lessons().size())
        problems += u"duplicate lesson ids"_s;
    for (const Question &question : questions())
        problems += problemsOf(question, moduleIds);
    for (const GearEntry &entry : gear())
        problems += problemsOf(entry, gearIds);
    if (gearIds.size() != gear().size())
        problems += u"duplicate gear ids"_s;
    for (const TimelineEvent &event : timeline()) {
        if (!isCited(event))
            problems += u"history "_s + event.id + u": needs a cited https source with date";
    }
    for (const Video &video : videos()) {
        if (!HVVideo::isWellFormed(video))
            problems += u"video "_s + video.id + u": malformed";
    }
    for (const Software &program : software()) {
        if (!isSecureLink(program.url))
            problems += u"software "_s + program.id + u": link";
    }
    return problems;
}
