#include "selfcheck/snapshot.h"

#include "content/contentkind.h"
#include "content/contentlibrary.h"
#include "kit/netstatus.h"
#include "kit/opener.h"
#include "kit/preferences.h"
#include "kit/snapshotmode.h"
#include "kit/themes.h"
#include "selfcheck/offscreen.h"
#include "selfcheck/scenecamera.h"
#include "selfcheck/shots.h"
#include "selfcheck/standardoutput.h"
#include "shell/appmodel.h"
#include "shell/setup.h"
#include "simulator/previewrenderer.h"
#include "store/hverror.h"
#include "store/sqlitedb.h"
#include "store/userstore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QQmlEngine>

#include <array>
#include <chrono>
#include <deque>
#include <future>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kOption = "--hv-snapshot"_L1;
constexpr qsizetype kFinishedLessons = 9;

QString samplePath()
{
    return QDir::temp().filePath(u"snapshot-sample.sqlite"_s);
}

void removeSample()
{
    for (const auto suffix : { ""_L1, "-wal"_L1, "-shm"_L1 })
        QFile::remove(samplePath() + suffix);
}

/// The sample data, in a file of their own for as long as this exists.
class SampleStore
{
public:
    SampleStore() { removeSample(); }
    ~SampleStore()
    {
        UserStore::setShared(nullptr);
        removeSample();
    }
    Q_DISABLE_COPY_MOVE(SampleStore)

    /// Throws HVError if the file can't be opened or written.
    void fill()
    {
        // The folder is everybody's, and the name is known: a link that somebody puts there must
        // lead nowhere, nor may a file of theirs be taken for ours.
        QFile sample(samplePath());
        if (!sample.open(QFile::NewOnly | QFile::WriteOnly, QFile::ReadOwner | QFile::WriteOwner))
            throw HVError(HVError::Kind::Database, sample.errorString());
        sample.close();
        UserStore::setShared(std::make_unique<UserStore>(QUrl::fromLocalFile(samplePath())));
        UserStore &store = *UserStore::shared();
        for (const Lesson &lesson : ContentLibrary::shared().lessons().first(
                 qMin(kFinishedLessons, ContentLibrary::shared().lessons().size())))
            store.setComplete(lesson.id, true);
        store.saveQuiz(u"m02"_s, 5, 6, QDateTime::currentDateTimeUtc());
        store.setBookmark(ContentKind::gear, u"tripod"_s, true);
        store.setBookmark(ContentKind::lesson, u"m03.2"_s, true);

        Note onLight{ .targetType = ContentKind::lesson,
            .targetID = u"m01.1"_s,
            .body = u"Light is the whole game. The camera only controls how much of it reaches "
                    "the sensor and for how long."_s };
        store.save(onLight);
        Note onTripods{ .targetType = ContentKind::gear,
            .targetID = u"tripod"_s,
            .body = u"For the mountain overlooks: carbon legs, ball head, and an L-bracket so I "
                    "can flip to vertical fast."_s };
        store.save(onTripods);

        // All of them within one tick of the clock or two, on this side of a minute or the other:
        // pictures would differ from run to run. These are an afternoon of November 2026.
        SQLiteDB(samplePath())
            .exec(u"UPDATE bookmarks SET created = 1794754000 + rowid;"
                  "UPDATE notes SET updated = 1794755040 + id"_s);
    }
};

// One scene for each subject, built once and photographed in every state.
class Studio
{
public:
    explicit Studio(QQmlEngine &engine)
        : m_engine(engine)
    { }

    [[nodiscard]] QImage take(const Shot &shot)
    {
        AppModel &model = AppModel::shared();
        model.setGlobalQuery({});
        model.setLessonID({});
        model.setQuizModuleID({});
        if (!shot.themeID.isEmpty())
            CRVNThemes::setCurrentID(shot.themeID);
        NetStatus::setOverride(shot.online);
        if (shot.arrange)
            shot.arrange(model);
        return scene(shot.subject).take(shot.size);
    }

private:
    SceneCamera &scene(Shot::Subject subject)
    {
        static constexpr std::array kFiles = { "CameraScene", "HelpScene", "DiagramScene" };
        std::unique_ptr<SceneCamera> &camera = m_cameras[size_t(subject)];
        if (!camera) {
            camera = std::make_unique<SceneCamera>(m_engine,
                QUrl(u"qrc:/qt/qml/Halvorin/Selfcheck/%1.qml"_s.arg(
                    QLatin1String(kFiles[size_t(subject)]))));
        }
        return *camera;
    }

    QQmlEngine &m_engine;
    std::array<std::unique_ptr<SceneCamera>, 3> m_cameras;
};

// Screens have no transparent places, and leaving them out saves a quarter of the work. So much
// compression makes files that are hardly larger than with the most, in a fraction of the time.
bool save(const QImage &image, const QString &path)
{
    constexpr int kQuality = 60;
    return !QFileInfo(path).isSymbolicLink() // somebody else's file may be behind it
        && image.convertToFormat(QImage::Format_RGB32).save(path, "PNG", kQuality);
}

/// Writes pictures in threads of their own, since encoding one takes as long as drawing the next,
/// and tells what has become of them in the order in which they came.
class Album
{
public:
    explicit Album(const QDir &folder)
        : m_folder(folder)
    { }

    void add(const QString &name, const QImage &image)
    {
        const QString path = m_folder.filePath(name + ".png"_L1);
        m_pages.push_back({ name, image.size(), std::async(std::launch::async, [image, path] {
                               return !image.isNull() && save(image, path);
                           }) });
        while (!m_pages.empty()
            && m_pages.front().written.wait_for(std::chrono::seconds(0))
                == std::future_status::ready)
            tellFirst();
    }

    /// Waits for all of them. How many could not be written.
    [[nodiscard]] int close()
    {
        while (!m_pages.empty())
            tellFirst();
        return m_failures;
    }

private:
    struct Page {
        QString name;
        QSize size;
        std::future<bool> written;
    };

    void tellFirst()
    {
        Page &page = m_pages.front();
        if (page.written.get()) {
            printLine(u"wrote %1.png %2x%3"_s.arg(page.name)
                          .arg(page.size.width())
                          .arg(page.size.height()));
        } else {
            printLine("could not render "_L1 + page.name);
            ++m_failures;
        }
        m_pages.pop_front();
    }

    QDir m_folder;
    std::deque<Page> m_pages;
    int m_failures = 0;
};

int takeAll(const QDir &folder)
{
    QQmlEngine engine;
    engine.addImportPath(u":/qt/qml"_s);
    Studio studio(engine);
    Album album(folder);
    for (const Shot &shot : allShots())
        album.add(shot.name, studio.take(shot));
    return album.close();
}

} // namespace

std::optional<int> HVSnapshot::handle(const QStringList &arguments)
{
    const qsizetype option = arguments.indexOf(kOption);
    if (option < 0 || option + 1 >= arguments.size())
        return std::nullopt;

    // A folder that can't be made shows in every picture that can't be written.
    const QDir folder(arguments.at(option + 1));
    QDir().mkpath(folder.path());

    const OffscreenApplication application;
    Preferences::shared().keepInMemory();
    SnapshotMode::enable();
    PreviewRenderer::setSynchronous(true);
    Opener::setAction([](const QUrl &) {});
    HVSetup::configure();

    try {
        SampleStore sample;
        sample.fill();
        return takeAll(folder) == 0 ? 0 : 1;
    } catch (const HVError &) {
        printLine(u"could not open sample file"_s);
        return 1;
    }
}
