#include "support/program.h"

#include "support/testcourse.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <csignal>
#include <utility>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace StoreTesting;

namespace {

// A program that hasn't got there after so long hangs.
constexpr int kPatience = 60000; // ms
constexpr int kPause = 10;       // ms between two looks at a file that must appear

class Descriptor
{
public:
    explicit Descriptor(int number)
        : m_number(number)
    { }
    ~Descriptor() { ::close(m_number); }
    Q_DISABLE_COPY_MOVE(Descriptor)

    operator int() const { return m_number; }

private:
    int m_number;
};

// Calls the program without a word and waits until it has hung up, which only its event loop does.
// False at once if nobody listens.
bool isAnswered(const QString &path, int patience)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (size_t(name.size()) >= sizeof(address.sun_path))
        qFatal("Too long for a socket: %s", name.constData());
    std::copy(name.begin(), name.end(), address.sun_path);

    const Descriptor caller(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (::connect(caller, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0)
        return false;
    ::shutdown(caller, SHUT_WR);
    pollfd end{ .fd = caller, .events = POLLIN, .revents = 0 };
    char byte;
    return ::poll(&end, 1, patience) == 1 && ::read(caller, &byte, 1) == 0;
}

} // namespace

Home::Home()
    : environment(QProcessEnvironment::systemEnvironment())
{
    // What belongs to the desktop and the settings of whoever runs the tests.
    for (const QString &name : environment.keys()) {
        const bool isOfQt = name.startsWith("QT_"_L1) || name.startsWith("QSG_"_L1);
        if ((isOfQt && !name.endsWith("_PATH"_L1)) || name.startsWith("HV_"_L1)
            || name.startsWith("XDG_"_L1) || name == "DISPLAY"_L1 || name == "WAYLAND_DISPLAY"_L1)
            environment.remove(name);
    }
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);

    const QList<std::pair<QString, QString>> folders = {
        { u"HOME"_s, path() },
        { u"XDG_DATA_HOME"_s, path(u"data"_s) },
        { u"XDG_CONFIG_HOME"_s, path(u"config"_s) },
        { u"XDG_CACHE_HOME"_s, path(u"cache"_s) },
        { u"XDG_RUNTIME_DIR"_s, path(u"run"_s) },
        { u"TMPDIR"_s, temporaryFolder() },
    };
    for (const auto &[variable, folder] : folders) {
        environment.insert(variable, folder);
        QDir().mkpath(folder);
        // A runtime folder that others can look into isn't taken for one.
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    TestCourse::write(courseFolder());
    environment.insert(u"HV_CONTENT"_s, courseFolder());
}

QString Home::progressFile() const
{
    return dataFolder() + u"/My Progress.sqlite"_s;
}

QString Home::preferencesFile() const
{
    return path(u"config/CRVN Halvorin/CRVN Halvorin.json"_s);
}

QString Home::socket() const
{
    return path(u"run/crvn-halvorin.socket"_s);
}

Fingerprint Home::fingerprint() const
{
    Fingerprint everything = StoreTesting::fingerprint(path());
    QDirIterator folders(
        path(), QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (folders.hasNext()) {
        const QString folder = folders.next();
        const Fingerprint entries = StoreTesting::fingerprint(folder);
        for (auto [name, content] : entries.asKeyValueRange())
            everything.insert(folder + u'/' + name, content);
    }
    return everything;
}

Program::Program(const Home &home, const QStringList &arguments, const Preparation &preparation)
    : m_socket(home.socket())
    , m_temporaryFolder(home.temporaryFolder())
{
    m_process.setProcessEnvironment(home.environment);
    m_process.setWorkingDirectory(home.path());
    if (preparation)
        m_process.setChildProcessModifier(preparation);
    m_process.start(QStringLiteral(HV_TEST_PROGRAM), arguments);
    if (!m_process.waitForStarted())
        qFatal("%s", qPrintable(m_process.errorString()));
}

Program::~Program()
{
    m_process.kill();
    m_process.waitForFinished();
}

bool Program::hasProgressFileOpen() const
{
    const QDir descriptors(u"/proc/%1/fd"_s.arg(m_process.processId()));
    for (const QFileInfo &descriptor : descriptors.entryInfoList(QDir::Files | QDir::System)) {
        // The index that SQLite keeps beside a file that it has open.
        const QString file = descriptor.symLinkTarget();
        if (file.endsWith(".sqlite-shm"_L1) && !file.startsWith(m_temporaryFolder))
            return true;
    }
    return false;
}

bool Program::waitUntilItAnswers()
{
    // A launch may answer while it still reads the window's parts. It opens the progress file when
    // these are there, and answers nothing more before the window is up.
    const QDeadlineTimer deadline(kPatience);
    while (!hasProgressFileOpen() || !isAnswered(m_socket, int(deadline.remainingTime()))) {
        // A pause that the end of the program cuts short.
        if (m_process.waitForFinished(kPause) || deadline.hasExpired())
            return false;
    }
    return isRunning();
}

std::optional<int> Program::status()
{
    if (isRunning() && !m_process.waitForFinished(kPatience))
        return std::nullopt;
    if (m_process.exitStatus() != QProcess::NormalExit)
        return std::nullopt;
    return m_process.exitCode();
}

bool Program::isRunning()
{
    // Takes notice of an end that has come about meanwhile.
    m_process.waitForFinished(0);
    return m_process.state() == QProcess::Running;
}

bool Program::handles(int signal) const
{
    QFile status(u"/proc/%1/status"_s.arg(m_process.processId()));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("SigCgt:"))
            return line.mid(7).trimmed().toULongLong(nullptr, 16) >> (signal - 1) & 1;
    }
    return false;
}

void Program::send(int signal)
{
    ::kill(pid_t(m_process.processId()), signal);
}

QString Program::output()
{
    return QString::fromUtf8(m_process.readAllStandardOutput());
}

QString Program::complaints()
{
    return QString::fromUtf8(m_process.readAllStandardError());
}
