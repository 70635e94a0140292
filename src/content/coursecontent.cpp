#include "content/coursecontent.h"

#include "content/contentparser.h"
#include "content/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kVideoColumns = 8;

// A course is some hundred kilobytes. What is larger than this might be larger than the memory.
constexpr qint64 kLargestFile = 64 * 1024 * 1024; // bytes

struct FileText {
    QString text;
    QString problem; // As loadErrors tells it; empty if the file could be read.
};

FileText readFile(const QString &path)
{
    // Not QFileInfo, to which a file in a folder that may not be entered isn't there.
    std::error_code error;
    std::filesystem::file_status status;
    try {
        status = std::filesystem::status(QFileInfo(path).filesystemFilePath(), error);
    } catch (const std::system_error &) {
        return { .problem = u"the file can't be found"_s }; // by a name with half a character in it
    }
    if (error == std::errc::permission_denied)
        return { .problem = u"its folder may not be entered"_s };
    if (!std::filesystem::exists(status))
        return { .problem = u"the file can't be found"_s };
    if (std::filesystem::is_directory(status))
        return { .problem = u"there is a folder in its place"_s };
    // A pipe or a device may keep its reader waiting for ever.
    if (!std::filesystem::is_regular_file(status))
        return { .problem = u"it isn't an ordinary file"_s };

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return { .problem = u"the file can't be read"_s };
    if (file.size() > kLargestFile)
        return { .problem = u"the file is too large"_s };
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return { .problem = u"the file can't be read"_s };

    std::optional<QString> text = Text::decodedUtf8(bytes);
    if (!text)
        return { .problem = u"the file isn't valid UTF-8 text"_s };
    return { .text = *std::move(text) };
}

template <typename Value>
QList<Value> eachOf(const QList<QStringView> &texts, Value (*valueOf)(QStringView))
{
    QList<Value> values;
    values.reserve(texts.size());
    for (const QStringView text : texts)
        values.append(valueOf(text));
    return values;
}

Module moduleOf(const ContentRecord &record, qsizetype order)
{
    return {
        .id = record.id.toString(),
        .title = record.first(u"title").toString(),
        .level = record.first(u"level").toString(),
        .summary = record.first(u"summary").toString(),
        .order = order,
    };
}

Lesson lessonOf(const ContentRecord &record, qsizetype order)
{
    return {
        .id = record.id.toString(),
        .moduleID = record.first(u"module").toString(),
        .title = record.first(u"title").toString(),
        .minutes = Text::wholeNumber(record.first(u"minutes")).value_or(Lesson().minutes),
        .body = record.body.toString(),
        .order = order,
        .gear = ContentParser::list(record.first(u"gear")),
        .videos = ContentParser::list(record.first(u"videos")),
    };
}

Question questionOf(const ContentRecord &record)
{
    Question question{
        .id = record.id.toString(),
        .moduleID = record.first(u"module").toString(),
        .prompt = record.first(u"q").toString(),
        .why = record.first(u"why").toString(),
    };
    qsizetype rightAnswers = 0;
    for (const ContentRecord::Field &field : record.fields) {
        if (field.key == u"right") {
            question.correct = question.options.size();
            ++rightAnswers;
        } else if (field.key != u"wrong") {
            continue;
        }
        question.options.append(field.value.toString());
    }
    if (rightAnswers != 1)
        question.correct = -1;
    return question;
}

GearModel gearModelOf(QStringView value)
{
    const QStringList pieces = ContentParser::pipes(value);
    return {
        .name = pieces.value(0),
        .use = pieces.value(1),
        .specs = pieces.value(2),
        .url = pieces.value(3),
        .checked = pieces.value(4),
    };
}

GearEntry gearEntryOf(const ContentRecord &record)
{
    return {
        .id = record.id.toString(),
        .name = record.first(u"name").toString(),
        .category = record.first(u"category").toString(),
        .diagram = record.first(u"diagram").toString(),
        .aka = record.first(u"aka").toString(),
        .body = record.body.toString(),
        .models = eachOf(record.all(u"model"), gearModelOf),
        .see = ContentParser::list(record.first(u"see")),
    };
}

Citation citationOf(QStringView value)
{
    const QStringList pieces = ContentParser::pipes(value);
    return {
        .title = pieces.value(0),
        .url = pieces.value(1),
        .checked = pieces.value(2),
    };
}

