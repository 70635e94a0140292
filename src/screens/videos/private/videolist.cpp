#include "screens/videos/private/videolist.h"

#include "content/contentlibrary.h"
#include "content/text.h"
#include "shell/appmodel.h"

#include <algorithm>

VideoList::VideoList(QObject *parent)
    : RowModel(parent)
    , m_shown(VideoShelf::shown({}, ContentLibrary::shared()))
    , m_rows(VideoShelf::byModule(m_shown, ContentLibrary::shared()))
{
    show();
    connect(&AppModel::shared(), &AppModel::videoIDChanged, this, [this] {
        refresh("selected");
        Q_EMIT openChanged();
    });
}

void VideoList::setFilter(const QString &filter)
{
    if (m_filter == filter)
        return;
    m_filter = filter;
    m_shown = VideoShelf::shown(filter, ContentLibrary::shared());
    QList<VideoShelf::Row> rows = VideoShelf::byModule(m_shown, ContentLibrary::shared());
    // The same rows stay where they are scrolled to.
    if (rows != m_rows) {
        m_rows = std::move(rows);
        show();
    }
    Q_EMIT filterChanged();
    Q_EMIT openChanged();
}

void VideoList::show()
{
    using Row = VideoShelf::Row;
    showRows<Row>(m_rows,
        {
            { "videoID", [](const Row &row) { return row.video->id; } },
            { "title", [](const Row &row) { return row.video->title; } },
            { "byline", [](const Row &row) { return VideoShelf::byline(*row.video); } },
            { "moduleID", [](const Row &row) { return row.module->id; } },
            { "selected",
                [](const Row &row) { return AppModel::shared().videoID() == row.video->id; } },
        });
}

bool VideoList::isFiltering() const
{
    return !Text::trimmedBlanks(m_filter).isEmpty();
}

QString VideoList::outcome() const
{
    return isFiltering() ? VideoShelf::found(m_rows.size()) : QString();
}

int VideoList::selectedRow() const
{
    const AppModel::OptionalText &id = AppModel::shared().videoID();
    const auto isSelected = [&id](const VideoShelf::Row &row) { return id == row.video->id; };
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), isSelected);
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

QString VideoList::openID() const
{
    const Video *video
        = VideoShelf::selected(AppModel::shared().videoID(), m_shown, ContentLibrary::shared());
    return video ? video->id : QString();
}

void VideoList::open(int row) const
{
    if (row >= 0 && row < m_rows.size())
        AppModel::shared().setVideoID(m_rows.at(row).video->id);
}

QString VideoList::caption(const QString &moduleID) const
{
    const Module *module = ContentLibrary::shared().module(moduleID);
    return module ? module->title.toUpper() : QString();
}
