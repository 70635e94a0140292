// What the course itself promises: enough of everything, no mistakes that a program can see, and
// searches that find what a learner means.
//
// HV_CONTENT=FOLDER holds another course to the same promises.
#include "content/installedcourse.h"

#include "content/contentlibrary.h"
#include "diagrams/diagramkind.h"
#include "support/qtprinters.h"

#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using Hit = ContentLibrary::Hit;

namespace {

constexpr qsizetype kHitsInView = 5;

class InstalledCourse : public testing::Test
{
protected:
    // Read once: the tests only look.
    static void SetUpTestSuite() { s_course.emplace(installedCourse()); }
    static void TearDownTestSuite() { s_course.reset(); }

    [[nodiscard]] static const ContentLibrary &course() { return *s_course; }

private:
    static inline std::optional<ContentLibrary> s_course;
};

using InstalledCourseSearch = InstalledCourse;

bool holds(const QList<Hit> &hits, const QString &id)
{
    return std::ranges::any_of(hits, [&id](const Hit &hit) { return hit.id() == id; });
}

QString idsOf(const QList<Hit> &hits)
{
    QStringList ids;
    for (const Hit &hit : hits)
        ids.append(hit.id());
    return ids.join(u' ');
}

} // namespace

TEST_F(InstalledCourse, HasNoProblems)
{
    EXPECT_EQ(course().problems(), QStringList());
}

TEST_F(InstalledCourse, HasTwelveModulesAndSixtyLessonsAtLeast)
{
    EXPECT_GE(course().modules().size(), 12);
    EXPECT_GE(course().lessons().size(), 60);
}

TEST_F(InstalledCourse, HasLessonsAndAQuizOfFiveQuestionsInEachModule)
{
    for (const Module &module : course().modules()) {
        EXPECT_GE(course().lessonsIn(module.id).size(), 1) << module.id.toStdString();
        EXPECT_GE(course().questionsIn(module.id).size(), 5) << module.id.toStdString();
    }
}

TEST_F(InstalledCourse, HasATitleAndAFullTextInEachLesson)
{
    for (const Lesson &lesson : course().lessons()) {
        EXPECT_FALSE(lesson.title.isEmpty()) << lesson.id.toStdString();
        EXPECT_GE(lesson.body.size(), 400) << lesson.id.toStdString();
    }
}

TEST_F(InstalledCourse, HasOneRightAnswerAmongThreeOrMoreToEachQuestion)
{
    for (const Question &question : course().questions()) {
        EXPECT_GE(question.correct, 0) << question.id.toStdString();
        EXPECT_LT(question.correct, question.options.size()) << question.id.toStdString();
        EXPECT_GT(question.options.size(), 2) << question.id.toStdString();
    }
}

TEST_F(InstalledCourse, HasAHundredAndFiftyGearEntriesEachWithADrawing)
{
    EXPECT_GE(course().gear().size(), 150);
    for (const GearEntry &entry : course().gear())
        EXPECT_TRUE(diagramKindNamed(entry.diagram)) << entry.id.toStdString();
}

TEST_F(InstalledCourse, HasSixtyNamedModelsEachWithASecureLinkAndTheDateChecked)
{
    const QList<GearModel> models = course().namedModels();
    EXPECT_GE(models.size(), 60);
    for (const GearModel &model : models) {
        EXPECT_TRUE(model.url.startsWith("https://"_L1)) << model.name.toStdString();
        EXPECT_TRUE(model.checked.startsWith("2026-"_L1)) << model.name.toStdString();
    }
}

TEST_F(InstalledCourse, HasTwentyFiveEventsEachWithASource)
{
    EXPECT_GE(course().timeline().size(), 25);
    for (const TimelineEvent &event : course().timeline())
        EXPECT_FALSE(event.sources.isEmpty()) << event.id.toStdString();
}

TEST_F(InstalledCourse, HasFortyVideosTenProgramsAndEightSteps)
{
    EXPECT_GE(course().videos().size(), 40);
    EXPECT_GE(course().software().size(), 10);
    EXPECT_GE(course().workflow().size(), 8);
}

