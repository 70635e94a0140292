// The course screen's decisions: what the right pane shows, and what stands before and behind a
// lesson.
#pragma once

#include <QString>

#include <optional>

class ContentLibrary;
struct Lesson;
struct Module;

/// What the user has chosen on the course screen. Any id may name something that is gone.
struct CourseSelection {
    std::optional<QString> moduleID;
    std::optional<QString> lessonID;
    std::optional<QString> quizModuleID;

    friend bool operator==(const CourseSelection &, const CourseSelection &) = default;
};

/// What the right pane shows. `lesson` and `module` point into the library.
struct CoursePane {
    enum class Kind { Quiz, Lesson, ModuleIntro };

    Kind kind = Kind::ModuleIntro;
    QString quizModuleID;           ///< Of a quiz; not looked up.
    const Lesson *lesson = nullptr; ///< Of a lesson.
    const Module *module = nullptr; ///< Of an introduction; none in a course without modules.
};

/// A quiz wins over a lesson, a lesson over a module; what doesn't resolve falls through, at last
/// to the first module.
[[nodiscard]] CoursePane coursePane(
    const CourseSelection &selection, const ContentLibrary &library);

/// The neighbors of a lesson in the course as one long row, across modules. A lesson that isn't
/// in the row counts as the first.
struct LessonNeighbours {
    const Lesson *previous = nullptr;
    const Lesson *next = nullptr;
};

[[nodiscard]] LessonNeighbours lessonNeighbours(
    const QString &lessonID, const ContentLibrary &library);
