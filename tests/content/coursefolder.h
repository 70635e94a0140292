// A folder of course files that a test writes.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// The names of the course files, in the order in which they are read.
inline const QStringList kCourseFiles = { QStringLiteral("course.txt"),
    QStringLiteral("quizzes.txt"), QStringLiteral("gear.txt"), QStringLiteral("timeline.txt"),
    QStringLiteral("videos.tsv"), QStringLiteral("software.txt"), QStringLiteral("workflows.txt") };

/// Holds all course files, each empty until it is written. Gone with the object.
class CourseFolder
{
public:
    CourseFolder()
    {
        for (const QString &name : kCourseFiles)
            write(name, "");
    }

    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    void remove(const QString &name) const { ASSERT_TRUE(QFile::remove(path(name))); }

private:
    QTemporaryDir m_folder;
};
