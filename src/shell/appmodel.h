// What the user is looking at: the one place that holds navigation.
#pragma once

#include "shell/screen.h"
#include "simulator/simsettings.h"
#include "store/userstore.h"

#include <QObject>

#include <functional>
#include <optional>
#include <utility>

class ContentLibrary;
struct Lesson;

/// The navigation state of the program. Every way of getting somewhere (dial, rail, menu, search
/// hit, a note's target, a lesson's link) is a call on it; screens read it and keep no state of
/// their own.
///
/// It holds no course and no user data: those are ContentLibrary::shared() and
/// UserStore::shared(), the second of which may be absent. Nothing of it outlives the run. Main
/// thread only.
class AppModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(HVScreen::Screen screen READ screen WRITE setScreen NOTIFY screenChanged)
    Q_PROPERTY(QString screenTitle READ screenTitle NOTIFY screenChanged)
    Q_PROPERTY(QString screenShortTitle READ screenShortTitle NOTIFY screenChanged)
    Q_PROPERTY(QString screenSymbol READ screenSymbol NOTIFY screenChanged)
    Q_PROPERTY(QString screenComponent READ screenComponent NOTIFY screenChanged)
    /// Whether there is a progress file, without which nothing can be exported.
    Q_PROPERTY(bool hasStore READ hasStore CONSTANT)
    /// Whether the course has a lesson to go on with.
    Q_PROPERTY(bool canContinue READ canContinue CONSTANT)
    Q_PROPERTY(QString gearQuery READ gearQuery WRITE setGearQuery NOTIFY gearQueryChanged)
    Q_PROPERTY(QString globalQuery READ globalQuery WRITE setGlobalQuery NOTIFY globalQueryChanged)
    Q_PROPERTY(bool showsResults READ showsResults NOTIFY globalQueryChanged)
    Q_PROPERTY(QString searchOutcome READ searchOutcome NOTIFY searchOutcomeChanged)
    Q_PROPERTY(bool editsNote READ editsNote NOTIFY noteDraftChanged)
    Q_PROPERTY(bool draftIsUnsaved READ draftIsUnsaved NOTIFY draftIsUnsavedChanged)
    Q_PROPERTY(bool hasMessage READ hasMessage NOTIFY messageChanged)
    Q_PROPERTY(QString messageText READ messageText NOTIFY messageChanged)
