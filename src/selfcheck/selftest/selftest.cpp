#include "selfcheck/selftest/selftest.h"

#include "kit/opener.h"
#include "kit/preferences.h"
#include "selfcheck/offscreen.h"
#include "selfcheck/selftest/groups.h"
#include "selfcheck/selftest/mutation.h"
#include "selfcheck/standardoutput.h"
#include "shell/setup.h"

#include <QDateTime>
#include <QDir>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

// The folder of one run, gone with the object. One that can't be made shows in the checks that
// need it.
class ScratchFolder
{
public:
    ScratchFolder()
        : m_folder(QDir::temp().filePath(
            "hv-selftest-"_L1 + QUuid::createUuid().toString(QUuid::WithoutBraces)))
    {
        m_folder.mkpath(u"."_s);
    }
    ~ScratchFolder() { m_folder.removeRecursively(); }
    Q_DISABLE_COPY_MOVE(ScratchFolder)

    [[nodiscard]] QString path() const { return m_folder.path(); }

private:
    QDir m_folder;
};

// Takes what would go to the browser.
class OpenedAddresses
{
public:
    OpenedAddresses()
    {
        Opener::setAction([this](const QUrl &address) { m_addresses.append(address); });
    }
    ~OpenedAddresses() { Opener::setAction({}); }
    Q_DISABLE_COPY_MOVE(OpenedAddresses)

    [[nodiscard]] const QList<QUrl> &list() const { return m_addresses; }
    void clear() { m_addresses.clear(); }

private:
    QList<QUrl> m_addresses;
};

QString banner(const QString &mutation)
{
    QString line
        = u"CRVN Halvorin self-test — "_s + QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    if (!mutation.isEmpty())
        line += u" — MUTATION \"" + mutation + "\": failures are EXPECTED"_L1;
    return line;
}

QString result(const HVTestRun &run)
{
    const QString counts = u"RESULT: %1 passed, %2 failed"_s.arg(run.passed()).arg(run.failed());
    return run.failed() == 0 ? QString(counts + u" — ALL CHECKS PASSED") : counts;
}

} // namespace

namespace HVSelfTest {

int run()
{
    const OffscreenApplication application;
    const QString mutation = qEnvironmentVariable(kMutationVariable);
    HVMutation::activate(mutation);
    OpenedAddresses opened;
    HVTestRun run;
    printLine(banner(mutation));
    const ScratchFolder scratch;
    // Themes and zoom change; a run that is killed half-way must not leave the user with them.
    Preferences::shared().keepInMemory();
    HVSetup::configure();

    contentTests(run);
    mathTests(run);
    simulatorTests(run);
    lensLabTests(run);
    searchTests(run);
    relaunchTests(run, scratch.path());
    lookAndHelpTests(run);
    videoTests(
        run, [&opened] { return opened.list(); }, [&opened] { opened.clear(); });

    printLine({});
    printLine(result(run));
    return run.failed() == 0 ? 0 : 1;
}

std::optional<int> handle(const QStringList &arguments)
{
    return arguments.contains("--selftest"_L1) ? std::optional(run()) : std::nullopt;
}

} // namespace HVSelfTest
