// What the Exposure Lab and the Lens Lab wait for.
//
// Budget: a step of a slider is rendered within a display's frame, 16 ms, and a table of four
// thumbnails within 50 ms.
#include "simulator/lenslab.h"
#include "simulator/scenerenderer.h"

#include <benchmark/benchmark.h>

namespace {

void BM_RenderExposureLabPreview(benchmark::State &state)
{
    const SceneRenderer &renderer = SceneRenderer::shared();
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.render({}));
}
BENCHMARK(BM_RenderExposureLabPreview)->Unit(benchmark::kMillisecond)->UseRealTime();

// The background melts, the cyclist smears.
void BM_RenderExposureLabPreviewAtWorst(benchmark::State &state)
{
    const SceneRenderer &renderer = SceneRenderer::shared();
    SimSettings settings;
    settings.aperture = 0.02;
    settings.shutter = 1;
    for (auto _ : state)
        benchmark::DoNotOptimize(renderer.render(settings));
}
BENCHMARK(BM_RenderExposureLabPreviewAtWorst)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_RenderLensLabThumbs(benchmark::State &state)
{
    const SceneRenderer renderer(QSize(360, 225));
    const LensLab::Conditions conditions{ 50, SensorFormat::fullFrame(), 2.5, 15, 6, 1600 };
    const std::vector<double> apertures{ 1.4, 1.8, 2.8, 5.6 };
    const auto rows = LensLab::rows(apertures, conditions);
    for (auto _ : state) {
        for (const LensLabRow &row : rows)
            benchmark::DoNotOptimize(renderer.render(LensLab::settings(row, conditions)));
    }
}
BENCHMARK(BM_RenderLensLabThumbs)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_MakeTheExposureLabsRenderer(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(SceneRenderer().size());
}
BENCHMARK(BM_MakeTheExposureLabsRenderer)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
