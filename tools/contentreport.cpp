// What is wrong with a course and what it is made of, for its editors.
//
//     contentreport FOLDER           prints statistics and problems; exits with 1 if there is one
//     contentreport --texts FOLDER   prints the texts that are worth a look at their spelling
#include "content/contentlibrary.h"
#include "diagrams/diagramkind.h"

#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QTextStream>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

qsizetype wordCount(const QString &text)
{
    return text.simplified().split(u' ', Qt::SkipEmptyParts).size();
}

template <typename Value>
QStringList idsOf(const QList<Value> &values)
{
    QStringList ids;
    for (const Value &value : values)
        ids.append(value.id);
    return ids;
}

// Those of the ids that nothing names.
QStringList unnamed(const QStringList &ids, const QSet<QString> &named)
{
    QStringList result;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(result),
        [&named](const QString &id) { return !named.contains(id); });
    return result;
}

void printList(QTextStream &out, const QString &title, const QStringList &items)
{
    out << title << ": " << items.size();
    if (!items.isEmpty())
        out << "\n    " << items.join("\n    "_L1);
    out << '\n';
}

void printCounts(QTextStream &out, const ContentLibrary &course)
{
    out << "Modules " << course.modules().size() << ", lessons " << course.lessons().size()
        << ", questions " << course.questions().size() << ", gear " << course.gear().size()
        << ", named models " << course.namedModels().size() << ", events "
        << course.timeline().size() << ", videos " << course.videos().size() << ", software "
        << course.software().size() << ", workflow steps " << course.workflow().size() << '\n';
}

void printLessons(QTextStream &out, const ContentLibrary &course)
{
    out << "\nLessons by module: characters (least, median, most), words and the minutes given\n";
    for (const Module &module : course.modules()) {
        QList<qsizetype> lengths;
        qsizetype words = 0;
        qint64 minutes = 0;
        for (const Lesson &lesson : course.lessonsIn(module.id)) {
            lengths.append(lesson.body.size());
            words += wordCount(lesson.body);
            minutes += lesson.minutes;
        }
        std::ranges::sort(lengths);
        out << "    " << module.id << "  " << lengths.size() << " lessons";
        if (!lengths.isEmpty()) {
            out << ", " << lengths.first() << " " << lengths[lengths.size() / 2] << " "
                << lengths.last() << ", " << words << " words in " << minutes << " min";
            if (minutes > 0)
                out << ", " << words / minutes << " a minute";
        }
        out << ", " << course.questionsIn(module.id).size() << " questions\n";
    }
}

void printAnswers(QTextStream &out, const ContentLibrary &course)
{
    QMap<qsizetype, int> places;
    for (const Question &question : course.questions())
        ++places[question.correct];
    out << "\nPlaces of the right answers:";
    for (const auto [place, count] : places.asKeyValueRange())
        out << ' ' << (place < 0 ? u"none"_s : QString::number(place + 1)) << ": " << count << ';';
    out << '\n';
}

void printLooseEnds(QTextStream &out, const ContentLibrary &course)
{
    QSet<QString> gear;
    QSet<QString> videos;
    for (const Lesson &lesson : course.lessons()) {
        gear.unite({ lesson.gear.begin(), lesson.gear.end() });
        videos.unite({ lesson.videos.begin(), lesson.videos.end() });
    }
    QSet<QString> diagrams;
    for (const GearEntry &entry : course.gear()) {
        diagrams.insert(entry.diagram);
        for (const QString &id : entry.see) {
            if (id != entry.id)
                gear.insert(id);
        }
    }
    QStringList kinds;
    for (const DiagramKind kind : allDiagramKinds())
        kinds.append(rawValue(kind));

    out << '\n';
    printList(out, u"Gear that no lesson and no other entry names"_s,
        unnamed(idsOf(course.gear()), gear));
    printList(out, u"Videos that no lesson names"_s, unnamed(idsOf(course.videos()), videos));
    printList(out, u"Drawings without an entry"_s, unnamed(kinds, diagrams));
}

// Exit status 1 if there are problems.
int printReport(QTextStream &out, const ContentLibrary &course)
{
    const QStringList problems = course.problems();
    printCounts(out, course);
    printLessons(out, course);
    printAnswers(out, course);
    printLooseEnds(out, course);
    out << '\n';
    printList(out, u"Problems"_s, problems);
    return problems.isEmpty() ? 0 : 1;
}

// What the course says in its own words: names of models and films have a spelling of their own,
// and other names of gear are there as readers type them.
void printTexts(QTextStream &out, const ContentLibrary &course)
{
    for (const Module &module : course.modules())
        out << module.title << '\n' << module.level << '\n' << module.summary << '\n';
    for (const Lesson &lesson : course.lessons())
        out << lesson.title << '\n' << lesson.body << '\n';
    for (const Question &question : course.questions())
        out << question.prompt << '\n'
            << question.options.join(u'\n') << '\n'
            << question.why << '\n';
    for (const GearEntry &entry : course.gear()) {
        out << entry.name << '\n' << entry.category << '\n' << entry.body << '\n';
        for (const GearModel &model : entry.models)
            out << model.use << '\n';
    }
    for (const TimelineEvent &event : course.timeline())
        out << event.dateText << '\n'
            << event.era << '\n'
            << event.title << '\n'
            << event.body << '\n';
    for (const Video &video : course.videos())
        out << video.topic << '\n';
    for (const Software &program : course.software())
        out << program.kind << '\n' << program.body << '\n';
    for (const WorkflowStep &step : course.workflow())
        out << step.stage << '\n' << step.film << '\n' << step.digital << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool textsOnly = arguments.removeOne(u"--texts"_s);
    QTextStream out(stdout);
    if (arguments.size() != 1) {
        out << "usage: contentreport [--texts] FOLDER\n";
        return 2;
    }
    const ContentLibrary course(arguments.first());
    if (!textsOnly)
        return printReport(out, course);
    printTexts(out, course);
    return 0;
}
