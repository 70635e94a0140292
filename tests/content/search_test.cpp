#include "content/contentlibrary.h"

#include "content/coursefolder.h"
#include "content/installedcourse.h"
#include "support/qtprinters.h"
#include "support/testcourse.h"

#include <QFile>
#include <QFuture>
#include <QHash>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <thread>
#include <utility>

using namespace Qt::StringLiterals;
using Hit = ContentLibrary::Hit;

namespace {

QStringList idsOf(const QList<Hit> &hits)
{
    QStringList ids;
    for (const Hit &hit : hits)
        ids.append(hit.id());
    return ids;
}

// A gear entry of a course file.
QByteArray gearRecord(const QByteArray &id, const QByteArray &name, const QByteArray &body)
{
    return "=== GEAR " + id + "\nname: " + name + "\n---\n" + body + '\n';
}

// SQLite gets no more memory than this while it lives.
class MemoryLimit
{
public:
    explicit MemoryLimit(qint64 bytes) { sqlite3_hard_heap_limit64(bytes); }
    ~MemoryLimit() { sqlite3_hard_heap_limit64(0); }
    Q_DISABLE_COPY_MOVE(MemoryLimit)
};

// The small course that tests share, and one with more of the same to rank.
class ContentSearch : public testing::Test
{
protected:
    ContentSearch()
    {
        TestCourse::write(m_folder.path());
        m_course.emplace(m_folder.path());
    }

    [[nodiscard]] const ContentLibrary &course() const { return *m_course; }

private:
    QTemporaryDir m_folder;
    std::optional<ContentLibrary> m_course;
};

QList<Hit> foundInGear(const QByteArray &gear, const QString &query, qint64 limit = 60)
{
    const CourseFolder folder;
    folder.write(u"gear.txt"_s, gear);
    return ContentLibrary(folder.path()).search(query, std::nullopt, limit);
}

} // namespace

// What is in the index

TEST_F(ContentSearch, IndexesLessonsGearEventsVideosAndProgramsInThisOrder)
{
    ASSERT_NE(course().index(), nullptr);
    QStringList rows;
    for (const SQLRow &row : course().index()->query(u"SELECT * FROM fts ORDER BY rowid"_s))
        rows.append(QStringList{ row.str(u"kind"_s), row.str(u"ref"_s), row.str(u"title"_s),
            row.str(u"aka"_s), row.str(u"body"_s) }
                        .join(u'|'));
    ASSERT_EQ(rows.size(), 10);
    EXPECT_EQ(rows[0],
        u"lesson|a1-l1|What a camera does||A dark box with a hole draws the world upside down.");
    EXPECT_EQ(rows[3],
        u"gear|tripod|Tripod| Supports|A tripod holds still.\n\nIt does so on three legs. "
        "Steady One travel 1.4 kg, four sections");
    EXPECT_EQ(rows[4], u"gear|fast-prime|Fast prime| Lenses|One focal length, a wide opening. ");
    EXPECT_EQ(rows[5],
        u"history|obscura|The dark room is described|about 1015 Before film|"
        "Light enters through a hole.");
    EXPECT_EQ(rows[7], u"video|vid-light|What light does|Bright Room|Light");
    EXPECT_EQ(rows[9], u"software|darkroom|Dark Room|A workshop Raw editor|It develops raw files.");
}

TEST_F(ContentSearch, FindsNeitherModulesNorQuestionsNorWorkflowSteps)
{
    EXPECT_EQ(idsOf(course().search(u"Sharpness"_s)), QStringList{ u"lesson:a2-l1"_s });
    EXPECT_TRUE(course().search(u"upright"_s).isEmpty());
    EXPECT_TRUE(course().search(u"degrees"_s).isEmpty());
}

