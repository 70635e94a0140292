#include "shell/launch/halvorinapp.h"

#include "kit/fonts.h"
#include "kit/kit.h"
#include "kit/motion.h"
#include "kit/netstatus.h"
#include "kit/qml/kitwindows.h"
#include "selfcheck/diagramsheet.h"
#include "selfcheck/selftest/childmodes.h"
#include "selfcheck/selftest/selftest.h"
#include "selfcheck/snapshot.h"
#include "selfcheck/themesheet.h"
#include "shell/appmodel.h"
#include "shell/info.h"
#include "shell/launch/request.h"
#include "shell/launch/savepanel.h"
#include "shell/launch/scenegraph.h"
#include "shell/launch/singleinstance.h"
#include "shell/launch/terminationsignals.h"
#include "shell/setup.h"
#include "store/userstore.h"

#include <QApplication>
#include <QEventLoop>
#include <QQmlComponent>
#include <QTextStream>

#include <future>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kFontResolution = "QT_FONT_DPI";
constexpr auto kActivationToken = "XDG_ACTIVATION_TOKEN";

constexpr auto kHelp = R"(Usage: halvorin [option]

Opens the camera, or brings the one that is open to the front. Options:
  --continue             go on with the course
  --screen NAME          go to a screen: home, course, exposure, lens, history,
                         gear, workflow, videos or notes
  --help                 show this text
  --version              show the version
  --selftest             check the program and its course, say what was found and end
  --hv-snapshot FOLDER   render every screen to a PNG file in FOLDER and end

For developers:
  --diagram-sheet FILE   paint all gear drawings side by side to a PNG file and end
  --theme-sheet FILE     paint Campus in all themes side by side to a PNG file and end

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
    if (const std::optional<int> status = HVSelfTest::handleChild(arguments))
        return status;
    if (const std::optional<int> status = HVSnapshot::handle(arguments))
        return status;
    if (const std::optional<int> status = HVSelfTest::handle(arguments))
        return status;
    if (const std::optional<int> status = HVDiagramSheet::handle(arguments))
        return status;
    if (const std::optional<int> status = HVThemeSheet::handle(arguments))
        return status;
    if (arguments.contains("--help"_L1)) {
        print(kHelp);
        return 0;
    }
    if (arguments.contains("--version"_L1)) {
        print(HVInfo::appName + u' ' + HVInfo::version() + u'\n');
        return 0;
    }
    if (!Launch::requestIn(arguments)) {
        QTextStream(stderr) << Launch::usageOfScreen();
        return 2;
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

// Answers the engine, which asks this thread now and then, until it has read all types. Nothing of
// ours is in the event loop yet.
void waitUntilRead(const QQmlComponent &component)
{
    QEventLoop loop;
    QObject::connect(&component, &QQmlComponent::statusChanged, &loop, &QEventLoop::quit);
    if (component.isLoading())
        loop.exec();
}

} // namespace

HalvorinApp::HalvorinApp(int &argc, char **argv)
{
    if (qEnvironmentVariableIsSet(kFontResolution))
        m_fontResolution = qgetenv(kFontResolution);
    // One design point is one logical pixel, on every desktop.
    qputenv(kFontResolution, "72");

    const QStringList arguments = argumentList(argc, argv);
    m_status = statusOfModes(arguments);
    m_request = Launch::requestIn(arguments).value_or(QString());
    if (!m_status)
        start(argc, argv);
}

void HalvorinApp::start(int &argc, char **argv)
{
    SceneGraph::prepare();
    m_application = std::make_unique<QApplication>(argc, argv);
    QCoreApplication::setApplicationName(HVInfo::appName);
    QCoreApplication::setApplicationVersion(HVInfo::version());
    QGuiApplication::setDesktopFileName(u"crvn-halvorin"_s);

    m_instance = std::make_unique<SingleInstance>();
    if (!m_instance->isFirst())
        m_instance->callFirst(
            { .activationToken = qgetenv(kActivationToken), .request = m_request.toLatin1() });
    if (!m_instance->isFirst()) {
        m_status = 0;
        return;
    }
    QObject::connect(m_instance.get(), &SingleInstance::called, m_application.get(),
        [this](const SingleInstance::Call &call) {
            answer(call.activationToken, QString::fromLatin1(call.request));
        });

    HVSetup::configure();
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(u":/qt/qml"_s);
    m_kitWindows = std::make_unique<KitWindows>(*m_engine);
    QObject::connect(m_engine.get(), &QQmlEngine::quit, m_application.get(),
        &QCoreApplication::quit, Qt::QueuedConnection);
    QQmlComponent component(m_engine.get(),
        QUrl(u"qrc:/qt/qml/Halvorin/Window/HalvorinWindow.qml"_s), QQmlComponent::Asynchronous);
    // The engine reads the window's types in a thread of its own, another reads the course.
    const std::future<void> course = std::async(std::launch::async, HVSetup::prepareCourse);
    SceneGraph::choose();
    QGuiApplication::setFont(Fonts::rounded(12.5));
    waitUntilRead(component);

    // Only now: that loop would swallow the request, and until here there is nothing to bring home.
    Launch::quitOnTerminationSignals();
    HVSetup::openStore();
    course.wait();
    Launch::fulfill(m_request);

    m_window.reset(qobject_cast<QQuickWindow *>(component.create()));
    if (!m_window)
        qFatal("The window could not be built: %s", qPrintable(component.errorString()));
    AppModel::shared().setSavePanel(
        [this](const QString &name) { return Launch::askWhereToSave(m_window.get(), name); });
    const auto afterFirstFrame = [this] {
        tidyEnvironment();
        QGuiApplication::setWindowIcon(CRVNKitHost::icon());
        Motion::shared().followDesktop();
        NetStatus::shared().start();
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
    AppModel::shared().setSavePanel({});
    // Screens read the store while they are taken down; it closes after them.
    m_kitWindows.reset();
    m_window.reset();
    m_engine.reset();
    UserStore::setShared(nullptr);
}

int HalvorinApp::run()
{
    return m_status ? *m_status : QGuiApplication::exec();
}

void HalvorinApp::answer(const QByteArray &activationToken, const QString &request)
{
    if (m_window) {
        Launch::fulfill(request);
        bringToFront(activationToken);
    } else if (!request.isEmpty()) {
        m_request = request; // Course and progress aren't there yet.
    }
}

void HalvorinApp::bringToFront(const QByteArray &activationToken)
{
    QQuickWindow *camera = m_window.get();
    // The platform takes the token of the launch that asks from where a launch would leave it.
    if (!activationToken.isEmpty())
        qputenv(kActivationToken, activationToken);
    // Not show(), which makes a maximized window and one on the full screen small.
    camera->setWindowStates(camera->windowStates() & ~Qt::WindowMinimized);
    camera->setVisible(true);
    camera->raise();
    camera->requestActivate();
    qunsetenv(kActivationToken);
}

void HalvorinApp::tidyEnvironment() const
{
    // Qt has read the resolution with the first screen, and the token was for this launch.
    if (m_fontResolution)
        qputenv(kFontResolution, *m_fontResolution);
    else
        qunsetenv(kFontResolution);
    qunsetenv(kActivationToken);
}
