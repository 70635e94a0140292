#include "screens/course/courseflow.h"

#include "content/contentlibrary.h"

#include <algorithm>

CoursePane coursePane(const CourseSelection &selection, const ContentLibrary &library)
{
    if (selection.quizModuleID)
        return { .kind = CoursePane::Kind::Quiz, .quizModuleID = *selection.quizModuleID };

    if (selection.lessonID) {
        if (const Lesson *lesson = library.lesson(*selection.lessonID))
            return { .kind = CoursePane::Kind::Lesson, .lesson = lesson };
    }
    if (selection.moduleID) {
        if (const Module *module = library.module(*selection.moduleID))
            return { .module = module };
    }
    return { .module = library.modules().isEmpty() ? nullptr : &library.modules().first() };
}

LessonNeighbours lessonNeighbours(const QString &lessonID, const ContentLibrary &library)
{
    const QList<Lesson> &lessons = library.lessons();
    const auto found = std::ranges::find(lessons, lessonID, &Lesson::id);
    const qsizetype index = found != lessons.end() ? found - lessons.begin() : 0;
    return {
        .previous = index > 0 ? &lessons.at(index - 1) : nullptr,
        .next = index + 1 < lessons.size() ? &lessons.at(index + 1) : nullptr,
    };
}