TEST_F(ContentSearch, JoinsTheTextsOfAllModelsBehindTheBody)
{
    const CourseFolder folder;
    folder.write(u"gear.txt"_s,
        "=== GEAR g\nname: N\naka: other, names\ncategory: C\nmodel: A|B|C|https://d|E\n"
        "model: F||H\n---\nBody.\n");
    const ContentLibrary library(folder.path());
    const QList<SQLRow> rows = library.index()->query(u"SELECT aka, body FROM fts"_s);
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].str(u"aka"_s), u"other, names C");
    EXPECT_EQ(rows[0].str(u"body"_s), u"Body. A B C F  H");
}

TEST(ContentIndex, IsThereForACourseWithoutFilesAndFindsNothing)
{
    const QTemporaryDir folder;
    const ContentLibrary library(folder.path());
    EXPECT_NE(library.index(), nullptr);
    EXPECT_EQ(library.loadErrors().size(), 7);
    EXPECT_TRUE(library.search(u"tripod"_s).isEmpty());
}

TEST(ContentIndex, IsMissingWithAReasonIfItCannotBeCreated)
{
    const CourseFolder folder;
    const MemoryLimit limit(1);
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.index(), nullptr);
    EXPECT_EQ(library.loadErrors(), QStringList{ u"search index could not be created"_s });
    EXPECT_TRUE(library.search(u"tripod"_s).isEmpty());
}

TEST(ContentIndex, IsMissingWithSQLitesReasonIfItCannotBeFilled)
{
    const CourseFolder folder;
    folder.write(u"gear.txt"_s, gearRecord("g", "Name", QByteArray("word ").repeated(1'000'000)));
    const MemoryLimit limit(3'000'000);
    const ContentLibrary library(folder.path());
    EXPECT_EQ(library.index(), nullptr);
    EXPECT_EQ(library.loadErrors(),
        QStringList{ u"search index: The database reported a problem: out of memory"_s });
    EXPECT_EQ(library.gear().size(), 1);
    EXPECT_TRUE(library.search(u"word"_s).isEmpty());
}

// Words and kinds

TEST_F(ContentSearch, PutsTheEntryOfThatNameFirst)
{
    const QList<Hit> hits = course().search(u"tripod"_s, u"gear"_s);
    ASSERT_FALSE(hits.isEmpty());
    EXPECT_EQ(hits[0].kind, u"gear");
    EXPECT_EQ(hits[0].ref, u"tripod");
    EXPECT_EQ(hits[0].title, u"Tripod");
    EXPECT_EQ(hits[0].id(), u"gear:tripod");
}

TEST_F(ContentSearch, FindsAWordByItsBeginning)
{
    EXPECT_EQ(idsOf(course().search(u"tripo"_s, u"gear"_s)), QStringList{ u"gear:tripod"_s });
    EXPECT_TRUE(course().search(u"ripod"_s).isEmpty());
}

TEST_F(ContentSearch, TakesCapitalsAndSmallLettersForTheSame)
{
    EXPECT_EQ(course().search(u"TRIPOD"_s), course().search(u"tripod"_s));
    EXPECT_EQ(course().search(u"TrIpOd"_s).size(), 3);
}

TEST_F(ContentSearch, FindsNothingForAWordThatStandsNowhereAndForNoWordAtAll)
{
    for (const QString &query : { u"zzqxv"_s, u"   "_s, u""_s, QString(), u"\"*+-()^:{}\\"_s })
        EXPECT_TRUE(course().search(query).isEmpty()) << query.toUtf8().constData();
}

TEST_F(ContentSearch, NeedsEveryWord)
{
    EXPECT_EQ(course().search(u"light hole"_s).size(), 1);
    EXPECT_EQ(course().search(u"hole light"_s), course().search(u"light hole"_s));
    EXPECT_TRUE(course().search(u"hole zzqxv"_s).isEmpty());
}

TEST_F(ContentSearch, FindsAnotherFormOfTheSameWord)
{
    // Both "sharpness" and "sharp", "developed" and "develops" have one stem.
    EXPECT_EQ(idsOf(course().search(u"developed"_s)), QStringList{ u"software:darkroom"_s });
    EXPECT_EQ(idsOf(course().search(u"holding"_s)), QStringList{ u"gear:tripod"_s });
}

