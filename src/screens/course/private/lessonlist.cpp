#include "screens/course/private/lessonlist.h"

#include "screens/common/storefollower.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

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
