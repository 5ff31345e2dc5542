// Listing the functions of a document, beside a loop that looks every byte up once and cutting the same lines into
// tokens.
#include <benchmark/benchmark.h>

#include <array>
#include <numeric>
#include <string>

#include "language/line_tokenizer.h"
#include "search/function_list.h"
#include "support/session.h"

namespace vexa::bench {
namespace {

template <class Use>
void UseLines(benchmark::State& state, const std::string& name, Use use) {
    const Disk disk;
    Session session("c.txt");
    session.document.setName("C:\\" + name);
    const LineIndex last = session.document.lastLine(LastUsed::Text);
    for (auto _ : state)
        benchmark::DoNotOptimize(use(session.document, last));
    state.SetItemsProcessed((last.value + 1) * state.iterations());
}

std::size_t LookUp(const TextDocument& document, LineIndex last) {
    static const std::array<unsigned char, 256> table = [] {
        std::array<unsigned char, 256> made{};
        std::iota(made.begin(), made.end(), static_cast<unsigned char>(0));
        return made;
    }();
    std::size_t sum = 0;
    for (LineIndex line(0); line <= last; ++line) {
        for (const char c : document.text(line))
            sum += table[static_cast<unsigned char>(c)];
    }
    return sum;
}

std::size_t CutTokens(const TextDocument& document, LineIndex last) {
    static const TokenRules rules{ExtensionProfile()};
    std::size_t tokens = 0;
    for (LineIndex line(0); line <= last; ++line) {
        LineTokenizer tokenizer(rules, document.text(line));
        while (tokenizer.NextToken().kind != TokenKind::EndOfLine)
            ++tokens;
    }
    return tokens;
}

std::size_t List(const TextDocument& document, LineIndex) {
    return FunctionsOf(document).size();
}

void Register(const char* benchmarkName, const char* file, std::size_t (*use)(const TextDocument&, LineIndex)) {
    benchmark::RegisterBenchmark(benchmarkName, [=](benchmark::State& state) {
        UseLines(state, file, use);
    })->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace vexa::bench

int main(int count, char** arguments) {
    using namespace vexa::bench;
    Register("functions/C/bytes", "c.c", &LookUp);
    Register("functions/C/tokens", "c.c", &CutTokens);
    Register("functions/C/vexa", "c.c", &List);
    Register("functions/C/vexa_by_pattern", "c.py", &List);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