TEST_F(ContentSearch, LooksThroughOneKindOrAll)
{
    EXPECT_EQ(idsOf(course().search(u"tripod"_s)),
        (QStringList{ u"gear:tripod"_s, u"video:vid-lens"_s, u"lesson:a1-l2"_s }));
    EXPECT_EQ(idsOf(course().search(u"tripod"_s, u"video"_s)), QStringList{ u"video:vid-lens"_s });
    EXPECT_EQ(
        idsOf(course().search(u"raw"_s, u"software"_s)), QStringList{ u"software:darkroom"_s });
    EXPECT_TRUE(course().search(u"tripod"_s, u"history"_s).isEmpty());
    EXPECT_TRUE(course().search(u"tripod"_s, u"Gear"_s).isEmpty());
    EXPECT_TRUE(course().search(u"tripod"_s, u""_s).isEmpty());
    EXPECT_TRUE(course().search(u"tripod"_s, u"gear' OR '1"_s).isEmpty());
}

TEST_F(ContentSearch, CutsAQueryAtEverythingButLettersMarksAndNumbers)
{
    // The tripod has "four" sections and weighs 1.4 kg: the words may stand apart.
    EXPECT_EQ(
        idsOf(course().search(u"f/1.4"_s)), (QStringList{ u"lesson:a1-l2"_s, u"gear:tripod"_s }));
    EXPECT_EQ(course().search(u"F 1–4…"_s), course().search(u"f/1.4"_s));
    EXPECT_TRUE(course().search(u"f/1.5"_s).isEmpty());
}

TEST_F(ContentSearch, GivesOperatorsOfTheSearchNoPower)
{
    const QList<Hit> tripod = course().search(u"tripod"_s);
    for (const QString &query : { u"\"tripod\""_s, u"tripod*"_s, u"^tripod"_s, u"-tripod"_s,
             u"+tripod"_s, u"(tripod"_s, u"tripod)"_s, u"\"tripod"_s, u"tripod';--"_s })
        EXPECT_EQ(course().search(query), tripod) << query.toUtf8().constData();

    // "or" and "not" are words like others, and none of these stands anywhere.
    EXPECT_TRUE(course().search(u"tripod OR zzqxv"_s).isEmpty());
    EXPECT_TRUE(course().search(u"tripod NOT zzqxv"_s).isEmpty());
    EXPECT_TRUE(course().search(u"NEAR(tripod prime)"_s).isEmpty());
    EXPECT_TRUE(course().search(u"title:tripod"_s).isEmpty());
    EXPECT_EQ(course().search(u"box AND hole"_s).size(), 0);
}