TEST_F(InstalledCourse, ExplainsWhatTheFNumberIsAndWhatItIsNot)
{
    QString text;
    for (const Lesson &lesson : course().lessons()) {
        const QString title = lesson.title.toLower();
        if (title.contains("f/1.4"_L1) || title.contains("f-number"_L1))
            text += lesson.body.toLower();
    }
    for (const QString &idea :
        { u"depth of field"_s, u"focal length"_s, u"sensor"_s, u"exposure"_s })
        EXPECT_TRUE(text.contains(idea)) << idea.toStdString();
}

TEST_F(InstalledCourse, NamesTheMakerInFullOrNotAtAll)
{
    const auto expectFullName = [](QString text, const QString &id) {
        EXPECT_FALSE(text.remove("Corvane (CRVN)"_L1).contains("Corvane"_L1)) << id.toStdString();
    };
    for (const Lesson &lesson : course().lessons())
        expectFullName(lesson.body, lesson.id);
    for (const GearEntry &entry : course().gear())
        expectFullName(entry.body, entry.id);
}

TEST_F(InstalledCourseSearch, PutsTheTripodFirstForItsName)
{
    const QList<Hit> hits = course().search(u"tripod"_s, u"gear"_s);
    ASSERT_FALSE(hits.isEmpty());
    EXPECT_EQ(hits[0].ref, u"tripod");
}

TEST_F(InstalledCourseSearch, FindsTheTripodByPartOfItsNameAndByCapitals)
{
    EXPECT_TRUE(holds(course().search(u"tripo"_s, u"gear"_s), u"gear:tripod"_s));
    EXPECT_TRUE(holds(course().search(u"TRIPOD"_s), u"gear:tripod"_s));
}

TEST_F(InstalledCourseSearch, FindsNothingForNonsenseAndForBlanks)
{
    EXPECT_TRUE(course().search(u"zzqxv"_s).isEmpty());
    EXPECT_TRUE(course().search(u"   "_s).isEmpty());
    EXPECT_TRUE(course().search(u"aperture zzqxv"_s).isEmpty());
}

TEST_F(InstalledCourseSearch, FindsSeveralLessonsOnAperture)
{
    EXPECT_GT(course().search(u"aperture"_s, u"lesson"_s).size(), 2);
}

TEST_F(InstalledCourseSearch, FindsSeveralEventsOnKodak)
{
    EXPECT_GT(course().search(u"Kodak"_s, u"history"_s).size(), 1);
}

TEST_F(InstalledCourseSearch, FindsTheProgramLightroom)
{
    const QList<Hit> hits = course().search(u"Lightroom"_s);
    EXPECT_TRUE(std::ranges::any_of(hits, [](const Hit &hit) { return hit.kind == u"software"; }));
}

TEST_F(InstalledCourseSearch, LeadsToATripodWithItsDrawingAndModelsForSeveralUses)
{
    const GearEntry *tripod = course().gearEntry(u"tripod");
    ASSERT_NE(tripod, nullptr);
    EXPECT_EQ(tripod->diagram, u"tripod");
    EXPECT_GT(tripod->models.size(), 2);
}

TEST_F(InstalledCourseSearch, ShowsWhatALearnerMeansAmongTheFirstHits)
{
    // Each line is a query and, behind a tab, the hits that answer it with blanks between them.
    QFile table(QStringLiteral(HV_TEST_QUERIES));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly));
    int queries = 0;
    for (const QString &line : QString::fromUtf8(table.readAll()).split(u'\n')) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const QStringList columns = line.split(u'\t');
        ASSERT_EQ(columns.size(), 2) << line.toStdString();
        const QStringList answers = columns[1].split(u' ');
        const QList<Hit> inView = course().search(columns[0]).mid(0, kHitsInView);
        EXPECT_TRUE(std::ranges::any_of(
            answers, [&inView](const QString &id) { return holds(inView, id); }))
            << '"' << columns[0].toStdString() << "\" finds " << idsOf(inView).toStdString();
        ++queries;
    }
    EXPECT_GE(queries, 40);
}
