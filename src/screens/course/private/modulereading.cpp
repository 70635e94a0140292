#include "screens/course/private/modulereading.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

void ModuleReading::setModuleID(const QString &id)
{
    if (m_moduleID == id)
        return;
    m_moduleID = id;
    Q_EMIT moduleIDChanged();
}

QString ModuleReading::level() const
{
    const Module *module = ContentLibrary::shared().module(m_moduleID);
    return module ? module->level : QString();
}

QString ModuleReading::title() const
{
    const Module *module = ContentLibrary::shared().module(m_moduleID);
    return module ? module->title : tr("Course");
}

QString ModuleReading::summary() const
{
    const Module *module = ContentLibrary::shared().module(m_moduleID);
    return module ? module->summary : QString();
}

QString ModuleReading::quizTitle() const
{
    return tr("Take the module quiz (%1 questions)")
        .arg(ContentLibrary::shared().questionsIn(m_moduleID).size());
}

void ModuleReading::showLesson(const QString &lessonID)
{
    AppModel::shared().setLessonID(lessonID);
}

void ModuleReading::showQuiz()
{
    AppModel::shared().setQuizModuleID(m_moduleID);
}
