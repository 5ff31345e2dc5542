// Help files: making the index of a large one, and looking a word up in a hundred indexes of 5,000 keywords each,
// beside reading the same indexes and nothing more.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "base/file.h"
#include "base/platform.h"
#include "quickhelp/help_file_writer.h"
#include "quickhelp/help_index.h"
#include "quickhelp/help_lookup.h"
#include "support/fail.h"
#include "support/session.h"
#include "support/silent.h"

namespace vexa::bench {
namespace {

constexpr int kIndexes = 100;
constexpr int kKeywordsOfAnIndex = 5000;
const std::string kIndexFolder = "C:\\vHelp";

std::string Keyword(int number) {
    return "TComponent:Property" + std::to_string(1'000'000 + number);
}

void Put(const std::string& path, const std::string& bytes) {
    if (!File(path, platform::OpenMode::CreateAlways).write(bytes)) Fail("cannot write " + path);
}

// As large as a help file of its number of keywords is, most of it being no keywords.
void PutHelpFile(const std::string& path, int keywordCount, const test::TreeShape& shape) {
    std::vector<test::HelpKeyword> keywords;
    for (int i = 0; i < keywordCount; ++i)
        keywords.push_back({Keyword(i)});
    constexpr std::size_t kTopicBytes = 1 << 20;
    test::HelpFileWriter writer;
    writer.addSystem(33, {{test::kTitleRecord, test::TextZ("Title")}});
    writer.addKeywords(keywords, shape);
    writer.addFile("|TOPIC", std::string(kTopicBytes, 't'));
    Put(path, writer.bytes());
}

void PutIndexes() {
    platform::MakeDirectory(kIndexFolder);
    std::string keywords;
    for (int i = 0; i < kKeywordsOfAnIndex; ++i)
        keywords += Keyword(i) + "\r\n";
    for (int i = 0; i < kIndexes; ++i)
        Put(kIndexFolder + "\\" + std::to_string(i) + ".ZIX", "05000\r\nC:\\FLAT.HLP\r\nTitle\r\n" + keywords);
}

void BuildIndex(benchmark::State& state, const char* helpFile) {
    for (auto _ : state) {
        if (BuildHelpIndex(helpFile, "C:\\BENCH.ZIX") != IndexResult::Written) return state.SkipWithError("no index");
    }
}

void LookUp(benchmark::State& state) {
    SilentNotices notices;
    HelpLookup lookup(kIndexFolder, notices);
    for (auto _ : state) {
        if (lookup.Lookup("TComponent:Propertx") != LookupResult::NoMatch) return state.SkipWithError("it is there");
    }
}

void ReadAlone(benchmark::State& state) {
    for (auto _ : state) {
        for (const std::string& name : FindHelpIndexes(kIndexFolder))
            benchmark::DoNotOptimize(File(kIndexFolder + "\\" + name, platform::OpenMode::Read).readAll(1 << 20));
    }
}

}  // namespace
}  // namespace vexa::bench

int main(int argc, char** argv) {
    using namespace vexa::bench;
    const Disk disk;
    PutHelpFile("C:\\FLAT.HLP", 4400, {4096, "F24"});
    PutHelpFile("C:\\DEEP.HLP", 6000, {2048, "F24", 20});
    PutIndexes();
    const auto add = [](const char* name, auto run) {
        benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMicrosecond);
    };
    add("help_index/4400_keywords/vexa", [](benchmark::State& state) { BuildIndex(state, "FLAT.HLP"); });
    add("help_index/6000_keywords_3_levels/vexa", [](benchmark::State& state) { BuildIndex(state, "DEEP.HLP"); });
    add("help_lookup/100_indexes/vexa", LookUp);
    add("help_lookup/100_indexes/read_alone", ReadAlone);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
