// What the second process writes, known to the tests that look for it afterwards.
#pragma once

#include <QString>

/// The body of the note that a writing child saves under a key, "<name>.<number>": from a few bytes
/// to several pages of the file.
[[nodiscard]] inline QString childNote(const QString &key)
{
    const int number = key.section(u'.', -1).toInt();
    return key + u'|' + QString(number * 997 % 15000, u'x');
}
