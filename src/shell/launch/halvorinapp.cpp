#include "shell/launch/halvorinapp.h"

#include "kit/fonts.h"
#include "kit/zoom.h"
#include "selfcheck/diagramsheet.h"
#include "selfcheck/snapshot.h"
#include "shell/info.h"
#include "shell/launch/scenegraph.h"
#include "shell/launch/singleinstance.h"
#include "shell/launch/terminationsignals.h"
#include "shell/setup.h"
#include "store/userstore.h"

#include <QQmlComponent>
#include <QTextStream>

#include <future>

#ifdef __GLIBC__
#include <cstdlib>
#include <malloc.h>
#include <sys/mman.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr auto kHelp = R"(Usage: halvorin [option]

Opens the camera. Options:
  --help                 show this text
  --version              show the version
  --hv-snapshot FOLDER   render every screen to a PNG file in FOLDER and end

For developers:
  --diagram-sheet FILE   paint all gear drawings side by side to a PNG file and end

Environment:
  HV_CONTENT             folder of the course files
  HV_DB_PATH             path of the progress file
)"_L1;

void print(const QString &text)
{
    QTextStream(stdout) << text;
}

// Decided from the text of the arguments, before any object of Qt's exists.
std::optional<int> statusOfModes(const QStringList &arguments)
{
    if (const std::optional<int> status = HVSnapshot::handle(arguments))
        return status;
    if (const std::optional<int> status = HVDiagramSheet::handle(arguments))
        return status;
    if (arguments.contains("--help"_L1)) {
        print(kHelp);
        return 0;
    }
    if (arguments.contains("--version"_L1)) {
        print(HVInfo::appName + u' ' + HVInfo::version() + u'\n');
        return 0;
    }
    return std::nullopt;
}

QStringList argumentList(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

// Answers the engine until it has read all types. Once the typeface is known, the first screen's
// fonts are opened in between, one at a time: no question waits long. Nothing of ours is in the
// event loop yet.
void letEngineRead(const QQmlComponent &component, const std::shared_future<QFont> &typeface)
{
    using namespace std::chrono_literals;

    std::optional<QList<QFont>> fonts;
    while (component.isLoading()) {
        if (!fonts && typeface.wait_for(0s) == std::future_status::ready)
            fonts = HVSetup::firstFonts();
        const bool opensFonts = fonts && !fonts->isEmpty();
        QCoreApplication::processEvents(
            opensFonts ? QEventLoop::AllEvents : QEventLoop::WaitForMoreEvents);
        if (opensFonts)
            Fonts::ensureOpen(fonts->takeFirst());
    }
}

#ifdef __GLIBC__
// What a start takes from the heap arrives in large steps.
void prepareHeap()
{
    // The heap of a thread grows a page at a time unless told otherwise: hundreds of calls of the
    // system while the window's types are read. Setting the step fixes the other two limits, which
    // else follow use; these are where they end up.
    mallopt(M_TOP_PAD, 4 * 1024 * 1024);
    mallopt(M_MMAP_THRESHOLD, 32 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, 64 * 1024 * 1024);

    // Objects and pictures touch some 16 MB on the main thread before the first frame. In huge
    // pages that takes a third of all page faults away. Given back, the memory stays the heap's.
    constexpr std::size_t kHugePage = 2 * 1024 * 1024;
    constexpr std::size_t kTouched = 8 * kHugePage;
    if (void *heap = std::aligned_alloc(kHugePage, kTouched)) {
        madvise(heap, kTouched, MADV_HUGEPAGE);
        std::free(heap);
    }
}
#endif

} // namespace

void HalvorinApp::prepareEnvironment()
{
    // One design point is one logical pixel, on every desktop.
    qputenv("QT_FONT_DPI", "72");

#ifdef __GLIBC__
    prepareHeap();
#endif
}

HalvorinApp::HalvorinApp(int &argc, char **argv)
    : m_status(statusOfModes(argumentList(argc, argv)))
{
    if (!m_status)
        start(argc, argv);
}

void HalvorinApp::start(int &argc, char **argv)
{
    // The video player's engine shares its GL context with the window.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    m_application = std::make_unique<QGuiApplication>(argc, argv);
    QCoreApplication::setApplicationName(HVInfo::appName);
    QGuiApplication::setApplicationDisplayName(HVInfo::appName);
    QCoreApplication::setApplicationVersion(HVInfo::version());
    QGuiApplication::setDesktopFileName(u"crvn-halvorin"_s);

    m_instance = std::make_unique<SingleInstance>();
    if (!m_instance->isFirst()) {
        m_instance->callFirst(qgetenv("XDG_ACTIVATION_TOKEN"));
        m_status = 0;
        return;
    }
    QObject::connect(m_instance.get(), &SingleInstance::called, m_application.get(),
        [this](const QByteArray &token) { bringToFront(token); });

    // The engine reads the window's types in a thread of its own, which now and then waits for an
    // answer of this one. The typeface is found beside them, then the course is read: with more
    // threads than that each would wait for a processor.
    const std::shared_future<QFont> typeface
        = std::async(std::launch::async, [] { return Fonts::rounded(12.5); });
    const std::future<void> course = std::async(std::launch::async, [typeface] {
        typeface.wait();
        HVSetup::prepareCourse();
    });
    HVSetup::configure();
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(u":/qt/qml"_s);
    QObject::connect(m_engine.get(), &QQmlEngine::quit, m_application.get(),
        &QCoreApplication::quit, Qt::QueuedConnection);
    QQmlComponent component(m_engine.get(),
        QUrl(u"qrc:/qt/qml/Halvorin/Window/HalvorinWindow.qml"_s), QQmlComponent::Asynchronous);
    SceneGraph::choose();
    letEngineRead(component, typeface);
    QGuiApplication::setFont(typeface.get());

    // Only now: that loop would swallow the request, and until here there is nothing to bring home.
    quitOnTerminationSignals();
    HVSetup::openStore();
    course.wait();

    // All but this thread would be idle from here on.
    if (CNZoom::value() == 1) {
        const double ratio = m_application->devicePixelRatio();
        CameraBody::startAhead(
            HVSetup::firstBody(ratio, HVColors()), HVSetup::firstGlass(ratio, HVColors()));
    }

    m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
    if (!m_window)
        qFatal("The window could not be built: %s", qPrintable(component.errorString()));
    const auto afterFirstFrame = [this] {
        CameraBody::forgetAhead();
        m_indexing = HVSetup::indexCourse();
    };
    QObject::connect(m_window.get(), &QQuickWindow::frameSwapped, m_application.get(),
        afterFirstFrame, Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    m_window->show();
}

HalvorinApp::~HalvorinApp()
{
    if (m_indexing)
        m_indexing->wait();
    // Screens read the store while they are taken down; it closes after them.
    m_window.reset();
    m_engine.reset();
    UserStore::setShared(nullptr);
}

int HalvorinApp::run()
{
    return m_status ? *m_status : QGuiApplication::exec();
}

void HalvorinApp::bringToFront(const QByteArray &activationToken)
{
    QQuickWindow *camera = m_window.get();
    if (!camera)
        return;
    // The platform takes the token of the launch that asks from where a launch would leave it.
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken);
    // Not show(), which makes a maximized window and one on the full screen small.
    camera->setWindowStates(camera->windowStates() & ~Qt::WindowMinimized);
    camera->setVisible(true);
    camera->raise();
    camera->requestActivate();
}