TEST_F(ContentSearch, NeverFailsWhateverTheText)
{
    for (char32_t c = 0; c < 0x3000; ++c) {
        const QString query = QString::fromUcs4(&c, 1);
        EXPECT_NO_THROW((void)course().search(query)) << "U+" << std::hex << uint(c);
        EXPECT_NO_THROW((void)course().search(u"tripod"_s + query)) << "U+" << std::hex << uint(c);
    }
    const QList<QString> texts = {
        QString(QChar(0xD800)),
        QString(QChar(0xDC00)) + u"tripod",
        u"📷 tripod 📷"_s,
        QStringView(u"tri\0pod", 7).toString(),
        u"e\u0301t\u00E9 ﷽ ١٢٣ Ⅻ ½"_s,
        QString(100'000, u'"'),
        QString(100'000, u'x'),
        QString(100'000, QChar(0x0301)),
        u"tripod "_s.repeated(14'286),
        u"a\"b*"_s.repeated(25'000),
    };
    for (const QString &text : texts)
        EXPECT_NO_THROW((void)course().search(text)) << text.left(20).toUtf8().constData();
    EXPECT_EQ(course().search(u"📷 tripod 📷"_s), course().search(u"tripod"_s));
    EXPECT_TRUE(course().search(QStringView(u"tri\0pod", 7).toString()).isEmpty());
}

TEST_F(ContentSearch, TakesQueriesOfAnyLength)
{
    EXPECT_EQ(course().search(u"tripod "_s.repeated(5000)).size(), 3);
    QString different;
    for (int i = 0; i < 2000; ++i)
        different += u"tripod w"_s + QString::number(i) + u' ';
    EXPECT_TRUE(course().search(different).isEmpty());
}

TEST_F(ContentSearch, WaitsForAnIndexThatAnotherThreadIsMaking)
{
    std::thread maker([this] { EXPECT_TRUE(course().index()); });
    EXPECT_EQ(course().search(u"tripod"_s).size(), 3);
    maker.join();
}

TEST_F(ContentSearch, FindsNothingWhereSQLiteFailsAndFindsItAgainAfterwards)
{
    ASSERT_TRUE(course().index());
    {
        const MemoryLimit limit(1);
        EXPECT_TRUE(course().search(u"tripod"_s).isEmpty());
    }
    EXPECT_EQ(course().search(u"tripod"_s).size(), 3);
}

// Order, snippets and limits

TEST(ContentRanking, PutsATitleThatIsTheQueryBeforeOneThatBeginsWithItAndThatBeforeAllElse)
{
    const QByteArray many = QByteArray("tripod ").repeated(50);
    const QList<Hit> hits = foundInGear(gearRecord("body", "Legs", many)
            + gearRecord("inside", "A tripod head", many) + gearRecord("begins", "Tripod head", "x")
            + gearRecord("longer", "Tripods", "x") + gearRecord("is", "tripod!", "x"),
        u"Tripod"_s);
    EXPECT_EQ(idsOf(hits),
        (QStringList{
            u"gear:is"_s, u"gear:longer"_s, u"gear:begins"_s, u"gear:inside"_s, u"gear:body"_s }));
}

TEST(ContentRanking, ComparesTitlesWordByWordWithTheWholeQuery)
{
    const QByteArray gear = gearRecord("a", "1.4 lens", "f") + gearRecord("b", "F/1.4 lens", "x");
    EXPECT_EQ(idsOf(foundInGear(gear, u"f 1 4 LENS"_s)), (QStringList{ u"gear:b"_s, u"gear:a"_s }));
    EXPECT_EQ(idsOf(foundInGear(gear, u"f1.4"_s)), QStringList());
}

TEST(ContentRanking, WeighsTitlesAboveOtherNamesAndThoseAboveTexts)
{
    const CourseFolder folder;
    folder.write(u"gear.txt"_s,
        "=== GEAR text\nname: A\naka: b\n---\nword\n=== GEAR aka\nname: A\naka: word\n---\nb\n"
        "=== GEAR title\nname: A word\naka: b\n---\nb\n");
    EXPECT_EQ(idsOf(ContentLibrary(folder.path()).search(u"word"_s)),
        (QStringList{ u"gear:title"_s, u"gear:aka"_s, u"gear:text"_s }));
}

TEST(ContentRanking, KeepsTheOrderOfTheCourseAmongEquals)
{
    QByteArray gear;
    QStringList expected;
    for (int i = 0; i < 100; ++i) {
        gear += gearRecord(QByteArray::number(i), "Name", "word");
        expected.append(u"gear:"_s + QString::number(i));
    }
    EXPECT_EQ(idsOf(foundInGear(gear, u"word"_s, 100)), expected);
    EXPECT_EQ(idsOf(foundInGear(gear, u"word"_s)), expected.first(60));
}

TEST(ContentRanking, ReturnsNoMoreThanTheLimit)
{
    const QByteArray gear = gearRecord("a", "A", "word") + gearRecord("b", "B", "word");
    EXPECT_EQ(foundInGear(gear, u"word"_s, 0).size(), 0);
    EXPECT_EQ(foundInGear(gear, u"word"_s, 1).size(), 1);
    EXPECT_EQ(foundInGear(gear, u"word"_s, 2).size(), 2);
    EXPECT_EQ(foundInGear(gear, u"word"_s, -1).size(), 2);
}

TEST(ContentRanking, LiftsNoTitleFromBeyondTheLimit)
{
    // A title that begins with the word, but among so many others that its rank is low.
    QByteArray gear = gearRecord("begins", "Word " + QByteArray("other ").repeated(200), "x");
    gear += gearRecord("short", "A word", "x");
    EXPECT_EQ(idsOf(foundInGear(gear, u"word"_s, 1)), QStringList{ u"gear:short"_s });
    EXPECT_EQ(
        idsOf(foundInGear(gear, u"word"_s, 2)), (QStringList{ u"gear:begins"_s, u"gear:short"_s }));
}

TEST(ContentRanking, ShowsUpToFourteenWordsOfTheTextAroundTheWordFound)
{
    QByteArray words;
    for (int i = 0; i < 40; ++i)
        words += "w" + QByteArray::number(i) + ' ';
    const QList<Hit> inText = foundInGear(gearRecord("g", "Name", words), u"w20"_s);
    ASSERT_EQ(inText.size(), 1);
    EXPECT_TRUE(inText[0].snippet.startsWith(u'…')) << inText[0].snippet.toStdString();
    EXPECT_TRUE(inText[0].snippet.endsWith(u'…')) << inText[0].snippet.toStdString();
    EXPECT_TRUE(inText[0].snippet.contains(u"w20"_s)) << inText[0].snippet.toStdString();
    EXPECT_EQ(inText[0].snippet.count(u'w'), 14) << inText[0].snippet.toStdString();

    const QList<Hit> inTitle = foundInGear(gearRecord("g", "Name", "A short text."), u"name"_s);
    ASSERT_EQ(inTitle.size(), 1);
    EXPECT_EQ(inTitle[0].snippet, u"A short text. ");
}

// Answers remembered

TEST_F(ContentSearch, AnswersTheSameQuestionWithoutAskingTheIndexAgain)
{
    const QList<Hit> first = course().search(u"tripod"_s, u"gear"_s, 5);
    ASSERT_EQ(first.size(), 1);
    const MemoryLimit nothingWorks(1);
    EXPECT_EQ(course().search(u"tripod"_s, u"gear"_s, 5), first);
}

TEST_F(ContentSearch, TellsQueriesKindsAndLimitsApartInWhatItRemembers)
{
    EXPECT_EQ(course().search(u"tripod"_s).size(), 3);
    EXPECT_EQ(course().search(u"tripod"_s, u"gear"_s).size(), 1);
    EXPECT_EQ(course().search(u"tripod"_s, u""_s).size(), 0);
    EXPECT_EQ(course().search(u"tripod"_s, std::nullopt, 2).size(), 2);
    EXPECT_EQ(course().search(u"tripod zzqxv"_s).size(), 0);
    EXPECT_EQ(course().search(u"tripod"_s).size(), 3);
}

TEST_F(ContentSearch, ForgetsTheOldestOfManyQuestions)
{
    for (int i = 0; i < 50; ++i)
        (void)course().search(u"tripod"_s, std::nullopt, i);
    EXPECT_EQ(course().search(u"tripod"_s, std::nullopt, 0).size(), 0);
    EXPECT_EQ(course().search(u"tripod"_s, std::nullopt, 49).size(), 3);
}

// Beside SQLite's own program

namespace {

QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', u"''"_s) + u'\'';
}

QString insertion(const QStringList &columns)
{
    QStringList values;
    for (const QString &column : columns)
        values.append(quoted(column));
    return u"INSERT INTO fts VALUES (" + values.join(u',') + u");\n";
}

// The statements that make the index of a course.
QString indexScript(const ContentLibrary &library)
{
    QString sql = u"CREATE VIRTUAL TABLE fts USING fts5(kind UNINDEXED, ref UNINDEXED, title, aka, "
                  "body, tokenize = 'porter unicode61');\nBEGIN;\n"_s;
    for (const Lesson &lesson : library.lessons())
        sql += insertion({ u"lesson"_s, lesson.id, lesson.title, QString(), lesson.body });
    for (const GearEntry &entry : library.gear()) {
        QStringList models;
        for (const GearModel &model : entry.models)
            models.append(QStringList{ model.name, model.use, model.specs }.join(u' '));
        sql += insertion({ u"gear"_s, entry.id, entry.name, entry.aka + u' ' + entry.category,
            entry.body + u' ' + models.join(u' ') });
    }
    for (const TimelineEvent &event : library.timeline())
        sql += insertion(
            { u"history"_s, event.id, event.title, event.dateText + u' ' + event.era, event.body });
    for (const Video &video : library.videos())
        sql += insertion({ u"video"_s, video.id, video.title, video.channel, video.topic });
    for (const Software &program : library.software())
        sql += insertion({ u"software"_s, program.id, program.name,
            program.maker + u' ' + program.kind, program.body });
    return sql + u"COMMIT;\n";
}

QStringList wordsOf(const QString &text)
{
    static const QRegularExpression word(
        u"[\\p{L}\\p{M}\\p{N}]+"_s, QRegularExpression::UseUnicodePropertiesOption);
    QStringList words;
    for (const QRegularExpressionMatch &match : word.globalMatch(text.toLower()))
        words.append(match.captured());
    return words;
}

struct Query {
    QString text;
    QString kind; // Any kind if empty.
    int limit = 60;
};

QString selection(const Query &question)
{
    QStringList terms;
    for (const QString &word : wordsOf(question.text))
        terms.append(u'"' + word + u"\"*");
    QString sql = u"SELECT kind, ref, title, snippet(fts, 4, '', '', '…', 14) AS snip FROM fts "
                  "WHERE fts MATCH "_s
        + quoted(terms.join(u" AND "_s));
    if (!question.kind.isEmpty())
        sql += u" AND kind = " + quoted(question.kind);
    return sql + u" ORDER BY bm25(fts, 0, 0, 12.0, 6.0, 1.0) LIMIT "
        + QString::number(question.limit) + u";\n";
}

constexpr QChar kColumnEnd(0x1F);
constexpr QChar kRowEnd(0x1E);
constexpr QChar kAnswerEnd(0x1D);

// What SQLite's program prints for a script.
QString printedFor(const QString &script)
{
    QProcess sqlite;
    sqlite.start(u"sqlite3"_s, { u":memory:"_s });
    EXPECT_TRUE(sqlite.waitForStarted())
        << "sqlite3 is missing: " << sqlite.errorString().toStdString();
    sqlite.write(script.toUtf8());
    sqlite.closeWriteChannel();
    EXPECT_TRUE(sqlite.waitForFinished(120'000));
    EXPECT_EQ(sqlite.readAllStandardError(), QByteArray());
    EXPECT_EQ(sqlite.exitCode(), 0);
    return QString::fromUtf8(sqlite.readAllStandardOutput());
}

// Its answers to all questions, ranked by what titles say.
QList<QList<Hit>> answersOfSQLite(const ContentLibrary &library, const QList<Query> &questions)
{
    QString script = u".mode list\n.separator \"\\037\" \"\\036\"\n"_s + indexScript(library);
    for (const Query &question : questions)
        script += selection(question) + u".print \"\\035\"\n";
    const QStringList printed = printedFor(script).split(QString(kAnswerEnd) + u'\n');

    QList<QList<Hit>> answers;
    for (qsizetype i = 0; i < questions.size(); ++i) {
        const QString needle = wordsOf(questions[i].text).join(u' ');
        QList<Hit> tiers[3];
        for (const QString &row : printed.value(i).split(kRowEnd, Qt::SkipEmptyParts)) {
            const QStringList columns = row.split(kColumnEnd);
            EXPECT_EQ(columns.size(), 4);
            const Hit hit{ columns.value(0), columns.value(1), columns.value(2), columns.value(3) };
            const QString title = wordsOf(hit.title).join(u' ');
            tiers[title == needle ? 0 : title.startsWith(needle) ? 1 : 2].append(hit);
        }
        answers.append(tiers[0] + tiers[1] + tiers[2]);
    }
    return answers;
}

// What learners type: the first column of a table.
QStringList typedQueries()
{
    QFile file(QStringLiteral(HV_TEST_QUERIES));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList queries;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u'#'))
            queries.append(line.section(u'\t', 0, 0));
    }
    return queries;
}

// Whole words, beginnings of words, pairs, titles and kinds, chosen evenly from the course itself.
QList<Query> questionsFor(const ContentLibrary &library)
{
    const QStringList kinds
        = { {}, u"lesson"_s, u"gear"_s, u"history"_s, u"video"_s, u"software"_s };
    QString text;
    QStringList lessonText;
    for (const Lesson &lesson : library.lessons())
        lessonText.append(lesson.body);
    text += lessonText.join(u' ');
    for (const GearEntry &entry : library.gear())
        text += entry.body;
    QStringList words = wordsOf(text);
    words.removeDuplicates();

    QList<Query> questions = {
        { u"a"_s },
        { u"A the"_s, {}, 3 },
        { u"f/2.8"_s },
        { u"tripod"_s, u"gear"_s },
        { u"tripod tripod lens"_s },
        { u"lens tripod lens a lens"_s },
        { u"the the the the"_s, {}, 20 },
        { u"t t t"_s, u"gear"_s, 5 },
        { u"1/125 s"_s },
        { u"don’t"_s },
        { u"50 mm"_s, {}, 200 },
        { u"zzqxv"_s },
        { u"camera"_s, {}, -1 },
        { u"camera"_s, {}, 0 },
        { u"café"_s },
        { u"½"_s },
    };
    for (const QString &typed : typedQueries())
        questions.append({ typed, {}, 40 });

    // Up to twelve different words, some of them twice or as single letters, and a limit that cuts.
    QRandomGenerator random(42);
    for (int i = 0; i < 80; ++i) {
        const QString text = lessonText.at(random.bounded(int(lessonText.size())));
        QStringList asked = wordsOf(text.mid(random.bounded(int(text.size())), 400)).mid(1);
        asked.resize(qMin<qsizetype>(asked.size(), 1 + random.bounded(12)));
        for (QString &word : asked)
            word.truncate(1 + random.bounded(8));
        if (i % 3 == 0)
            asked += asked.first(asked.size() / 2);
        questions.append({ asked.join(u' '), kinds[i % 2], 1 + random.bounded(60) });
    }

    constexpr qsizetype count = 120;
    for (qsizetype i = 0; i < count; ++i) {
        const QString &word = words[i * words.size() / count];
        const QString &other = words[(i * 7 + 3) % words.size()];
        questions.append({ word, kinds[i % kinds.size()] });
        questions.append({ word.left(3) + u' ' + other.left(2).toUpper() });
    }
    for (const GearEntry &entry : library.gear().first(qMin<qsizetype>(30, library.gear().size())))
        questions.append({ entry.name, {}, 10 });
    return questions;
}

} // namespace

TEST(ContentSearchOfTheCourse, FindsWhatSQLitesOwnProgramFindsInTheSameOrder)
{
    const ContentLibrary library(installedCourse());
    ASSERT_EQ(library.loadErrors(), QStringList());
    const QList<Query> questions = questionsFor(library);
    ASSERT_GE(questions.size(), 200);

    const QList<QList<Hit>> expected = answersOfSQLite(library, questions);
    qsizetype answered = 0;
    for (qsizetype i = 0; i < questions.size(); ++i) {
        const auto &[text, kind, limit] = questions[i];
        const QList<Hit> hits
            = library.search(text, kind.isEmpty() ? std::nullopt : std::optional(kind), limit);
        EXPECT_EQ(idsOf(hits), idsOf(expected[i])) << text.toStdString();
        EXPECT_TRUE(hits == expected[i]) << text.toStdString();
        answered += !hits.isEmpty();
    }
    EXPECT_GE(answered, 150) << "The questions must be worth asking.";
}

// Queries that no statement of SQLite's own answers in time

namespace {

// A query that stays long however it is answered: every letter, many times over.
QString letters(int times)
{
    QString query;
    for (char16_t letter = u'a'; letter <= u'z'; ++letter)
        query += QString(letter) + u' ';
    return query.repeated(times);
}

} // namespace

TEST(ContentSearchOfTheCourse, FindsTheLessonOfAPastedSentenceFirst)
{
    const ContentLibrary library(installedCourse());
    QHash<QString, QString> texts;
    for (const Lesson &lesson : library.lessons())
        texts.insert(u"lesson:" + lesson.id, wordsOf(lesson.body).join(u' '));

    static const QRegularExpression sentenceEnd(u"(?<=[.?!])\\s+"_s);
    int sentences = 0;
    int pasted = 0;
    for (const Lesson &lesson : library.lessons()) {
        for (const QString &sentence : lesson.body.split(sentenceEnd)) {
            const QStringList words = wordsOf(sentence);
            const QSet<QString> different(words.cbegin(), words.cend());
            if (different.size() <= 12 || words.size() > 60 || ++sentences % 11 != 0)
                continue;
            ++pasted;
            // A sentence may stand in two lessons.
            const QString first = idsOf(library.search(sentence, {}, 40)).value(0);
            EXPECT_TRUE(texts.value(first).contains(words.join(u' ')))
                << sentence.toStdString() << '\n'
                << first.toStdString();
        }
    }
    EXPECT_GE(pasted, 50);
}

TEST(ContentSearchOfTheCourse, AnswersWordsThatAreRepeatedManyTimes)
{
    const ContentLibrary library(installedCourse());
    for (const QString &word : { u"t "_s, u"the "_s }) {
        const auto found = [&](int times) {
            QStringList ids = idsOf(library.search(word.repeated(times), {}, 40));
            ids.sort(); // a title isn't the word 24 times
            return ids;
        };
        EXPECT_EQ(found(24).size(), 40);
        EXPECT_EQ(found(24), found(1));
    }
}

TEST_F(ContentSearch, AnswersInTheBackgroundWhatItAnswersAtOnce)
{
    const QList<QString> queries = { u"tripod"_s, u"f/1.4"_s, u"hole zzqxv"_s, u""_s, letters(40) };
    QList<QFuture<QList<Hit>>> answers;
    for (const QString &query : queries)
        answers.append(course().searchInBackground(query, {}, 40));
    for (qsizetype i = 0; i < queries.size(); ++i)
        EXPECT_EQ(answers[i].result(), course().search(queries[i], {}, 40));
}

TEST(ContentSearchOfTheCourse, EndsASearchThatIsCanceledAndGoesOnWithTheNext)
{
    const ContentLibrary library(installedCourse());
    QList<QFuture<QList<Hit>>> overtaken;
    for (int i = 1; i <= 20; ++i) {
        overtaken.append(library.searchInBackground(letters(i)));
        overtaken.last().cancel();
    }
    EXPECT_FALSE(library.searchInBackground(u"tripod"_s).result().isEmpty());
    for (QFuture<QList<Hit>> &search : overtaken) {
        search.waitForFinished();
        EXPECT_EQ(search.resultCount(), 0);
    }
}

TEST(ContentSearchOfTheCourse, AnswersAtOnceWhileItSearchesInTheBackground)
{
    const ContentLibrary library(installedCourse());
    const QFuture<QList<Hit>> background = library.searchInBackground(letters(20), {}, 40);
    for (int i = 0; i < 20; ++i)
        EXPECT_FALSE(library.search(u"tripod"_s, {}, 60 + i).isEmpty());
    EXPECT_EQ(background.result(), library.search(letters(20), {}, 40));
}

TEST(ContentSearchOfTheCourse, CanGoWhileItSearches)
{
    QFuture<QList<Hit>> search;
    {
        const ContentLibrary library(installedCourse());
        search = library.searchInBackground(letters(5));
    }
    EXPECT_TRUE(search.isFinished());
}
