#include "screens/course/private/courseoutline.h"

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
