#include "screens/course/private/courseoutline.h"

#include "screens/common/storefollower.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

CourseOutline::CourseOutline(QObject *parent)
    : RowModel(parent)
{
    const AppModel &model = AppModel::shared();
    showRows<Module>(ContentLibrary::shared().modules(),
        {
            { "moduleID", &Module::id },
            { "title", &Module::title },
            { "open", [&model](const Module &module) { return model.moduleID() == module.id; } },
            { "quizOpen",
                [&model](const Module &module) { return model.quizModuleID() == module.id; } },
        });
    connect(&model, &AppModel::moduleIDChanged, this, [this] { refresh("open"); });
    connect(&model, &AppModel::quizModuleIDChanged, this, [this] { refresh("quizOpen"); });
}

void CourseOutline::toggleModule(const QString &moduleID)
{
    AppModel &model = AppModel::shared();
    if (model.moduleID() == moduleID)
        model.setModuleID({});
    else
        model.setModuleID(moduleID);
}

void CourseOutline::showLesson(const QString &lessonID)
{
    AppModel::shared().setLessonID(lessonID);
    AppModel::shared().setQuizModuleID({});
}

void CourseOutline::showQuiz(const QString &moduleID)
{
    AppModel::shared().setQuizModuleID(moduleID);
    AppModel::shared().setLessonID({});
}

LessonList::LessonList(QObject *parent)
    : RowModel(parent)
    , m_finished(finishedLessons())
{
    show();
    followStore(this, &LessonList::follow);
    connect(&AppModel::shared(), &AppModel::lessonIDChanged, this, [this] { refresh("current"); });
}

void LessonList::setModuleID(const QString &id)
{
    if (m_moduleID == id)
        return;
    m_moduleID = id;
    show();
    Q_EMIT moduleIDChanged();
}

void LessonList::show()
{
    showRows<Lesson>(ContentLibrary::shared().lessonsIn(m_moduleID),
        {
            { "lessonID", &Lesson::id },
            { "number", [](const Lesson &, int row) { return row + 1; } },
            { "title", &Lesson::title },
            { "minutes", &Lesson::minutes },
            { "finished", [this](const Lesson &lesson) { return m_finished.contains(lesson.id); } },
            { "current",
                [](const Lesson &lesson) { return AppModel::shared().lessonID() == lesson.id; } },
        });
}

void LessonList::follow()
{
    m_finished = finishedLessons();
    refresh("finished");
}
