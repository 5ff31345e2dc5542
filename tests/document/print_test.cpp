// What comes out on paper, in the cases of the folder scripts/: pages, the order in which they are printed, and the
// look of the text.
#include <cmath>

#include "document/print/print_layout.h"
#include "document/print/print_run.h"
#include "document/print/print_style.h"
#include "support/script.h"

namespace vexa::test {
namespace {

constexpr CaseFile kFiles[] = {
#include "print_scripts.inc"
};

// Notes every step of a job, and fails or cancels at one of them.
struct PrintStage : ScriptStage, PrintTarget, PrintProgress {
    PrintStage() {
        document.newEmpty();
        request.page = {.rows = 4, .columns = 20};
        request.options.header = false;
    }

    bool beginJob() override { return step("begin"); }
    bool printPage(std::int32_t number) override { return step({static_cast<char>('a' + number - 1)}); }
    bool endJob() override { return step("end"); }
    void abortJob() override { step("abort"); }
    bool pageComes(std::int64_t i, std::int64_t count) override {
        return step(std::to_string(i) + '/' + std::to_string(count));
    }
    bool step(const std::string& name) {
        steps += ' ' + name;
        return name != failsAt;
    }

    EditorOptions options;  // tabs of 4
    TextDocument document{options, notices};
    ExtensionProfile profile;
    PrintLayout::Request request;
    std::string failsAt;
    std::string steps;
};

// Lines from the first on, with "|" between them.
Told Fill(PrintStage& stage, Words words) {
    std::string text = words.rest();
    for (std::int32_t line = 0;; ++line) {
        const std::size_t end = std::min(text.find('|'), text.size());
        stage.document.lines().put(TextDocument::makeLine(text.substr(0, end)), line);
        if (end == text.size()) return {};
        text.erase(0, end + 1);
    }
}

Told Mark(PrintStage& stage, Words words) {
    static const std::map<std::string, MarkMode> kModes = {
        {"lines", MarkMode::Lines}, {"stream", MarkMode::Stream}, {"column", MarkMode::Column}};
    const MarkMode mode = kModes.at(words.word());
    const auto point = [&words] {
        const LineIndex line(words.number());
        return MarkPoint{line, DisplayColumn(words.number())};
    };
    const MarkPoint start = point();
    stage.document.marked() = {mode, true, start, point()};
    return stage.request.area = PrintArea::Marked, Told();
}

// The rows of every page, with "|" behind each and ";" between pages: the number, a colon where there are numbers, and
// the cells.
Told Pages(PrintStage& stage, Words) {
    const PrintLayout layout(stage.document, stage.request);
    std::vector<std::string> shown;
    for (std::int32_t i = 1; i <= layout.pageCount(); ++i) {
        const PrintedPage page = layout.page(i);
        shown.push_back(page.header + (page.header.empty() ? "" : "|"));
        for (const PrintedRow& row : page.rows) {
            const std::string number = row.lineNumber ? std::to_string(*row.lineNumber) : "";
            shown.back() += (stage.request.options.lineNumbers ? number + ':' : "") + row.text.cells + '|';
        }
    }
    return shown;
}

Told PageCount(PrintStage& stage, Words) {
    return PrintLayout(stage.document, stage.request).pageCount();
}

Told TextColumn(PrintStage& stage, Words) {
    return PrintLayout(stage.document, stage.request).textColumn();
}

Told PageSize(PrintStage& stage, Words words) {
    stage.request.page.rows = words.number();
    return stage.request.page.columns = words.number(), Told();
}

Told Heading(PrintStage& stage, Words words) {
    stage.request.options.header = true;
    const std::string date = words.word();
    return stage.request.heading = {words.rest(), date}, Told();
}

// In so many columns, of page 1 of 9.
Told Header(PrintStage& stage, Words words) {
    const int columns = words.number();
    return HeaderText(stage.request.heading, 1, 9, columns);
}

// The runs of each row of the first page: start, length and a letter for the colour, such as "k" for keywords.
Told Colours(PrintStage& stage, Words) {
    constexpr std::string_view kLetters = "bcdkMmnpqs";
    std::vector<std::string> rows;
    for (const PrintedRow& row : PrintLayout(stage.document, stage.request).page(1).rows) {
        rows.emplace_back();
        for (const CellRun& run : row.text.runs) {
            EXPECT_EQ(run.background, ColourElement::Background) << "nothing marked is shown";
            rows.back() += (rows.back().empty() ? "" : " ") + std::to_string(run.start) + "+" +
                           std::to_string(run.length) + kLetters[static_cast<std::size_t>(run.text)];
        }
    }
    return rows;
}

// First and last page, how often, and whether copies are collated.
Told Print(PrintStage& stage, Words words) {
    static const std::map<PrintResult, const char*> kResults = {{PrintResult::Done, "done"},
                                                                {PrintResult::NothingToPrint, "nothing"},
                                                                {PrintResult::Cancelled, "cancelled"},
                                                                {PrintResult::Failed, "failed"}};
    PrintSequence::Range range;
    if (words.more()) range.first = words.number();
    if (words.more()) range.last = words.number();
    if (words.more()) range.copies = words.number();
    range.collate = words.more();
    stage.steps.clear();
    const PrintLayout layout(stage.document, stage.request);
    const PrintResult result = RunPrint(PrintSequence(range, layout.pageCount()), stage, stage);
    return kResults.at(result) + stage.steps;
}

const Verbs<PrintStage> kVerbs = {
    {"lines", &Fill},
    {"mark", &Mark},
    {"all", [](PrintStage& s, Words) { return s.request.area = PrintArea::Document, Told(); }},
    {"numbers", [](PrintStage& s, Words) { return s.request.options.lineNumbers = true, Told(); }},
    {"page", &PageSize},
    {"pages", &Pages},
    {"page-count", &PageCount},
    {"text-column", &TextColumn},
    {"heading", &Heading},
    {"header", &Header},
    {"tab-size", [](PrintStage& s, Words w) { return s.options.TabSize = w.number(), Told(); }},
    {"coloured", [](PrintStage& s, Words) { return s.document.setProfile(s.profile), Told(); }},
    {"plain", [](PrintStage& s, Words) { return s.request.highlighting = false, Told(); }},
    {"colours", &Colours},
    {"fails-at", [](PrintStage& s, Words w) { return s.failsAt = w.rest(), Told(); }},
    {"print", &Print},
};

VEXA_SCRIPTS(Printing, kFiles, PrintStage, kVerbs);

// ---- look --------------------------------------------------------------------------------------------------------

// How much darker than white a colour is, from 1 to 21, as the guidelines for readable pages on the Web (WCAG) reckon.
double ContrastWithWhite(Rgb colour) {
    const auto linear = [](int part) {
        const double value = part / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 1.05 / (0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue) + 0.05);
}

TEST(PrintStyle, EveryColourIsReadableOnPaper) {
    for (const Rgb colour : kPalette) {
        const Rgb printed = ReadableOnPaper(colour);
        EXPECT_GE(ContrastWithWhite(printed), 4.5)
            << int{colour.red} << ' ' << int{colour.green} << ' ' << int{colour.blue};
    }
    EXPECT_EQ(ReadableOnPaper({255, 255, 255}), (Rgb{0, 0, 0}));  // white on a dark screen
    EXPECT_EQ(ReadableOnPaper({0, 0, 0}), (Rgb{0, 0, 0}));
    EXPECT_EQ(ReadableOnPaper({0, 0, 255}), (Rgb{0, 0, 255}));  // dark enough
    const Rgb purple = ReadableOnPaper({255, 0, 255});
    EXPECT_TRUE(purple.red == purple.blue && purple.green == 0) << "the hue stays";
}

TEST(PrintStyle, ColoursAreOptionalAndKeywordsStandOutWithoutThem) {
    const ColourTable classic;  // yellow text and white keywords on blue
    constexpr Rgb kBlack;
    EXPECT_EQ(PrintStyleOf(ColourElement::DefaultText, classic, true), (PrintStyle{kBlack, false, false}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Keywords, classic, true), (PrintStyle{kBlack, true, false}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Strings, classic, true).colour, ReadableOnPaper({0, 255, 255}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Strings, classic, false), (PrintStyle{kBlack, false, false}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Keywords, classic, false), (PrintStyle{kBlack, true, false}));
    EXPECT_EQ(PrintStyleOf(ColourElement::Comments, classic, false), (PrintStyle{kBlack, false, true}));
}

}  // namespace
}  // namespace vexa::test
