// A course of the size that the program is made for, to measure with.
#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// The seven files of a course of 14 modules, 70 lessons and 160 gear entries, about 620 KB, or of
/// several such courses in one, in a folder that lives as long as this.
class FullCourse
{
public:
    explicit FullCourse(int courses = 1);

    [[nodiscard]] static const QStringList &fileNames();

    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] qint64 size() const { return m_size; } ///< Bytes.

private:
    QTemporaryDir m_folder;
    qint64 m_size = 0;
};
