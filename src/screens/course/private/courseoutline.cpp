#include "screens/course/private/courseoutline.h"

#include "screens/common/storefollower.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

CourseOutline::CourseOutline(QObject *parent)
    : QAbstractListModel(parent)
{
    connect(&AppModel::shared(), &AppModel::moduleIDChanged, this, [this] { refresh(OpenRole); });
    connect(&AppModel::shared(), &AppModel::quizModuleIDChanged, this,
        [this] { refresh(QuizOpenRole); });
}

int CourseOutline::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ContentLibrary::shared().modules().size());
}

QVariant CourseOutline::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Module &module = ContentLibrary::shared().modules().at(index.row());
    switch (role) {
    case ModuleIDRole:
        return module.id;
    case TitleRole:
        return module.title;
    case OpenRole:
        return AppModel::shared().moduleID() == module.id;
    case QuizOpenRole:
        return AppModel::shared().quizModuleID() == module.id;
    default:
        return {};
    }
}

QHash<int, QByteArray> CourseOutline::roleNames() const
{
    return { { ModuleIDRole, "moduleID" }, { TitleRole, "title" }, { OpenRole, "open" },
        { QuizOpenRole, "quizOpen" } };
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

void CourseOutline::refresh(Role role)
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), { role });
}

LessonList::LessonList(QObject *parent)
    : QAbstractListModel(parent)
    , m_finished(finishedLessons())
{
    followStore(this, &LessonList::refreshFinished);
    connect(&AppModel::shared(), &AppModel::lessonIDChanged, this, &LessonList::refreshCurrent);
}

void LessonList::setModuleID(const QString &id)
{
    if (m_moduleID == id)
        return;
    beginResetModel();
    m_moduleID = id;
    m_lessons.clear();
    for (const Lesson &lesson : ContentLibrary::shared().lessons()) {
        if (lesson.moduleID == id)
            m_lessons.append(&lesson);
    }
    endResetModel();
    Q_EMIT moduleIDChanged();
}

int LessonList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lessons.size());
}

QVariant LessonList::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Lesson &lesson = *m_lessons.at(index.row());
    switch (role) {
    case LessonIDRole:
        return lesson.id;
    case NumberRole:
        return index.row() + 1;
    case TitleRole:
        return lesson.title;
    case MinutesRole:
        return lesson.minutes;
    case FinishedRole:
        return m_finished.contains(lesson.id);
    case CurrentRole:
        return AppModel::shared().lessonID() == lesson.id;
    default:
        return {};
    }
}

QHash<int, QByteArray> LessonList::roleNames() const
{
    return { { LessonIDRole, "lessonID" }, { NumberRole, "number" }, { TitleRole, "title" },
        { MinutesRole, "minutes" }, { FinishedRole, "finished" }, { CurrentRole, "current" } };
}

void LessonList::refreshFinished()
{
    m_finished = finishedLessons();
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), { FinishedRole });
}

void LessonList::refreshCurrent()
{
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), { CurrentRole });
}
