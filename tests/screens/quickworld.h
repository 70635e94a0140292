// The small course and the user's data as Qt Quick Tests see them.
#pragma once

#include "kit/quicksetup.h"
#include "screens/coursetesting.h"

#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <memory>

/// The singleton World of the QML module Halvorin.Testing. Every test begins one of its own.
class QuickWorld : public QObject
{
    Q_OBJECT
public:
    /// Makes the type known to QML; `end` lets go of the last world.
    static void registerType();
    static void end();

    /// Begins with the course "small", "library", "films", "bare" or "empty" and a fresh progress
    /// file, or without one. No screen may exist while this is called.
    Q_INVOKABLE void begin(const QString &course = QStringLiteral("small"), bool withStore = true);

    Q_INVOKABLE void finish(const QStringList &lessons);
    Q_INVOKABLE void finishAll();
    Q_INVOKABLE [[nodiscard]] QStringList finishedLessons() const;
    Q_INVOKABLE [[nodiscard]] bool isBookmarked(const QString &type, const QString &id) const;
    Q_INVOKABLE void fillDisk();

    /// What is chosen in AppModel; "none" if nothing is.
    Q_INVOKABLE [[nodiscard]] QString moduleID() const;
    Q_INVOKABLE [[nodiscard]] QString lessonID() const;
    Q_INVOKABLE [[nodiscard]] QString quizModuleID() const;
    Q_INVOKABLE [[nodiscard]] QString gearID() const;
    Q_INVOKABLE [[nodiscard]] QString eventID() const;
    Q_INVOKABLE [[nodiscard]] QString videoID() const;
    /// Selects; an empty id takes the selection back.
    Q_INVOKABLE void chooseGear(const QString &id);
    Q_INVOKABLE void chooseEvent(const QString &id);
    Q_INVOKABLE void chooseSoftware(const QString &id);
    Q_INVOKABLE void chooseVideo(const QString &id);
    /// Every test begins with a network.
    Q_INVOKABLE void setOnline(bool online);
    /// What has been handed to the browser, in order.
    Q_INVOKABLE [[nodiscard]] QStringList visitedAddresses() const;
    Q_INVOKABLE void showQuiz(const QString &moduleID);
    Q_INVOKABLE void tell(const QString &message);
    /// The message to the user; empty if there is none.
    Q_INVOKABLE [[nodiscard]] QString message() const;
    /// Type and id of the target of the note that is being written.
    Q_INVOKABLE [[nodiscard]] QString noteTarget() const;

    Q_INVOKABLE void addNote(const QString &type, const QString &id, const QString &body);
    /// The bodies of all notes, the last changed first.
    Q_INVOKABLE [[nodiscard]] QStringList noteBodies() const;
    /// Opens the editor on the note that was changed last.
    Q_INVOKABLE void editNote();
    /// Deletes all notes, as another process would.
    Q_INVOKABLE void loseNotes();
    Q_INVOKABLE void setBookmark(const QString &type, const QString &id);
    /// Writes so many of each at once.
    Q_INVOKABLE void keepMany(int notes, int bookmarks);
    /// A score of a quiz taken so many days ago.
    Q_INVOKABLE void addScore(const QString &moduleID, int score, int total, int daysAgo = 0);
    /// All scores of a module, the latest first, such as "1/2".
    Q_INVOKABLE [[nodiscard]] QStringList scores(const QString &moduleID) const;
    /// The date of so many days ago, as the program writes it.
    Q_INVOKABLE [[nodiscard]] QString day(int daysAgo = 0) const;

    /// The next save panel is answered with a file of this name in a folder of the test's own, or
    /// canceled if there is none; text() is what stands there then. While it is open, `gone` goes.
    Q_INVOKABLE void answerSavePanel(const QString &name, QObject *gone = nullptr);
    Q_INVOKABLE [[nodiscard]] QString text(const QString &name) const;
    Q_INVOKABLE [[nodiscard]] QString exportText() const;

    /// The rows of the table of screens: screen, title, shortTitle, symbol and component of each.
    Q_INVOKABLE [[nodiscard]] QVariantList screens() const;

    Q_INVOKABLE void chooseTheme(const QString &id);
    Q_INVOKABLE [[nodiscard]] QString copiedText() const;

    /// Puts everything in its place, as the next picture of the item's window would: what stands in
    /// rows and columns moves only then.
    Q_INVOKABLE void settle(QQuickItem *item);

private:
    static std::unique_ptr<CourseTesting::World> s_world;
    static QStringList s_visited;
};

/// The set-up of a program whose tests show screens.
class ScreensSetup : public QuickSetup
{
protected:
    static void applicationAvailable();
    static void cleanupTestCase() { QuickWorld::end(); }
};
