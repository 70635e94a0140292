#include "content/contentlibrary.h"

#include "shell/info.h"

#include <algorithm>
#include <iterator>

namespace {

constinit std::unique_ptr<const ContentLibrary> sharedLibrary;

template <typename Value>
const Value *withID(const QList<Value> &values, QStringView id)
{
    const auto found = std::find_if(
        values.begin(), values.end(), [id](const Value &value) { return value.id == id; });
    return found == values.end() ? nullptr : &*found;
}

template <typename Value>
QList<Value> inModule(const QList<Value> &values, QStringView moduleID)
{
    QList<Value> result;
    std::copy_if(values.begin(), values.end(), std::back_inserter(result),
        [moduleID](const Value &value) { return value.moduleID == moduleID; });
    return result;
}

} // namespace

ContentLibrary::ContentLibrary(const QString &folder)
    : m_course(Content::readCourse(folder))
{
    m_background.setMaxThreadCount(1);
    m_background.setExpiryTimeout(-1); // A new thread may begin in another part of the heap.
}

ContentLibrary::~ContentLibrary()
{
    m_background.waitForDone();
    // What the last search has left is taken down by whoever may search.
    const std::scoped_lock lock(m_searching);
}

const ContentLibrary &ContentLibrary::shared()
{
    if (!sharedLibrary)
        sharedLibrary = std::make_unique<const ContentLibrary>(HVInfo::contentFolder());
    return *sharedLibrary;
}

void ContentLibrary::setShared(std::unique_ptr<const ContentLibrary> library)
{
    sharedLibrary = std::move(library);
}

const ContentLibrary::Index &ContentLibrary::madeIndex() const
{
    std::call_once(m_indexIsMade, [this] { m_index = makeIndex(); });
    return m_index;
}

QStringList ContentLibrary::loadErrors() const
{
    QStringList errors = m_course.loadErrors;
    if (const Index &index = madeIndex(); !index.database)
        errors.append(index.error);
    return errors;
}

const SQLiteDB *ContentLibrary::index() const
{
    const Index &index = madeIndex();
    return index.database ? &*index.database : nullptr;
}

const Module *ContentLibrary::module(QStringView id) const
{
    return withID(m_course.modules, id);
}

const Lesson *ContentLibrary::lesson(QStringView id) const
{
    return withID(m_course.lessons, id);
}

const GearEntry *ContentLibrary::gearEntry(QStringView id) const
{
    return withID(m_course.gear, id);
}

const Video *ContentLibrary::video(QStringView id) const
{
    return withID(m_course.videos, id);
}

QList<Lesson> ContentLibrary::lessonsIn(QStringView moduleID) const
{
    return inModule(m_course.lessons, moduleID);
}

QList<Question> ContentLibrary::questionsIn(QStringView moduleID) const
{
    return inModule(m_course.questions, moduleID);
}

QStringList ContentLibrary::gearCategories() const
{
    QStringList categories;
    for (const GearEntry &entry : m_course.gear)
        categories.append(entry.category);
    categories.removeDuplicates();
    return categories;
}

QList<GearModel> ContentLibrary::namedModels() const
{
    QList<GearModel> models;
    for (const GearEntry &entry : m_course.gear)
        models.append(entry.models);
    return models;
}
