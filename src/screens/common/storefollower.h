// How screens follow the user's data.
#pragma once

#include "store/userstore.h"

#include <QObject>
#include <QSet>

/// Calls `refresh` of the owner whenever the user's data has changed. Without a store there is
/// nothing to follow. The store is the one at the time of the call: it is set before the first
/// screen exists and stays.
template <typename Owner>
void followStore(Owner *owner, void (Owner::*refresh)())
{
    if (UserStore *store = UserStore::shared())
        QObject::connect(store, &UserStore::revisionChanged, owner, refresh);
}

/// Whether the user has a bookmark on something; there is none without a store.
[[nodiscard]] inline bool hasBookmark(const QString &type, const QString &id)
{
    const UserStore *store = UserStore::shared();
    return store && store->isBookmarked(type, id);
}

/// Finished lessons; none without a store.
[[nodiscard]] inline QSet<QString> finishedLessons()
{
    const UserStore *store = UserStore::shared();
    return store ? store->completedLessons() : QSet<QString>();
}
