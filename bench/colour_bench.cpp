// Colouring: cutting lines into tokens, beside a loop that looks every byte up once and Scintilla's C++ lexer; finding
// out where comments are that span lines; what a key and a scrolled window cost; the clipboard. Times of whole texts
// also tell nanoseconds a line.
#include <benchmark/benchmark.h>

#include <array>
#include <string>
#include <vector>

#include "document/view/clipboard_store.h"
#include "language/line_tokenizer.h"
#include "support/fail.h"
#include "support/peers.h"
#include "support/session.h"

namespace vexa::bench {
namespace {

constexpr int kRows = 40;

void CountLines(benchmark::State& state, std::size_t lines) {
    state.SetItemsProcessed(static_cast<std::int64_t>(lines) * state.iterations());
    state.counters["a_line"] = benchmark::Counter(
        static_cast<double>(lines), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// ---- tokens ----

void TokensFloor(benchmark::State& state) {
    const Bytes bytes = ReadBytes(CorpusPath("c.txt"));
    std::array<unsigned char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<unsigned char>(i % 7);
    for (auto _ : state) {
        unsigned sum = 0;
        for (const char c : bytes.view())
            sum += table[static_cast<unsigned char>(c)];
        benchmark::DoNotOptimize(sum);
    }
    CountLines(state, ReadLines(CorpusPath("c.txt")).size());
}
BENCHMARK(TokensFloor)->Name("tokens/C/bytes")->Unit(benchmark::kMillisecond);

void TokensVexa(benchmark::State& state) {
    const std::vector<std::string> lines = ReadLines(CorpusPath("c.txt"));
    const TokenRules rules{ExtensionProfile()};
    std::size_t tokens = 0;
    for (auto _ : state) {
        LineState lineState = LineState::Outside;
        for (const std::string& line : lines) {
            LineTokenizer tokenizer(rules, line, lineState);
            while (tokenizer.NextToken().kind != TokenKind::EndOfLine)
                ++tokens;
            lineState = tokenizer.endState();
        }
    }
    benchmark::DoNotOptimize(tokens);
    CountLines(state, lines.size());
}
BENCHMARK(TokensVexa)->Name("tokens/C/vexa")->Unit(benchmark::kMillisecond);

void TokensScintilla(benchmark::State& state) {
    const Bytes bytes = ReadBytes(CorpusPath("c.txt"));
    std::string keywords;
    const ExtensionProfile profile;
    for (const std::string& keyword : profile.keywords())
        keywords += keyword + " ";
    Scintilla editor;
    editor.setText(bytes.view());
    editor.useCppLexer(keywords);
    for (auto _ : state)
        editor.colour();
    if (!editor.isColouredAt(bytes.view().find("struct "))) Fail("nothing was coloured");
    CountLines(state, ReadLines(CorpusPath("c.txt")).size());
}
BENCHMARK(TokensScintilla)->Name("tokens/C/scintilla")->Unit(benchmark::kMillisecond);

// ---- comments that span lines ----

struct ColouredSession : Session {
    ColouredSession() : Session("c.txt") { document.setProfile(profile); }
    ExtensionProfile profile;
    // Opens a comment on a new first line.
    void openComment() {
        KeyEvent enter;
        enter.key = kKeyEnter;
        view.goTo(LineIndex(0), CharColumn(0));
        view.key(enter);
        view.goTo(LineIndex(0), CharColumn(0));
        type('/');
        type('*');
    }
    void takeAllBack() {
        while (!document.history().isEmpty())
            view.undo();
    }
    void paint() {
        for (int row = 0; row < kRows; ++row)
            benchmark::DoNotOptimize(view.render(row));
    }
};

// The first look at the document's last line, for which every line above must be known.
void CommentsOfWholeText(benchmark::State& state) {
    Disk disk;
    ColouredSession session;
    const LineIndex last = session.document.lastLine(LastUsed::Text);
    for (auto _ : state) {
        state.PauseTiming();
        session.document.setProfile(session.profile);
        state.ResumeTiming();
        benchmark::DoNotOptimize(session.document.startState(last));
    }
    CountLines(state, static_cast<std::size_t>(last.value));
}
BENCHMARK(CommentsOfWholeText)->Name("comments/C/vexa")->Unit(benchmark::kMillisecond);

// Opening a comment on the first line and painting the window, and taking it back and painting.
void OpenCommentOnTopAndPaint(benchmark::State& state) {
    Disk disk;
    ColouredSession session;
    while (session.document.lookAheadForComments(100000)) {
    }
    for (auto _ : state) {
        session.openComment();
        session.paint();
        session.takeAllBack();
        session.paint();
    }
}
BENCHMARK(OpenCommentOnTopAndPaint)->Name("comment_on_top_painted/C/vexa")->Unit(benchmark::kMicrosecond);

// The same, and then the window at the text's other end.
void OpenCommentOnTopAndLookAtEnd(benchmark::State& state) {
    Disk disk;
    ColouredSession session;
    while (session.document.lookAheadForComments(100000)) {
    }
    for (auto _ : state) {
        session.openComment();
        session.view.moveBy(DocumentEnd);
        session.paint();
        session.takeAllBack();
    }
}
BENCHMARK(OpenCommentOnTopAndLookAtEnd)->Name("comment_on_top_seen_at_end/C/vexa")->Unit(benchmark::kMicrosecond);

void ScrollThroughTextAndPaint(benchmark::State& state) {
    Disk disk;
    ColouredSession session;
    const LineIndex last = session.document.lastLine(LastUsed::Text) - kRows;
    for (auto _ : state) {
        if (session.view.topLine() >= last) session.view.scrollToLine(LineIndex(0));
        session.view.scrollBy(1);
        session.paint();
    }
}
BENCHMARK(ScrollThroughTextAndPaint)->Name("scroll_line/C/vexa")->Unit(benchmark::kMicrosecond);

// ---- clipboard ----

class TextClipboard : public ClipboardStore {
  public:
    bool put(std::string_view text, MarkMode kind) override {
        text_ = text;
        kind_ = kind;
        return true;
    }
    bool hasText() const override { return true; }
    std::optional<std::string> getText() const override { return text_; }
    MarkMode getKind() const override { return kind_; }

  private:
    std::string text_;
    MarkMode kind_ = MarkMode::Lines;
};

void CutAndPasteThousandLines(benchmark::State& state) {
    Disk disk;
    ColouredSession session;
    TextClipboard clipboard;
    session.view.setClipboard(clipboard);
    for (auto _ : state) {
        session.document.marked() = {static_cast<MarkMode>(state.range(0)),
                                     true,
                                     {LineIndex(100), DisplayColumn(2)},
                                     {LineIndex(1100), DisplayColumn(6)}};
        session.view.cut();
        session.view.paste();
        state.PauseTiming();
        session.takeAllBack();
        session.document.history().clear();
        state.ResumeTiming();
    }
}
BENCHMARK(CutAndPasteThousandLines)
    ->Name("cut_and_paste_1000_lines/vexa")
    ->DenseRange(static_cast<int>(MarkMode::Lines), static_cast<int>(MarkMode::Column))
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vexa::bench

BENCHMARK_MAIN();
