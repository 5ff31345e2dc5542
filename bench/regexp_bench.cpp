// First match with its offset, line by line, against PCRE2 (interpreted, and with its JIT compiler) and the C library.
// Times are nanoseconds a line (items a second tell the same).
#include <benchmark/benchmark.h>

#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "regexp/plain_search.h"
#include "regexp/regex_matcher.h"
#include "regexp/regexp.h"
#include "support/peers.h"
#include "support/session.h"

namespace vexa::bench {
namespace {

using Offset = std::ptrdiff_t;  // of the first match in a line, or kNoMatch
constexpr Offset kNoMatch = -1;

const char* const kPatterns[] = {"pthread_rwlock",
                                 "int",
                                 "^#define",
                                 "[A-Z_]+_H",
                                 "struct|union|enum",
                                 "[a-z]*printf",
                                 "[A-Za-z_][A-Za-z0-9_]*\\(",
                                 "[ (:]+[0-9]+[ ):,]+"};

// Plain backtracking takes exponential time, or time in a high power of the length, to find that a line of x does not
// match.
const char* const kBadPatterns[] = {"(x+x+)+[yw]",  "(x+)+[yw]",  "(x|xx)+[yw]", "(x|x|x)*[yw]", "((x+)+)+[yw]",
                                    "x*x*x*x*[yw]", "(xx?)*[yw]", "(.*x)*[yw]",  "(.+.+)+[yw]",  "(xx*)*(xx*)*[yw]"};

// ---- the lines ----

// Lines in one block, each followed by a NUL.
struct Corpus {
    Bytes text;
    std::vector<std::string_view> lines;
};

Corpus LoadCorpus(const char* name) {
    Corpus corpus{ReadBytes(CorpusPath(name)), {}};
    char* start = corpus.text.data.get();
    for (char* end; (end = std::strchr(start, '\n')) != nullptr; start = end + 1) {
        *end = '\0';
        corpus.lines.emplace_back(start, end);
    }
    return corpus;
}

const Corpus& LinesOfC() {
    static const Corpus corpus = LoadCorpus("c.txt");
    return corpus;
}

const Corpus& WideLines() {
    static const Corpus corpus = LoadCorpus("wide.txt");
    return corpus;
}

template <typename Search>
void SearchLines(benchmark::State& state, const Corpus& corpus, Search search) {
    std::int64_t matches = 0;
    for (auto _ : state) {
        matches = 0;
        for (const std::string_view line : corpus.lines)
            matches += search(line) != kNoMatch ? 1 : 0;
        benchmark::DoNotOptimize(matches);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(corpus.lines.size()));
    state.counters["matches"] = static_cast<double>(matches);
    using benchmark::Counter;
    state.counters["ns_line"] =
        Counter(static_cast<double>(corpus.lines.size()) / 1e9, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

// ---- the searches: functions that make one for a pattern ----

auto Ours(const std::string& pattern, bool ignoreCase) {
    SetRegExpIgnoreCase(ignoreCase);
    const std::shared_ptr<RegExp> program = RegExp::Compile(pattern.c_str());
    return [program](std::string_view line) -> Offset {
        return RegExp::Execute(program.get(), line) ? program->start(0) - line.data() : kNoMatch;
    };
}

auto OursCompiledEachTime(const std::string& pattern, bool ignoreCase) {
    SetRegExpIgnoreCase(ignoreCase);
    return [pattern](std::string_view line) -> Offset {
        const std::unique_ptr<RegExp> program = RegExp::Compile(pattern.c_str());
        return RegExp::Execute(program.get(), line) ? program->start(0) - line.data() : kNoMatch;
    };
}

auto Matcher(const std::string& pattern, bool ignoreCase) {
    const auto matcher = std::make_shared<RegexMatcher>(ignoreCase ? 0 : RegexMatcher::kCaseSensitive);
    return [pattern, matcher](std::string_view line) -> Offset {
        return matcher->match(line, pattern.c_str()) == 1 ? matcher->offset() : kNoMatch;
    };
}

struct PcreFree {
    void operator()(pcre2_code* code) const { pcre2_code_free(code); }
    void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
};
using PcreCode = std::unique_ptr<pcre2_code, PcreFree>;
using PcreData = std::unique_ptr<pcre2_match_data, PcreFree>;

PcreCode CompilePcre(const std::string& pattern, bool ignoreCase) {
    int error = 0;
    PCRE2_SIZE offset = 0;
    return PcreCode(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.c_str()), pattern.size(),
                                  ignoreCase ? PCRE2_CASELESS : 0, &error, &offset, nullptr));
}

Offset MatchPcre(const pcre2_code* code, pcre2_match_data* data, std::string_view line) {
    const auto subject = reinterpret_cast<PCRE2_SPTR>(line.data());
    if (pcre2_match(code, subject, line.size(), 0, 0, data, nullptr) < 0) return kNoMatch;
    return static_cast<Offset>(pcre2_get_ovector_pointer(data)[0]);
}

auto Pcre(const std::string& pattern, bool ignoreCase) {
    const std::shared_ptr<pcre2_code> code = CompilePcre(pattern, ignoreCase);
    const std::shared_ptr<pcre2_match_data> data(pcre2_match_data_create_from_pattern(code.get(), nullptr), PcreFree());
    return [code, data](std::string_view line) { return MatchPcre(code.get(), data.get(), line); };
}

auto PcreJit(const std::string& pattern, bool ignoreCase) {
    const std::shared_ptr<pcre2_code> code = CompilePcre(pattern, ignoreCase);
    pcre2_jit_compile(code.get(), PCRE2_JIT_COMPLETE);
    const std::shared_ptr<pcre2_match_data> data(pcre2_match_data_create_from_pattern(code.get(), nullptr), PcreFree());
    return [code, data](std::string_view line) -> Offset {
        const auto subject = reinterpret_cast<PCRE2_SPTR>(line.data());
        if (pcre2_jit_match(code.get(), subject, line.size(), 0, 0, data.get(), nullptr) < 0) return kNoMatch;
        return static_cast<Offset>(pcre2_get_ovector_pointer(data.get())[0]);
    };
}

auto PcreCompiledEachTime(const std::string& pattern, bool ignoreCase) {
    return [pattern, ignoreCase](std::string_view line) {
        const PcreCode code = CompilePcre(pattern, ignoreCase);
        const PcreData data(pcre2_match_data_create_from_pattern(code.get(), nullptr));
        return MatchPcre(code.get(), data.get(), line);
    };
}

Offset OffsetIn(std::string_view line, const void* found) {
    return found != nullptr ? static_cast<const char*>(found) - line.data() : kNoMatch;
}

auto PlainOurs(const std::string& text, bool ignoreCase) {
    const PlainSearch search(text, ignoreCase ? LetterCase::Ignored : LetterCase::Sensitive);
    return [search](std::string_view line) { return OffsetIn(line, search.find(line)); };
}

auto PlainWithoutSse2(const std::string& text, bool ignoreCase) {
    const PlainSearch search(text, ignoreCase ? LetterCase::Ignored : LetterCase::Sensitive, Instructions::Plain);
    return [search](std::string_view line) { return OffsetIn(line, search.find(line)); };
}

auto Memmem(const std::string& text, bool) {
    return [text](std::string_view line) {
        return OffsetIn(line, memmem(line.data(), line.size(), text.data(), text.size()));
    };
}

auto Strstr(const std::string& text, bool) {
    return [text](std::string_view line) { return OffsetIn(line, std::strstr(line.data(), text.c_str())); };
}

auto Strcasestr(const std::string& text, bool) {
    return [text](std::string_view line) { return OffsetIn(line, strcasestr(line.data(), text.c_str())); };
}

auto StringViewFind(const std::string& text, bool) {
    return [text](std::string_view line) { return static_cast<Offset>(line.find(text)); };
}

// ---- what is run ----

using CorpusSource = const Corpus& (*)();

template <typename Make>
void Register(const std::string& group, const std::string& pattern, const char* engine, CorpusSource corpus, Make make,
              bool ignoreCase) {
    const std::string name = group + (ignoreCase ? "/nocase/" : "/case/") + pattern + "/" + engine;
    benchmark::RegisterBenchmark(
        name.c_str(), [=](benchmark::State& state) { SearchLines(state, corpus(), make(pattern, ignoreCase)); });
}

void RegisterPattern(const std::string& pattern, const std::string& corpusName, CorpusSource corpus, bool ignoreCase) {
    Register("kept/" + corpusName, pattern, "vexa", corpus, Ours, ignoreCase);
    Register("kept/" + corpusName, pattern, "pcre2", corpus, Pcre, ignoreCase);
    Register("kept/" + corpusName, pattern, "pcre2_jit", corpus, PcreJit, ignoreCase);
}

void RegisterPatternEachTime(const std::string& pattern, bool ignoreCase) {
    Register("each", pattern, "vexa", LinesOfC, OursCompiledEachTime, ignoreCase);
    Register("each", pattern, "vexa_matcher", LinesOfC, Matcher, ignoreCase);
    Register("each", pattern, "pcre2", LinesOfC, PcreCompiledEachTime, ignoreCase);
}

void RegisterPlain(const std::string& text, const std::string& corpusName, CorpusSource corpus) {
    const std::string group = "plain/" + corpusName;
    for (const bool ignoreCase : {false, true}) {
        Register(group, text, "vexa", corpus, PlainOurs, ignoreCase);
        Register(group, text, "vexa_without_sse2", corpus, PlainWithoutSse2, ignoreCase);
    }
    Register(group, text, "memmem", corpus, Memmem, false);
    Register(group, text, "strstr", corpus, Strstr, false);
    Register(group, text, "string_view", corpus, StringViewFind, false);
    Register(group, text, "strcasestr", corpus, Strcasestr, true);
}

// Lines of a growing length on which the pattern fails: the time must grow as the length does.
template <typename Make>
void RegisterBad(const std::string& pattern, const char* engine, Make make, std::int64_t longest) {
    auto* registered =
        benchmark::RegisterBenchmark(("bad/" + pattern + "/" + engine).c_str(), [=](benchmark::State& state) {
            const std::string line(static_cast<std::size_t>(state.range(0)), 'x');
            auto search = make(pattern, false);
            for (auto _ : state)
                benchmark::DoNotOptimize(search(line));
            state.SetComplexityN(state.range(0));
        });
    for (const std::int64_t length : {290, 3000, 30000, 100000, 1000000})
        if (length <= longest) registered->Arg(length);
    if (longest > 290) registered->Complexity(benchmark::oN);
}

void RegisterAll() {
    for (const bool ignoreCase : {false, true}) {
        for (const char* pattern : kPatterns) {
            RegisterPattern(pattern, "C", LinesOfC, ignoreCase);
            RegisterPattern(pattern, "WIDE", WideLines, ignoreCase);
            RegisterPatternEachTime(pattern, ignoreCase);
        }
    }
    for (const char* text : {"pthread_rwlock", "int", "printf(", "x"}) {
        RegisterPlain(text, "C", LinesOfC);
        RegisterPlain(text, "WIDE", WideLines);
    }
    for (const char* pattern : kBadPatterns) {
        RegisterBad(pattern, "vexa", Ours, 1000000);
        RegisterBad(pattern, "pcre2", Pcre, 290);
    }
}

}  // namespace
}  // namespace vexa::bench

int main(int argc, char** argv) {
    vexa::bench::RegisterAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
