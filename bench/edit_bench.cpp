// Editing a document by keys as a user does, beside a move of the line pointers and QScintilla.
#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "support/peers.h"
#include "support/session.h"

namespace vexa::bench {
namespace {

constexpr int kLinesOfC = 90000;
constexpr LineIndex kSecondLine{1};

// ---- one line in, one line out ----

void LineInAndOutVexa(benchmark::State& state) {
    Session session("c.txt");
    for (auto _ : state) {
        session.document.lines().insertAt(session.document.makeLine("x"), kSecondLine.value);
        benchmark::DoNotOptimize(session.document.lines().detach(kSecondLine.value));
    }
}

// The same by keys: Enter, then Up and Delete, which joins the lines again. Recorded, and its history dropped now and
// then outside the time measured.
void LineInAndOutByKeys(benchmark::State& state) {
    constexpr int kTimesPerHistory = 2000;
    Session session("c.txt");
    session.view.goTo(kSecondLine, CharColumn(0));
    KeyEvent enter;
    enter.key = kKeyEnter;
    KeyEvent up;
    up.key = kKeyUp;
    KeyEvent deletion;
    deletion.key = kKeyDelete;
    int times = 0;
    for (auto _ : state) {
        session.view.key(enter);
        session.view.key(up);
        session.view.key(deletion);
        if (++times % kTimesPerHistory == 0) {
            state.PauseTiming();
            session.document.history().clear();
            state.ResumeTiming();
        }
    }
    if (session.document.lastLine(LastUsed::Plain).value + 1 != kLinesOfC) state.SkipWithError("lines were left");
}

// The floor of a plain array: every pointer behind the place moves, there and back.
void LineInAndOutMemmove(benchmark::State& state) {
    std::vector<void*> slots(kLinesOfC + 1);
    void** const place = slots.data() + kSecondLine.value;
    constexpr std::size_t kBytes = (kLinesOfC - 1) * sizeof(void*);
    for (auto _ : state) {
        std::memmove(place + 1, place, kBytes);
        benchmark::ClobberMemory();
        std::memmove(place, place + 1, kBytes);
        benchmark::ClobberMemory();
    }
}

BENCHMARK(LineInAndOutVexa)->Name("line_in_and_out/C/vexa");
BENCHMARK(LineInAndOutByKeys)->Name("line_in_and_out/C/vexa_keys");
BENCHMARK(LineInAndOutMemmove)->Name("line_in_and_out/C/memmove");

// ---- typing ----

// Characters typed into a line in the middle of a document, so few that the line stays short.
constexpr int kTypedCharacters = 200;

void Type(benchmark::State& state, Session& session, LineIndex line) {
    session.view.goTo(line, CharColumn(0));
    for (auto _ : state) {
        for (int i = 0; i < kTypedCharacters; ++i)
            session.type('x');
        state.PauseTiming();
        for (int i = 0; i < kTypedCharacters; ++i)
            session.view.undo();
        session.document.history().clear();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * kTypedCharacters);
}

void TypeInOneLine(benchmark::State& state) {
    Session session;
    Type(state, session, LineIndex(0));
}

void TypeInC(benchmark::State& state) {
    Session session("c.txt");
    Type(state, session, LineIndex(kLinesOfC / 2));
}

BENCHMARK(TypeInOneLine)->Name("type/1_line/vexa");
BENCHMARK(TypeInC)->Name("type/C/vexa");

// ---- undo and redo ----

void UndoRedoVexa(benchmark::State& state) {
    const auto steps = static_cast<int>(state.range(0));
    const auto before = AllocatedBytes();
    Session session;
    session.view.goTo(LineIndex(0), CharColumn(0));
    session.typeText(steps);
    state.counters["bytes_step"] = (AllocatedBytes() - before) / steps;
    for (auto _ : state) {
        for (int i = 0; i < steps; ++i)
            session.view.undo();
        for (int i = 0; i < steps; ++i)
            session.view.redo();
    }
    // A step is taken back and done again: two.
    state.SetItemsProcessed(2 * steps * state.iterations());
}

void UndoRedoScintilla(benchmark::State& state) {
    const auto steps = static_cast<int>(state.range(0));
    Scintilla editor;
    editor.clear(true);
    const auto before = AllocatedBytes();
    for (int i = 1; i <= steps; ++i)
        editor.typeAsOneStep(i % 80 == 0 ? "\n" : "x");
    state.counters["bytes_step"] = (AllocatedBytes() - before) / steps;
    for (auto _ : state) {
        for (int i = 0; i < steps; ++i)
            editor.undo();
        for (int i = 0; i < steps; ++i)
            editor.redo();
    }
    state.SetItemsProcessed(2 * steps * state.iterations());
}

BENCHMARK(UndoRedoVexa)->Name("undo_redo/vexa")->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(UndoRedoScintilla)->Name("undo_redo/qscintilla")->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

// ---- many lines at the top ----

constexpr int kTopLines = 10000;

void TopLinesVexa(benchmark::State& state) {
    KeyEvent enter;
    enter.key = kKeyEnter;
    for (auto _ : state) {
        state.PauseTiming();
        auto session = std::make_unique<Session>("c.txt");
        session->view.goTo(LineIndex(0), CharColumn(0));
        state.ResumeTiming();
        for (int i = 0; i < kTopLines; ++i) {
            session->view.key(enter);
            session->view.goTo(LineIndex(0), CharColumn(0));
        }
        state.PauseTiming();
        session.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * kTopLines);
}

void TopLinesScintilla(benchmark::State& state) {
    Scintilla editor;
    const Bytes text = ReadBytes(CorpusPath("c.txt"));
    for (auto _ : state) {
        state.PauseTiming();
        editor.clear(true);
        editor.setText(text.view());
        state.ResumeTiming();
        for (int i = 0; i < kTopLines; ++i)
            editor.insert(0, "\n");
    }
    state.SetItemsProcessed(state.iterations() * kTopLines);
}

BENCHMARK(TopLinesVexa)->Name("lines_at_top/C/vexa")->Unit(benchmark::kMicrosecond);
BENCHMARK(TopLinesScintilla)->Name("lines_at_top/C/qscintilla")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vexa::bench

int main(int argc, char** argv) {
    vexa::bench::KeepFreedMemory();
    const vexa::bench::Disk disk;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
