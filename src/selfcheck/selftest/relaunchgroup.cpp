#include "selfcheck/selftest/groups.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kTrivialDigest = 40; // characters; one of so few doesn't prove much

// The first line that begins so; empty if there is none.
QString lineOf(const QString &output, QLatin1StringView beginning)
{
    const QStringList lines = output.split(u'\n');
    const auto found = std::ranges::find_if(
        lines, [&](const QString &line) { return line.startsWith(beginning); });
    return found != lines.end() ? *found : QString();
}

} // namespace

void HVSelfTest::relaunchTests(HVTestRun &run, const QString &folder, const ChildRunner &runChild)
{
    run.begin(u"Progress, quiz scores, bookmarks and notes survive quitting and reopening"_s);

    const QString file = QDir(folder).filePath(u"relaunch.sqlite"_s);
    const ChildResult writer = runChild({ u"--hv-child-write"_s, file });
    const ChildResult reader = runChild({ u"--hv-child-read"_s, file });
    const QString written = lineOf(writer.output, "DIGEST|"_L1);
    const QString read = lineOf(reader.output, "DIGEST|"_L1);
    const QString counts = lineOf(reader.output, "COUNTS|"_L1);

    run.check(writer.status == 0 && reader.status == 0,
        u"two separate app processes wrote and then read the file (exit %1, %2)"_s
            .arg(writer.status)
            .arg(reader.status));
    run.check(!read.isEmpty() && read == written && read.size() > kTrivialDigest,
        u"everything read back exactly as written"_s);
    run.check(counts == "COUNTS|2|1|1|2"_L1,
        u"2 finished lessons, 1 quiz score, 1 bookmark, 2 notes after relaunch ("_s + counts
            + u')');
    run.check(read.contains(kWrittenNote), u"note text with accents and symbols kept exactly"_s);
}
