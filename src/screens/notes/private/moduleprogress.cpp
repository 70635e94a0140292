#include "screens/notes/private/moduleprogress.h"

#include "screens/common/storefollower.h"

#include "content/contentlibrary.h"

#include <algorithm>

ModuleProgress::ModuleProgress(QObject *parent)
    : RowModel(parent)
    , m_finished(finishedLessons())
{
    const ContentLibrary &library = ContentLibrary::shared();
    showRows<Module>(library.modules(),
        {
            { "title", &Module::title },
            { "done",
                [this, &library](const Module &module) {
                    return int(std::ranges::count_if(library.lessonsIn(module.id),
                        [this](const Lesson &lesson) { return m_finished.contains(lesson.id); }));
                } },
            { "total",
                [&library](
                    const Module &module) { return int(library.lessonsIn(module.id).size()); } },
            { "quiz",
                [](const Module &module) {
                    const UserStore *store = UserStore::shared();
                    const auto best = store ? store->bestScore(module.id) : std::nullopt;
                    return best ? tr("quiz %1/%2").arg(best->score).arg(best->total)
                                : tr("no quiz yet");
                } },
        });
    followStore(this, &ModuleProgress::follow);
}

QString ModuleProgress::caption() const
{
    return tr("PROGRESS — %1 of %2 lessons")
        .arg(m_finished.size())
        .arg(ContentLibrary::shared().lessons().size());
}

void ModuleProgress::follow()
{
    m_finished = finishedLessons();
    refresh("done");
    refresh("quiz");
    Q_EMIT captionChanged();
}
