// A small course and a progress file for tests of screens: real files in a scratch folder, in the
// place of the shared ones.
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace CourseTesting {

/// Which course stands in the scratch folder.
///
/// Small has four lessons in this order, and three modules:
///   light   Beginner   l1 (7 min), l2 (5 min); two questions
///   time    Advanced   l3 (12 min); no question
///   later              no lesson
/// The last lesson, stray, belongs to a module that isn't there. Of l1's two gear ids and two video
/// ids the first names something and the second nothing; l2's name nothing at all.
///
/// Library has gear, a timeline and programs, among them what no editor would write:
///   gear      tripod (Supports, two examples), monopod (Supports; its text names a tripod),
///             fast-prime (Lenses), and the odd ones: bare (Odd; no text, no drawing, no example),
///             crowded (100 examples), long (a name of 500 characters), arabic (from right to
///             left), accents (letters with many marks)
///   timeline  digital (1991, The digital era), obscura (1015, Pioneers), later (2000, Digital),
///             daguerre (1839, Pioneers)
///   software  darkroom, lightbox (Raw editor), archive (Catalog; no address)
///   workflow  load, develop
///
/// Films has the modules and lessons of Small, and videos in this order:
///   shutters_01 (time), abcdefghijk (light), nobodysfilm (no module), nopinhole_2 (light)
///
/// Bare has one module without lessons, Empty has no file at all.
enum class Course { Small, Library, Films, Bare, Empty };

/// While it lives, the shared course and the shared progress file are its own, and AppModel is as
/// at launch. Preferences live in memory and hold neither theme nor zoom. Afterwards no progress
/// file is open, and AppModel is as at launch again. Whatever looks at the course or the file must
/// be gone by then.
class World
{
public:
    enum class Store { Fresh, None };

    explicit World(Course course = Course::Small, Store store = Store::Fresh);
    ~World();
    World(const World &) = delete;
    World &operator=(const World &) = delete;

    /// From here on there is no room for another byte. Reads go on.
    static void fillDisk();

    /// A path in the scratch folder.
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] QString progressPath() const;

private:
    QTemporaryDir m_folder;
};

/// The lessons of the small course in their order.
[[nodiscard]] QStringList lessonIDs();

} // namespace CourseTesting