TimelineEvent timelineEventOf(const ContentRecord &record)
{
    return {
        .id = record.id.toString(),
        .year = Text::wholeNumber(record.first(u"year")).value_or(0),
        .dateText = record.first(u"date").toString(),
        .era = record.first(u"era").toString(),
        .title = record.first(u"title").toString(),
        .body = record.body.toString(),
        .sources = eachOf(record.all(u"source"), citationOf),
    };
}

Software softwareOf(const ContentRecord &record)
{
    return {
        .id = record.id.toString(),
        .name = record.first(u"name").toString(),
        .kind = record.first(u"kind").toString(),
        .maker = record.first(u"maker").toString(),
        .url = record.first(u"url").toString(),
        .platforms = record.first(u"platforms").toString(),
        .body = record.body.toString(),
    };
}

// Without its place, which the list decides.
WorkflowStep workflowStepOf(const ContentRecord &record)
{
    return {
        .id = record.id.toString(),
        .stage = record.first(u"stage").toString(),
        .film = record.first(u"film").toString(),
        .digital = record.first(u"digital").toString(),
    };
}

QList<Video> videosOf(QStringView table)
{
    const qsizetype headingsEnd = table.indexOf(u'\n');
    if (headingsEnd < 0)
        return {};

    QList<Video> videos;
    for (const QStringView line : table.sliced(headingsEnd + 1).tokenize(u'\n')) {
        const QList<QStringView> columns = line.split(u'\t');
        if (columns.size() < kVideoColumns || columns[0].isEmpty())
            continue;
        videos.append(Video{
            .id = columns[0].toString(),
            .title = columns[1].toString(),
            .channel = columns[2].toString(),
            .moduleID = columns[3].toString(),
            .topic = columns[4].toString(),
            .seconds = Text::wholeNumber(columns[5]).value_or(0),
            .published = columns[6].toString(),
            // The last column holds the carriage return of a CR LF file.
            .checked = Text::trimmedBlanksAndLines(columns[7]).toString(),
        });
    }
    return videos;
}

template <typename Value>
QList<Value> valuesOf(
    const QList<ContentRecord> &records, QStringView type, Value (*valueOf)(const ContentRecord &))
{
    QList<Value> values;
    values.reserve(records.size());
    for (const ContentRecord &record : records) {
        if (record.type == type)
            values.append(valueOf(record));
    }
    return values;
}

} // namespace

CourseContent Content::readCourse(const QString &folder)
{
    CourseContent course;
    const QDir directory(folder);
    const auto textOf = [&](const QString &fileName) {
        const FileText file = readFile(directory.filePath(fileName));
        if (!file.problem.isEmpty())
            course.loadErrors.append(fileName + u": " + file.problem);
        return file.text;
    };
    const auto recordsOf
        = [&](const QString &fileName) { return ContentParser::parse(textOf(fileName)); };

    // Counts records of every type: a module and its lessons then share one sequence.
    qsizetype order = 0;
    for (const ContentRecord &record : recordsOf(u"course.txt"_s)) {
        ++order;
        if (record.type == u"MODULE")
            course.modules.append(moduleOf(record, order));
        else if (record.type == u"LESSON")
            course.lessons.append(lessonOf(record, order));
    }
    course.questions = valuesOf(recordsOf(u"quizzes.txt"_s), u"QUESTION", questionOf);
    course.gear = valuesOf(recordsOf(u"gear.txt"_s), u"GEAR", gearEntryOf);
    course.timeline = valuesOf(recordsOf(u"timeline.txt"_s), u"EVENT", timelineEventOf);
    std::stable_sort(course.timeline.begin(), course.timeline.end(),
        [](const TimelineEvent &a, const TimelineEvent &b) { return a.year < b.year; });
    course.videos = videosOf(textOf(u"videos.tsv"_s));
    course.software = valuesOf(recordsOf(u"software.txt"_s), u"SOFTWARE", softwareOf);
    course.workflow = valuesOf(recordsOf(u"workflows.txt"_s), u"STEP", workflowStepOf);
    for (qsizetype i = 0; i < course.workflow.size(); ++i)
        course.workflow[i].order = i + 1;
    return course;
}
