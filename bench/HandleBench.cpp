// The handles of the resource manager: filling a type, and giving numbers back and out again.

#include "bench/Ratio.h"
#include "platform/PlatformResourceManagerImp.h"

#include <QImage>

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

constexpr std::size_t allHandles = 0xFFFF;
constexpr int rounds = 1000;

std::unique_ptr<QImage> plainImage()
{
    return std::make_unique<QImage>(1, 1, QImage::Format_ARGB32_Premultiplied);
}

void* image(PlatformResourceManagerImp& manager)
{
    void* handle = manager.createImage(0, 1, 1);
    if (!handle)
        throw std::runtime_error("out of handles");
    return handle;
}

// All images that there can be, against as many images without handles.
void fillImages(benchmark::State& state)
{
    compare(
        state,
        [] {
            PlatformResourceManagerImp manager;
            for (std::size_t i = 0; i < allHandles; ++i)
                image(manager);
        },
        [] {
            std::vector<std::unique_ptr<QImage>> images;
            for (std::size_t i = 0; i < allHandles; ++i)
                images.push_back(plainImage());
        });
}

// All brushes that there can be, against an ordered map that is filled at its end.
void fillBrushes(benchmark::State& state)
{
    compare(
        state,
        [] {
            PlatformResourceManagerImp manager;
            for (unsigned int color = 0; color < allHandles; ++color)
                benchmark::DoNotOptimize(manager.createBrush(color));
        },
        [] {
            std::map<int, void*> brushes;
            for (int handle = 1; handle <= static_cast<int>(allHandles); ++handle)
                brushes.emplace_hint(brushes.end(), handle, nullptr);
        });
}

// What is worst for a search from the first number on: with many images, delete the first, create
// two (one takes the first number, one goes to the end) and delete the last. Against the images
// alone.
void refillBothEnds(benchmark::State& state)
{
    PlatformResourceManagerImp manager;
    std::vector<void*> handles;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        handles.push_back(image(manager));
    compare(
        state,
        [&] {
            for (int round = 0; round < rounds; ++round) {
                manager.deleteObject(handles.front());
                handles.front() = image(manager);
                manager.deleteObject(image(manager));
            }
        },
        [] {
            for (int round = 0; round < rounds; ++round) {
                benchmark::DoNotOptimize(plainImage());
                benchmark::DoNotOptimize(plainImage());
            }
        });
}

// Every other image deleted and made again, against as many images without handles.
void refillGaps(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(0));
    PlatformResourceManagerImp manager;
    std::vector<void*> handles;
    for (std::size_t i = 0; i < count; ++i)
        handles.push_back(image(manager));
    std::vector<std::unique_ptr<QImage>> images(count);
    std::generate(images.begin(), images.end(), plainImage);
    compare(
        state,
        [&] {
            for (std::size_t i = 0; i < count; i += 2)
                manager.deleteObject(handles[i]);
            for (std::size_t i = 0; i < count; i += 2)
                handles[i] = image(manager);
        },
        [&] {
            for (std::size_t i = 0; i < count; i += 2)
                images[i].reset();
            for (std::size_t i = 0; i < count; i += 2)
                images[i] = plainImage();
        });
}

BENCHMARK(fillImages)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(fillBrushes)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(refillBothEnds)->Arg(1000)->Arg(allHandles - 1)->UseManualTime();
BENCHMARK(refillGaps)->Arg(4096)->Arg(allHandles)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
