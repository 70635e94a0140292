// The record files of a course: the parser against one that is as plain as the format's
// description, and what the course is made of them.

#include "content/contentlibrary.h"
#include "content/contentparser.h"
#include "content/text.h"
#include "coursefolder.h"
#include "support/fuzz.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using Fuzz::expect;

namespace {

struct PlainRecord {
    QString type;
    QString id;
    QList<std::pair<QString, QString>> fields;
    QString body;

    friend bool operator==(const PlainRecord &, const PlainRecord &) = default;
};

QString trimmed(const QString &text)
{
    return Text::trimmedBlanks(text).toString();
}

// Line by line, each by itself.
QList<PlainRecord> plainlyParsed(QString text)
{
    QList<PlainRecord> records;
    QStringList body;
    bool isBody = false;
    const auto finish = [&] {
        if (!records.isEmpty())
            records.last().body = Text::trimmedBlanksAndLines(body.join(u'\n')).toString();
        body.clear();
        isBody = false;
    };
    for (const QString &line : text.remove(u'\r').split(u'\n')) {
        if (line.startsWith("=== "_L1)) {
            finish();
            QString words = line.sliced(4);
            while (words.startsWith(u' '))
                words.remove(0, 1);
            const QString type = words.section(u' ', 0, 0);
            records.append({ type, trimmed(words.sliced(type.size())), {}, {} });
        } else if (records.isEmpty()) {
            continue;
        } else if (isBody) {
            body.append(line);
        } else if (trimmed(line) == "---"_L1) {
            isBody = true;
        } else if (!line.startsWith(u'#') && line.contains(u':')) {
            const qsizetype colon = line.indexOf(u':');
            records.last().fields.append(
                { trimmed(line.first(colon)), trimmed(line.sliced(colon + 1)) });
        }
    }
    finish();
    return records;
}

PlainRecord plain(const ContentRecord &record)
{
    PlainRecord plain{ record.type.toString(), record.id.toString(), {}, record.body.toString() };
    for (const ContentRecord::Field &field : record.fields)
        plain.fields.append({ field.key.toString(), field.value.toString() });
    return plain;
}

void tryLists(const QString &value)
{
    for (const QString &piece : ContentParser::list(value))
        expect(!piece.isEmpty() && !piece.contains(u',') && trimmed(piece) == piece,
            "pieces of a list are bare");
    expect(ContentParser::pipes(value).size() == value.count(u'|') + 1,
        "there is one more piece than there are bars");
}

// The same bytes under every name: of each file only the records of its own types count.
void tryCourse(QByteArrayView bytes, const std::optional<QList<PlainRecord>> &records)
{
    static const CourseFolder folder;
    for (const QString &name : kCourseFiles) {
        if (name != "videos.tsv"_L1)
            folder.write(name, bytes.toByteArray());
    }
    const ContentLibrary library(folder.path());
    expect(library.index(), "a course has an index");
    expect(library.loadErrors().size() == (records ? 0 : 6), "what isn't UTF-8 is told, by file");

    const QList<PlainRecord> all = records.value_or(QList<PlainRecord>());
    const auto count
        = [&all](QStringView type) { return std::ranges::count(all, type, &PlainRecord::type); };
    expect(library.modules().size() == count(u"MODULE")
            && library.lessons().size() == count(u"LESSON")
            && library.questions().size() == count(u"QUESTION")
            && library.gear().size() == count(u"GEAR")
            && library.timeline().size() == count(u"EVENT")
            && library.software().size() == count(u"SOFTWARE")
            && library.workflow().size() == count(u"STEP"),
        "each record of a known type is there");

    for (const Module &module : library.modules()) {
        expect(module.order >= 1 && module.order <= all.size(), "a module has a place");
        expect(library.module(module.id), "a module is found by its id");
    }
    for (const Lesson &lesson : library.lessons()) {
        expect(lesson.order >= 1 && lesson.order <= all.size()
                && all[lesson.order - 1].body == lesson.body,
            "a lesson has its place and its body");
        expect(library.lesson(lesson.id), "a lesson is found by its id");
    }
    for (const Question &question : library.questions())
        expect(question.correct >= -1 && question.correct < question.options.size(),
            "the right answer is one of those offered");
    for (const GearEntry &entry : library.gear())
        expect(entry.body.startsWith(entry.summary()), "a summary begins the text");
    expect(std::ranges::is_sorted(library.timeline(), {}, &TimelineEvent::year),
        "history goes forward");
    for (qsizetype i = 0; i < library.workflow().size(); ++i)
        expect(library.workflow()[i].order == i + 1, "steps are numbered");

    const QStringList problems = library.problems();
    expect(std::ranges::none_of(problems, &QString::isEmpty), "a problem has words");
}

} // namespace

void Fuzz::tryOut(QByteArrayView bytes)
{
    std::optional<QList<PlainRecord>> expected;
    if (const std::optional<QString> text = Text::decodedUtf8(bytes)) {
        expected = plainlyParsed(*text);
        QList<PlainRecord> parsed;
        for (const ContentRecord &record : ContentParser::parse(*text))
            parsed.append(plain(record));
        expect(parsed == *expected, "records are those of the format");
        for (const PlainRecord &record : parsed) {
            for (const auto &[key, value] : record.fields)
                tryLists(value);
        }
    }
    tryCourse(bytes, expected);
}
