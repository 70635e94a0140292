// The course in memory: to look things up in, to search, and to check.
#pragma once

#include "content/coursecontent.h"
#include "store/sqlitedb.h"

#include <QFuture>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

/// The whole course, read from the text files of one folder and unchanged from then on, with an
/// index to search it by. It may be made in one thread and used in another; several may look things
/// up and search at once.
///
/// The index takes five times as long as all else, and the first screen shows without it. So it is
/// made when something first asks for it, which any thread may do.
///
/// coursecontent.h tells what the files hold and in which order the lists are. Look-ups search
/// their list from the start; the pointers they return live as long as the library.
class ContentLibrary
{
public:
    /// An article, event, film or program that a search has found.
    struct Hit {
        QString kind; ///< One of ContentKind.
        QString ref;  ///< Its id among those of its kind.
        QString title;
        QString snippet; ///< At most 14 words of its text, around the words found if they're there.

        /// Tells the hit from those of every kind, such as "gear:tripod".
        [[nodiscard]] QString id() const;

        friend bool operator==(const Hit &, const Hit &) = default;
    };

    /// Reads the course in a time that grows with its length alone. Never fails.
    explicit ContentLibrary(const QString &folder);
    Q_DISABLE_COPY_MOVE(ContentLibrary)
    ~ContentLibrary();

    /// The course of this process, read from HVInfo::contentFolder() on first use, which may be in
    /// any thread as long as no other asks for it until then.
    [[nodiscard]] static const ContentLibrary &shared();

    /// Puts another course in the place of the shared one, which ends all references to that; with
    /// nullptr, shared() reads the course anew.
    static void setShared(std::unique_ptr<const ContentLibrary> library);

    [[nodiscard]] const QList<Module> &modules() const { return m_course.modules; }
    [[nodiscard]] const QList<Lesson> &lessons() const { return m_course.lessons; }
    [[nodiscard]] const QList<Question> &questions() const { return m_course.questions; }
    [[nodiscard]] const QList<GearEntry> &gear() const { return m_course.gear; }
    [[nodiscard]] const QList<TimelineEvent> &timeline() const { return m_course.timeline; }
    [[nodiscard]] const QList<Video> &videos() const { return m_course.videos; }
    [[nodiscard]] const QList<Software> &software() const { return m_course.software; }
    [[nodiscard]] const QList<WorkflowStep> &workflow() const { return m_course.workflow; }

    /// Those of CourseContent, and last, if there is no index, one of
    ///   search index could not be created
    ///   search index: …    with what SQLite says
    [[nodiscard]] QStringList loadErrors() const;

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

    /// The index: a database in memory with the one table `fts` of kind, ref, title, aka and body.
    /// nullptr if it could not be built; nothing is found then.
    [[nodiscard]] const SQLiteDB *index() const;

    /// What holds every word of the query (Text::words), each at least as the beginning of a word
    /// or of its stem, best first: titles that are the query, titles that begin with it, all else;
    /// within these by how often and where the words stand, a title counting most and a text least.
    ///
    /// kind    only hits of this kind; of every kind if absent.
    /// limit   at most so many hits, chosen before titles are lifted; a negative one is no limit.
    ///
    /// A word that the query names twice counts twice. More than twelve different words are taken
    /// for a sentence out of a text: what holds them one after the other comes before all that only
    /// holds each of them, and lessons first.
    ///
    /// Empty for a query without a word, and where SQLite fails. The last few answers are
    /// remembered, since screens ask for them at each redraw.
    [[nodiscard]] QList<Hit> search(
        const QString &query, const std::optional<QString> &kind = {}, qint64 limit = 60) const;

    /// The same in a thread of the library's, one question after the other; a question that is
    /// canceled ends soon. search() comes first: what is being looked up here starts anew after it.
    [[nodiscard]] QFuture<QList<Hit>> searchInBackground(
        const QString &query, const std::optional<QString> &kind = {}, qint64 limit = 60) const;

    /// What is wrong with the course, as sentences for its editors: loadErrors(), then what the
    /// lessons lack, the questions, the gear, the events, the videos and the programs. Empty for a
    /// sound course.
    [[nodiscard]] QStringList problems() const;

private:
    struct Search {
        QString query;
        std::optional<QString> kind;
        qint64 limit;

        friend bool operator==(const Search &, const Search &) = default;
    };
    struct Answer {
        Search search;
        QList<Hit> hits;
    };

    /// The course's search index, or why there is none.
    struct Index {
        std::optional<SQLiteDB> database;
        QString error;
    };

    [[nodiscard]] const Index &madeIndex() const;
    [[nodiscard]] Index makeIndex() const;
    /// Both with m_searching locked.
    [[nodiscard]] QList<Hit> answer(const Search &search) const;
    [[nodiscard]] QList<Hit> found(const Search &search) const;

    CourseContent m_course;
    mutable std::once_flag m_indexIsMade;
    mutable Index m_index;

    mutable std::mutex m_searching;        // The index's connection and the answers.
    mutable std::atomic_int m_inHaste = 0; // Callers of search() that wait for it.
    mutable QList<Answer> m_answers;       // Oldest first.
    mutable QThreadPool m_background;      // Last, so that it ends before what it uses.
};
