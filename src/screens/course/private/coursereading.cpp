#include "screens/course/private/coursereading.h"

#include "screens/course/courseflow.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

CourseReading::CourseReading(QObject *parent)
    : QObject(parent)
{
    const AppModel *model = &AppModel::shared();
    connect(model, &AppModel::moduleIDChanged, this, &CourseReading::refresh);
    connect(model, &AppModel::lessonIDChanged, this, &CourseReading::refresh);
    connect(model, &AppModel::quizModuleIDChanged, this, &CourseReading::refresh);
    refresh();
}

void CourseReading::refresh()
{
    const AppModel &model = AppModel::shared();
    const CoursePane pane = coursePane({ .moduleID = model.moduleID(),
                                           .lessonID = model.lessonID(),
                                           .quizModuleID = model.quizModuleID() },
        ContentLibrary::shared());

    Kind kind = ModuleIntro;
    QString lessonID;
    QString moduleID = pane.module ? pane.module->id : QString();
    switch (pane.kind) {
    case CoursePane::Kind::Quiz:
        kind = Quiz;
        moduleID = pane.quizModuleID;
        break;
    case CoursePane::Kind::Lesson:
        kind = Lesson;
        lessonID = pane.lesson->id;
        break;
    case CoursePane::Kind::ModuleIntro:
        break;
    }
    if (kind == m_kind && lessonID == m_lessonID && moduleID == m_moduleID)
        return;
    m_kind = kind;
    m_lessonID = lessonID;
    m_moduleID = moduleID;
    Q_EMIT changed();
}
