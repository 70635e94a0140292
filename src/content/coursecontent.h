// The course as its files give it.
#pragma once

#include "content/records.h"

/// Everything that the course files say, and what could not be read of them. Lists are in file
/// order, apart from the timeline.
struct CourseContent {
    QList<Module> modules;
    QList<Lesson> lessons;
    QList<Question> questions;
    QList<GearEntry> gear;
    QList<TimelineEvent> timeline; ///< By year, ascending; events of one year in file order.
    QList<Video> videos;
    QList<Software> software;
    QList<WorkflowStep> workflow;

    /// One text for each file that can't be read, in the order of the files: the file's name, ": "
    /// and one of these texts, which stand one after the other in a message.
    ///   its folder may not be entered
    ///   the file can't be found
    ///   there is a folder in its place
    ///   it isn't an ordinary file
    ///   the file can't be read
    ///   the file isn't valid UTF-8 text
    QStringList loadErrors;
};

namespace Content {

/// Reads the course files of a folder in a time that grows with their length alone. Never fails:
/// what is missing or no whole number gets the default of its record's field, and only a file that
/// can't be read leaves a trace, in `loadErrors`.
///
/// The files, in the order in which they are read, their records and the keys of these:
///   course.txt      MODULE      title, level, summary
///                   LESSON      module, title, minutes, gear ‡, videos ‡; body
///   quizzes.txt     QUESTION    module, q (the prompt), why, right *, wrong *
///   gear.txt        GEAR        name, category, diagram, aka, see ‡, model *; body
///   timeline.txt    EVENT       year, date, era, title, source *; body
///   videos.tsv      lines of id, title, channel, module, topic, seconds, published and checked
///   software.txt    SOFTWARE    name, kind, maker, url, platforms; body
///   workflows.txt   STEP        stage, film, digital
/// Records are written as contentparser.h tells; one of another type is skipped.
///   *   as many fields as there are values, in the order of the values. A model is "name | use |
///       specs | url | checked", a source is "title | url | checked".
///   ‡   one field: ids with commas between them.
/// videos.tsv is a table with tabs between its columns. Its first line is skipped as headings, and
/// so is each line with fewer columns than these or with an empty id.
[[nodiscard]] CourseContent readCourse(const QString &folder);

} // namespace Content
