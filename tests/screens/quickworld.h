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

    /// Begins with the course "small", "bare" or "empty" and a fresh progress file, or without
    /// one. No screen may exist while this is called.
    Q_INVOKABLE void begin(const QString &course = QStringLiteral("small"), bool withStore = true);

    Q_INVOKABLE void finish(const QStringList &lessons);
    Q_INVOKABLE void finishAll();
    Q_INVOKABLE [[nodiscard]] QStringList finishedLessons() const;
    Q_INVOKABLE [[nodiscard]] bool isBookmarked(const QString &type, const QString &id) const;
    Q_INVOKABLE void refuseWrites(const QString &reason);

    /// What is chosen in AppModel; "none" if nothing is.
    Q_INVOKABLE [[nodiscard]] QString moduleID() const;
    Q_INVOKABLE [[nodiscard]] QString lessonID() const;
    Q_INVOKABLE [[nodiscard]] QString quizModuleID() const;
    Q_INVOKABLE [[nodiscard]] QString gearID() const;
    Q_INVOKABLE [[nodiscard]] QString videoID() const;
    Q_INVOKABLE void showQuiz(const QString &moduleID);
    Q_INVOKABLE void tell(const QString &message);
    /// Type and id of the target of the note that is being written.
    Q_INVOKABLE [[nodiscard]] QString noteTarget() const;

    /// The rows of the table of screens: screen, title, shortTitle, symbol and component of each.
    Q_INVOKABLE [[nodiscard]] QVariantList screens() const;

    Q_INVOKABLE void chooseTheme(const QString &id);
    Q_INVOKABLE [[nodiscard]] QString copiedText() const;

    /// Puts everything in its place, as the next picture of the item's window would: what stands in
    /// rows and columns moves only then.
    Q_INVOKABLE void settle(QQuickItem *item);

private:
    static std::unique_ptr<CourseTesting::World> s_world;
};

/// The set-up of a program whose tests show screens.
class ScreensSetup : public QuickSetup
{
protected:
    static void applicationAvailable();
    static void cleanupTestCase() { QuickWorld::end(); }
};
