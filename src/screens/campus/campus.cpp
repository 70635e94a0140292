#include "screens/campus/campus.h"

#include "screens/common/storefollower.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

#include <algorithm>

Campus::Campus(QObject *parent)
    : QAbstractListModel(parent)
    , m_finished(finishedLessons())
{
    followStore(this, &Campus::refresh);
}

int Campus::total() const
{
    return int(ContentLibrary::shared().lessons().size());
}

QString Campus::continueTitle() const
{
    const Lesson *next = AppModel::shared().nextLesson(UserStore::shared());
    if (!next)
        return {};
    return m_finished.isEmpty() ? tr("Start lesson 1") : tr("Continue: %1").arg(next->title);
}

int Campus::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ContentLibrary::shared().modules().size());
}

QVariant Campus::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ContentLibrary &library = ContentLibrary::shared();
    const Module &module = library.modules().at(index.row());
    switch (role) {
    case ModuleIDRole:
        return module.id;
    case LevelRole:
        return module.level;
    case TitleRole:
        return module.title;
    case SummaryRole:
        return module.summary;
    case DoneInRole: {
        const auto lessons = library.lessonsIn(module.id);
        return int(std::ranges::count_if(
            lessons, [this](const Lesson &lesson) { return m_finished.contains(lesson.id); }));
    }
    case LessonsInRole:
        return int(library.lessonsIn(module.id).size());
    default:
        return {};
    }
}

QHash<int, QByteArray> Campus::roleNames() const
{
    return { { ModuleIDRole, "moduleID" }, { LevelRole, "level" }, { TitleRole, "title" },
        { SummaryRole, "summary" }, { DoneInRole, "doneIn" }, { LessonsInRole, "lessonsIn" } };
}

void Campus::refresh()
{
    m_finished = finishedLessons();
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), { DoneInRole });
    Q_EMIT progressChanged();
}
