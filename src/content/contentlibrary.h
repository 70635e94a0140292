// The course in memory.
#pragma once

#include "content/records.h"

#include <memory>

/// The whole course, read from the text files of one folder and unchanged from then on.
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
///
/// Loading accepts everything: what is missing or no whole number gets the default of its record's
/// field. Only a file that can't be read leaves a trace, in loadErrors().
///
/// Lists are in file order, apart from timeline(). Look-ups search their list from the start; the
/// pointers they return live as long as the library.
class ContentLibrary
{
public:
    /// Loads the course in a time that grows with its length alone. Never fails.
    explicit ContentLibrary(const QString &folder);
    Q_DISABLE_COPY_MOVE(ContentLibrary)
    ~ContentLibrary() = default;

    /// The course of this process, read from HVInfo::contentFolder() on first use.
    /// For the main thread only.
    [[nodiscard]] static const ContentLibrary &shared();

    /// Puts another course in the place of the shared one, which ends all references to that; with
    /// nullptr, shared() reads the course anew.
    static void setShared(std::unique_ptr<const ContentLibrary> library);

    [[nodiscard]] const QList<Module> &modules() const { return m_modules; }
    [[nodiscard]] const QList<Lesson> &lessons() const { return m_lessons; }
    [[nodiscard]] const QList<Question> &questions() const { return m_questions; }
    [[nodiscard]] const QList<GearEntry> &gear() const { return m_gear; }
    /// By year, ascending; events of one year in file order.
    [[nodiscard]] const QList<TimelineEvent> &timeline() const { return m_timeline; }
    [[nodiscard]] const QList<Video> &videos() const { return m_videos; }
    [[nodiscard]] const QList<Software> &software() const { return m_software; }
    [[nodiscard]] const QList<WorkflowStep> &workflow() const { return m_workflow; }

    /// One text for each file that can't be read, in the order of the files: the file's name, ": "
    /// and one of these sentences.
    ///   The file can't be found.
    ///   There is a folder in its place.
    ///   It isn't an ordinary file.
    ///   The file can't be read.
    ///   The file isn't valid UTF-8 text.
    [[nodiscard]] const QStringList &loadErrors() const { return m_loadErrors; }

    /// The first of its list with this id, or nullptr.
    [[nodiscard]] const Module *module(QStringView id) const;
    [[nodiscard]] const Lesson *lesson(QStringView id) const;
    [[nodiscard]] const GearEntry *gearEntry(QStringView id) const;
    [[nodiscard]] const Video *video(QStringView id) const;

    [[nodiscard]] QList<Lesson> lessonsIn(QStringView moduleID) const;
    [[nodiscard]] QList<Question> questionsIn(QStringView moduleID) const;

    /// The categories of the gear, each once, in the order in which they first appear.
    [[nodiscard]] QStringList gearCategories() const;

    /// The models of all gear entries one after the other, repetitions included.
    [[nodiscard]] QList<GearModel> namedModels() const;

private:
    QList<Module> m_modules;
    QList<Lesson> m_lessons;
    QList<Question> m_questions;
    QList<GearEntry> m_gear;
    QList<TimelineEvent> m_timeline;
    QList<Video> m_videos;
    QList<Software> m_software;
    QList<WorkflowStep> m_workflow;
    QStringList m_loadErrors;
};
