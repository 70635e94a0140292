// What a gear drawing costs before the encyclopedia can show it.
//
// Budget, on one core in the software rasterizer: 4 ms for the largest drawing at the size of its
// page, and 16 ms, one frame, for a list's first page of twenty thumbnails.

#include "diagrams/diagrampainter.h"
#include "kit/picture.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>

namespace {

constexpr QSize kPage(500, 325);
constexpr QSize kThumbnail(42, 27);

void paint(QSize size, DiagramKind kind)
{
    const std::shared_future<QImage> picture
        = Painting::paintAsync(size, size, [size, kind](QPainter &painter) {
              const DiagramPainter diagram{ .ctx = painter,
                  .size = size,
                  .ink = QColor(140, 217, 255),
                  .text = QColor(219, 219, 219) };
              diagram.draw(kind);
          });
    benchmark::DoNotOptimize(picture.get().constBits());
}

void BM_PaintTheLargestDrawing(benchmark::State &state)
{
    for (auto _ : state)
        paint(kPage, DiagramKind::Sensor);
}

void BM_PaintAnAverageDrawing(benchmark::State &state)
{
    size_t i = 0;
    for (auto _ : state)
        paint(kPage, allDiagramKinds()[i++ % allDiagramKinds().size()]);
}

void BM_PaintTwentyThumbnails(benchmark::State &state)
{
    size_t i = 0;
    for (auto _ : state) {
        for (int n = 0; n < 20; ++n)
            paint(kThumbnail, allDiagramKinds()[i++ % allDiagramKinds().size()]);
    }
}

BENCHMARK(BM_PaintTheLargestDrawing)
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PaintAnAverageDrawing)
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PaintTwentyThumbnails)
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "72");
    const QGuiApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
