#include "document/view/text_exchange.h"

#include <algorithm>

#include "base/strings.h"
#include "document/text/document_line_ends.h"
#include "document/text/line_actions.h"
#include "document/text/run_actions.h"
#include "document/view/line_editor.h"

namespace vexa {

namespace {

// Which lines of two texts differ: all but the first few and the last few.
struct Difference {
    std::int32_t begin = 0;
    std::int32_t oldEnd;
    std::int32_t newEnd;
};

Difference DifferenceOf(const LineViews& was, const LineViews& becomes) {
    Difference part{0, static_cast<std::int32_t>(was.size()), static_cast<std::int32_t>(becomes.size())};
    const auto first = std::ranges::mismatch(was, becomes);
    part.begin = static_cast<std::int32_t>(first.in1 - was.begin());
    const auto at = [](const LineViews& lines, std::int32_t i) { return lines[static_cast<std::size_t>(i)]; };
    while (part.oldEnd > part.begin && part.newEnd > part.begin &&
           at(was, part.oldEnd - 1) == at(becomes, part.newEnd - 1)) {
        --part.oldEnd;
        --part.newEnd;
    }
    return part;
}

LinePtr LineOf(const TextDocument& document, const LineView& view) {
    LinePtr line = TextDocument::makeLine(view);
    if (document.rules().keepsLineEnds) line->setEnd(view.end);
    return line;
}

// Tells whoever goes back beyond the reading.
class FileWasReadAnew : public EditAction {
  public:
    using EditAction::EditAction;
    bool perform() override { return true; }
    void undo() override {
        document().notices().status(FillText(TextId::ReadAnewUndone, {document().baseName()}), false, true);
    }
};

}  // namespace

LineViews LinesOf(const TextDocument& document) {
    LineViews lines;
    const LineIndex last = document.lastLine(LastUsed::Text);
    for (LineIndex i; i <= last; ++i)
        lines.push_back({document.text(i), LineEndAt(document, i, last)});
    return lines;
}

void ExchangeText(TextDocument& document, const LineViews& lines) {
    LineEditor editor(document);
    const LineIndex caret = document.currentLine();
    const Difference part = DifferenceOf(LinesOf(document), lines);
    LineIndex line(part.begin);
    const auto next = [&] { return lines[static_cast<std::size_t>(line.value)]; };
    const bool keepsEnds = document.rules().keepsLineEnds;
    for (; line.value < std::min(part.oldEnd, part.newEnd); ++line) {
        const std::string_view text = next();
        const auto length = static_cast<std::int32_t>(document.text(line).size());
        if (document.text(line) != text) editor.run<ReplaceRun>(line, CharColumn(0), length, text);
        if (keepsEnds && document.line(line)->end() != next().end) editor.run<SetLineEnd>(line, next().end);
    }
    if (part.oldEnd == part.newEnd) return;
    document.editableLine(line);  // the cursor can go there only when there is a line
    editor.moveToLine(line);
    for (std::int32_t count = part.newEnd; count < part.oldEnd; ++count)
        editor.run<DeleteLine>();
    for (line = LineIndex(part.newEnd - 1); line.value >= part.oldEnd; line = line - 1)
        editor.run<InsertLine>(LineOf(document, next()));
    editor.moveToLine(caret);
}

bool ReadAnew(TextDocument& document) {
    TextDocument read(document.options(), document.notices());
    read.setName(document.fullPath());
    if (!read.load(document.rules())) return false;
    document.history().nextGroup();
    ExchangeText(document, LinesOf(read));
    LineEditor(document).run<FileWasReadAnew>();
    document.history().nextGroup();
    document.becomeAsLoaded(read);
    return true;
}

}  // namespace vexa
