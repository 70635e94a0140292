// Pictures that are kept for whoever wants them next, within a bound.
#pragma once

#include <QCache>
#include <QMutex>

namespace Painting {

/// Keeps what was asked for lately, by what it shows. All together takes no more than `limit` bytes
/// of pixels: what nobody has asked for longest goes first, and what alone takes more isn't kept.
/// Whoever was given a picture holds it for as long as he likes. Safe on any thread.
///
/// `Picture` is what is handed out by copy: a QImage, or the future of one.
template <typename Key, typename Picture>
class PictureCache
{
public:
    explicit PictureCache(qsizetype limit)
        : m_kept(limit)
    { }

    /// The picture under `key`; if none is kept, the one that `make` returns, of so many bytes.
    /// Nobody waits for `make`: of threads that miss the same picture at once each makes it, and
    /// the first is given to all.
    template <typename Make>
    [[nodiscard]] Picture picture(const Key &key, qsizetype bytes, const Make &make)
    {
        QMutexLocker lock(&m_mutex);
        if (const Picture *kept = m_kept.object(key))
            return *kept;
        lock.unlock();
        Picture made = make();
        lock.relock();
        if (const Picture *kept = m_kept.object(key))
            return *kept;
        // Even an empty picture takes its place in the table.
        m_kept.insert(key, new Picture(made), bytes + qsizetype(sizeof(Key) + sizeof(Picture)));
        return made;
    }

    /// Bytes of what is kept; never more than the limit.
    [[nodiscard]] qsizetype bytes() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_kept.totalCost();
    }

private:
    mutable QMutex m_mutex;
    QCache<Key, Picture> m_kept;
};

} // namespace Painting
