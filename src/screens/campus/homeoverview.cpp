#include "screens/campus/homeoverview.h"

#include "screens/common/storefollower.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"

#include <algorithm>

HomeOverview::HomeOverview(QObject *parent)
    : RowModel(parent)
    , m_finished(finishedLessons())
{
    const ContentLibrary &library = ContentLibrary::shared();
    showRows<Module>(library.modules(),
        {
            { "moduleID", &Module::id },
            { "level", &Module::level },
            { "title", &Module::title },
            { "summary", &Module::summary },
            { "doneIn",
                [this, &library](const Module &module) {
                    return int(std::ranges::count_if(library.lessonsIn(module.id),
                        [this](const Lesson &lesson) { return m_finished.contains(lesson.id); }));
                } },
            { "lessonsIn",
                [&library](
                    const Module &module) { return int(library.lessonsIn(module.id).size()); } },
        });
    followStore(this, &HomeOverview::follow);
}

int HomeOverview::total() const
{
    return int(ContentLibrary::shared().lessons().size());
}

QString HomeOverview::continueTitle() const
{
    const Lesson *next = AppModel::shared().nextLesson(UserStore::shared());
    if (!next)
        return {};
    return m_finished.isEmpty() ? tr("Start lesson 1") : tr("Continue: %1").arg(next->title);
}

void HomeOverview::follow()
{
    m_finished = finishedLessons();
    refresh("doneIn");
    Q_EMIT progressChanged();
}