public:
    using OptionalText = std::optional<QString>;

    /// Asks the user for the path of a file to write, with this name suggested, and waits for the
    /// answer: nothing if the user thinks better of it.
    using SavePanel = std::function<OptionalText(const QString &suggestedName)>;

    [[nodiscard]] static AppModel &shared();

    explicit AppModel(QObject *parent = nullptr);

    [[nodiscard]] Screen screen() const { return m_screen; }
    void setScreen(Screen screen) { set(m_screen, screen, &AppModel::screenChanged); }
    [[nodiscard]] QString screenTitle() const { return screenInfo(m_screen).title; }
    [[nodiscard]] QString screenShortTitle() const { return screenInfo(m_screen).shortTitle; }
    [[nodiscard]] QString screenSymbol() const { return screenInfo(m_screen).symbol; }
    [[nodiscard]] QString screenComponent() const { return screenInfo(m_screen).component; }

    /// The open module, lesson and quiz of the course screen; a quiz wins over a lesson.
    [[nodiscard]] const OptionalText &moduleID() const { return m_moduleID; }
    void setModuleID(const OptionalText &id) { set(m_moduleID, id, &AppModel::moduleIDChanged); }
    [[nodiscard]] const OptionalText &lessonID() const { return m_lessonID; }
    void setLessonID(const OptionalText &id) { set(m_lessonID, id, &AppModel::lessonIDChanged); }
    [[nodiscard]] const OptionalText &quizModuleID() const { return m_quizModuleID; }
    void setQuizModuleID(const OptionalText &id)
    {
        set(m_quizModuleID, id, &AppModel::quizModuleIDChanged);
    }

    [[nodiscard]] const OptionalText &gearID() const { return m_gearID; }
    void setGearID(const OptionalText &id) { set(m_gearID, id, &AppModel::gearIDChanged); }
    [[nodiscard]] const OptionalText &eventID() const { return m_eventID; }
    void setEventID(const OptionalText &id) { set(m_eventID, id, &AppModel::eventIDChanged); }
    [[nodiscard]] const OptionalText &videoID() const { return m_videoID; }
    void setVideoID(const OptionalText &id) { set(m_videoID, id, &AppModel::videoIDChanged); }
    [[nodiscard]] const OptionalText &softwareID() const { return m_softwareID; }
    void setSoftwareID(const OptionalText &id)
    {
        set(m_softwareID, id, &AppModel::softwareIDChanged);
    }

    /// The encyclopedia's filter.
    [[nodiscard]] const QString &gearQuery() const { return m_gearQuery; }
    void setGearQuery(const QString &query)
    {
        set(m_gearQuery, query, &AppModel::gearQueryChanged);
    }

    /// The search over everything; while it holds more than white space its results cover the
    /// screen.
    [[nodiscard]] const QString &globalQuery() const { return m_globalQuery; }
    void setGlobalQuery(const QString &query)
    {
        set(m_globalQuery, query, &AppModel::globalQueryChanged);
    }
    [[nodiscard]] bool showsResults() const;

    /// What the results tell of themselves, such as "12 results"; empty while there are none to be
    /// seen. Assistive technology reads it out at the search field.
    [[nodiscard]] const QString &searchOutcome() const { return m_searchOutcome; }
    void setSearchOutcome(const QString &outcome)
    {
        set(m_searchOutcome, outcome, &AppModel::searchOutcomeChanged);
    }

    /// The note being written; while there is one, the editor is open.
    [[nodiscard]] const std::optional<Note> &noteDraft() const { return m_noteDraft; }
    void setNoteDraft(const std::optional<Note> &note);
    [[nodiscard]] bool editsNote() const { return m_noteDraft.has_value(); }

    /// Whether the editor holds words that would be lost with it. It says so itself; a draft that
    /// is put in or taken away holds none.
    [[nodiscard]] bool draftIsUnsaved() const { return m_draftIsUnsaved; }
    void setDraftIsUnsaved(bool unsaved)
    {
        set(m_draftIsUnsaved, unsaved, &AppModel::draftIsUnsavedChanged);
    }

    /// The one message to the user, shown until it is dismissed. A later one replaces an earlier.
    [[nodiscard]] const OptionalText &message() const { return m_message; }
    void setMessage(const OptionalText &message)
    {
        set(m_message, message, &AppModel::messageChanged);
    }
    [[nodiscard]] bool hasMessage() const { return m_message.has_value(); }
    [[nodiscard]] QString messageText() const { return m_message.value_or(QString()); }

    /// The Exposure Lab's settings.
    [[nodiscard]] const SimSettings &sim() const { return m_sim; }
    void setSim(const SimSettings &settings) { set(m_sim, settings, &AppModel::simChanged); }

    /// Goes to a lesson. An id that names none changes nothing at all.
    Q_INVOKABLE void openLesson(const QString &id);
    /// Goes to the introduction of a module.
    Q_INVOKABLE void openModule(const QString &id);
    Q_INVOKABLE void openGear(const QString &id);
    Q_INVOKABLE void openVideo(const QString &id);
    Q_INVOKABLE void openEvent(const QString &id);
    Q_INVOKABLE void openSoftware(const QString &id);

    /// Goes to what a search hit of this kind refers to ("lesson", "gear", "video", "history" or
    /// "software"; any other kind goes nowhere) and closes the results.
    Q_INVOKABLE void openHit(const QString &kind, const QString &ref);

    /// Goes to what a note or bookmark is tied to: a "lesson", "gear", "video" or "history" event;
    /// any other type is tied to nothing and goes to the notes.
    Q_INVOKABLE void openTarget(const QString &type, const QString &id);

    /// Turns the dial by `delta` places.
    Q_INVOKABLE void step(int delta);

    /// Opens the lesson to go on with, if the course has any.
    Q_INVOKABLE void continueCourse();

    [[nodiscard]] bool hasStore() const { return UserStore::shared() != nullptr; }
    [[nodiscard]] bool canContinue() const { return nextLesson(nullptr) != nullptr; }

    /// The first lesson of the course that isn't finished in `store`; the very first if all are,
    /// so that there is always somewhere to go. nullptr only in a course without lessons. Without
    /// a store nothing is finished.
    [[nodiscard]] const Lesson *nextLesson(const UserStore *store) const;

    /// Runs `body`; an HVError that it throws becomes the message. This is how a screen writes.
    void run(const std::function<void()> &body);

    /// Sets or takes away the bookmark of a target; nothing without a store.
    Q_INVOKABLE void toggleBookmark(const QString &type, const QString &id);

    /// Starts a note tied to a target. Nothing is written until the editor saves it. While unsaved
    /// words are in the editor it keeps them, and no other note begins.
    Q_INVOKABLE void newNote(const QString &type, const QString &id);

    /// Writes all that the store holds as a text into a file of the user's choice; a failure
    /// becomes the message. Nothing without a store or without a panel. The panel comes when the
    /// caller is done: it runs an event loop, in which the screen with the caller's button may go.
    Q_INVOKABLE void exportNotes();

    /// The platform's own dialog, which knows of windows and is set by whoever has one.
    void setSavePanel(SavePanel panel) { m_savePanel = std::move(panel); }

    Q_INVOKABLE void dismissMessage() { setMessage({}); }
    Q_INVOKABLE void dismissNote() { setNoteDraft({}); }

Q_SIGNALS:
    void screenChanged();
    void moduleIDChanged();
    void lessonIDChanged();
    void quizModuleIDChanged();
    void gearIDChanged();
    void gearQueryChanged();
    void eventIDChanged();
    void videoIDChanged();
    void softwareIDChanged();
    void globalQueryChanged();
    void searchOutcomeChanged();
    void noteDraftChanged();
    void draftIsUnsavedChanged();
    void messageChanged();
    void simChanged();

private:
    void askAndExport();
    template <typename T>
    void set(T &field, const T &value, void (AppModel::*changed)())
    {
        if (field == value)
            return;
        field = value;
        Q_EMIT(this->*changed)();
    }

    Screen m_screen = Screen::Home;
    OptionalText m_moduleID;
    OptionalText m_lessonID;
    OptionalText m_quizModuleID;
    OptionalText m_gearID;
    QString m_gearQuery;
    OptionalText m_eventID;
    OptionalText m_videoID;
    OptionalText m_softwareID;
    QString m_globalQuery;
    QString m_searchOutcome;
    std::optional<Note> m_noteDraft;
    bool m_draftIsUnsaved = false;
    OptionalText m_message;
    SimSettings m_sim;
    SavePanel m_savePanel;
};
