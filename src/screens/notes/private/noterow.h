// What lists of notes show of a note.
#pragma once

#include "store/dateformatter.h"
#include "store/userstore.h"

#include "content/contentlibrary.h"

/// The day and time of a note's last change.
[[nodiscard]] inline QString changedText(const Note &note)
{
    static const DateFormatter dates;
    return dates.dayAndTime(note.updated);
}

/// What a target is called in the course of this process.
[[nodiscard]] inline QString targetTitle(const QString &type, const QString &id)
{
    return UserStore::title(type, id, ContentLibrary::shared());
}
