// What a user waits for in the encyclopedia, with 160 entries and with 5,000; and for the history
// and the workflows.
//
// Budget: from the turn of the dial to the frame that shows the encyclopedia, 100 ms with 160
// entries and 200 ms with 5,000; scrolling, a frame of a display for each step of the wheel, 16 ms;
// a letter in the search to the frame that shows the list, 50 ms. 1440 × 948 window, offscreen,
// software scene graph.

#include "support/realwindow.h"

#include "content/contentlibrary.h"
#include "shell/appmodel.h"
#include "shell/launch/halvorinapp.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

HalvorinApp *g_app = nullptr;
QString g_courses; // A folder with the courses "160" and "5000".

// A course whose encyclopedia has so many entries, told apart by number.
QString makeCourse(const QString &from, const QString &root, int entries)
{
    const QString path = root + u'/' + QString::number(entries);
    QDir().mkpath(path);
    for (const QString &name : FullCourse::fileNames())
        QFile::copy(from + u'/' + name, path + u'/' + name);

    QFile file(path + u"/gear.txt"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("There is no gear.txt.");
    const QByteArray original = file.readAll();
    file.close();
    QByteArrayList records;
    for (qsizetype at = 0; at >= 0;) {
        const qsizetype next = original.indexOf("\n=== ", at + 1);
        records.append(original.mid(at, next < 0 ? -1 : next - at).trimmed());
        at = next;
    }
    if (!file.open(QIODevice::WriteOnly))
        qFatal("gear.txt can't be written.");
    for (int i = 0; i < entries; ++i) {
        QByteArray record = records.at(i % records.size());
        const qsizetype endOfID = record.indexOf('\n');
        if (i >= records.size())
            record.insert(endOfID, "-" + QByteArray::number(i));
        file.write(record + "\n\n");
    }
    return path;
}

void useCourse(int entries)
{
    AppModel::shared().setScreen(Screen::Home);
    AppModel::shared().setGearID({});
    AppModel::shared().setGearQuery({});
    auto library = std::make_unique<ContentLibrary>(g_courses + u'/' + QString::number(entries));
    if (library->gear().size() != entries)
        qFatal("The course has %d entries.", int(library->gear().size()));
    (void)library->index(); // made after the first frame of a real start
    ContentLibrary::setShared(std::move(library));
}

void open(benchmark::State &state, Screen screen)
{
    double longest = 0;
    for (auto _ : state) {
        AppModel::shared().setScreen(Screen::Home);
        settle();
        const double seconds
            = secondsToFrame(g_app->window(), [&] { AppModel::shared().setScreen(screen); });
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds * 1e3);
    }
    state.counters["longest_ms"] = longest;
}

void BM_OpenGear(benchmark::State &state)
{
    AppModel::shared().setScreen(Screen::Home);
    settle();
    useCourse(int(state.range(0)));
    open(state, Screen::Gear);
}
BENCHMARK(BM_OpenGear)
    ->Arg(160)
    ->Arg(5000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20);

void scroll(benchmark::State &state, Screen screen, QPointF place)
{
    AppModel::shared().setScreen(screen);
    settle();
    double longest = 0;
    int step = 0;
    for (auto _ : state) {
        const int turn = step++ / 60 % 2 ? 120 : -120; // there and back: each step moves
        const double seconds = secondsToFrame(g_app->window(), [&] {
            QWheelEvent wheel(place, place, {}, { 0, turn }, Qt::NoButton, Qt::NoModifier,
                Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(g_app->window(), &wheel);
        });
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds * 1e3);
    }
    state.counters["longest_ms"] = longest;
}

void BM_ScrollGear(benchmark::State &state)
{
    AppModel::shared().setScreen(Screen::Home);
    settle();
    useCourse(int(state.range(0)));
    scroll(state, Screen::Gear, { 420, 600 });
}
BENCHMARK(BM_ScrollGear)
    ->Arg(160)
    ->Arg(5000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(240);

// The letters of "tripod" one after the other, then none.
void BM_SearchGear(benchmark::State &state)
{
    AppModel::shared().setScreen(Screen::Home);
    settle();
    useCourse(int(state.range(0)));
    AppModel::shared().setScreen(Screen::Gear);
    settle();
    const QString words = u"tripod"_s;
    double longest = 0;
    int step = 0;
    for (auto _ : state) {
        const double seconds = secondsToFrame(g_app->window(),
            [&] { AppModel::shared().setGearQuery(words.left(++step % (words.size() + 1))); });
        state.SetIterationTime(seconds);
        longest = std::max(longest, seconds * 1e3);
        settle();
    }
    state.counters["longest_ms"] = longest;
}
BENCHMARK(BM_SearchGear)
    ->Arg(160)
    ->Arg(5000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(21);

void BM_OpenHistory(benchmark::State &state)
{
    open(state, Screen::History);
}
BENCHMARK(BM_OpenHistory)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_OpenWorkflows(benchmark::State &state)
{
    open(state, Screen::Workflow);
}
BENCHMARK(BM_OpenWorkflows)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    const BenchHome home;
    g_courses = home.path();
    for (const int entries : { 160, 5000 })
        (void)makeCourse(home.coursePath(), g_courses, entries);

    HalvorinApp app(argc, argv);
    g_app = &app;
    benchmark::RunSpecifiedBenchmarks();
}
