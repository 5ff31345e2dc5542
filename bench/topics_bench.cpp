// What a reader of help waits for: a file's first topic, and the topic behind a link. VEXA_HELP_FILE names a help file;
// the project has none of this size itself.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "quickhelp/topics/picture.h"
#include "quickhelp/topics/topic_layout.h"
#include "support/session.h"

namespace vexa::topics {
namespace {

using bench::AllocatedBytes;

constexpr int kWidth = 640;

class FixedWidths : public TextMeasure {
  public:
    explicit FixedWidths(const HelpFile& file) : file_(file) {}

    int dpi() override { return 96; }
    int width(const HelpFont&, std::string_view text) override { return 7 * static_cast<int>(text.size()); }
    FontHeight height(const HelpFont& font) override { return {font.halfPoints / 2, font.halfPoints / 6}; }
    Extent pictureExtent(const PictureUse& picture) override { return PictureExtent(file_.pictureBytes(picture), 96); }

  private:
    const HelpFile& file_;
};

std::string HelpBytes() {
    const char* path = std::getenv("VEXA_HELP_FILE");
    std::ifstream in(path ? path : "", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

int HeightOf(const HelpFile& file, std::size_t number) {
    FixedWidths measure(file);
    const Topic topic = file.topic(number);
    const TopicLayout layout = LayOutTopic({file, topic, measure}, kWidth);
    return layout.fixed.height + layout.scrolling.height;
}

void OpenContents(benchmark::State& state) {
    const std::string bytes = HelpBytes();
    for (auto _ : state) {
        const auto file = HelpFile::open(bytes);
        if (!file) return state.SkipWithError("VEXA_HELP_FILE names no help file");
        benchmark::DoNotOptimize(HeightOf(*file, file->contentsTopic().value_or(0)));
    }
}
BENCHMARK(OpenContents)->Unit(benchmark::kMillisecond);

// Of the memory that an open file takes, and of its contents topic laid out, for each byte of the file.
void MemoryOfFile(benchmark::State& state) {
    const std::string bytes = HelpBytes();
    for (auto _ : state) {
        const double before = AllocatedBytes();
        const auto file = HelpFile::open(bytes);
        if (!file) return state.SkipWithError("VEXA_HELP_FILE names no help file");
        FixedWidths measure(*file);
        const Topic topic = file->topic(file->contentsTopic().value_or(0));
        const TopicLayout layout = LayOutTopic({*file, topic, measure}, kWidth);
        benchmark::DoNotOptimize(layout.scrolling.height);
        state.counters["times_the_file"] = (AllocatedBytes() - before) / static_cast<double>(bytes.size());
    }
}
BENCHMARK(MemoryOfFile)->Unit(benchmark::kMillisecond);

void FollowJump(benchmark::State& state) {
    const auto file = HelpFile::open(HelpBytes());
    if (!file || file->topicCount() == 0) return state.SkipWithError("VEXA_HELP_FILE names no help file");
    std::size_t number = 0;
    for (auto _ : state) {
        number = (number + 997) % file->topicCount();
        benchmark::DoNotOptimize(HeightOf(*file, number));
    }
}
BENCHMARK(FollowJump)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vexa::topics

BENCHMARK_MAIN();
