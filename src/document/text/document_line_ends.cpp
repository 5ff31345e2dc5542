#include "document/text/document_line_ends.h"

#include <utility>

#include "document/text/text_document.h"

namespace vexa {

LineEnd NewLineEnd(const TextDocument& document) {
    return document.rules().keepsLineEnds ? document.lineEndStyle().common : LineEnd::None;
}

LinePtr NewLine(const TextDocument& document, std::string_view text) {
    LinePtr line = TextDocument::makeLine(text);
    line->setEnd(NewLineEnd(document));
    return line;
}

LineEnd LineEndAt(const TextDocument& document, LineIndex index, LineIndex last) {
    if (!document.rules().keepsLineEnds) return LineEnd::CrLf;
    const TextLine* line = document.line(index);
    const LineEnd own = line ? line->end() : LineEnd::None;
    return own == LineEnd::None && index < last ? document.lineEndStyle().common : own;
}

void CountLineEnds(TextDocument& document) {
    LineEndTally tally;
    const LineIndex last = document.lastLine(LastUsed::Text);
    // Where ends are not kept, one line is like all.
    for (LineIndex i = document.rules().keepsLineEnds ? LineIndex() : last; i <= last; ++i)
        tally.add(LineEndAt(document, i, last));
    document.lineEndStyle() = tally.style(document.lineEndStyle().common);
}

LineEnd OtherLineEnd(const LineEndStyle& style) {
    if (style.isMixed) return style.common;
    return style.common == LineEnd::CrLf ? LineEnd::Lf : LineEnd::CrLf;
}

bool SetLineEnd::change() {
    TextLine& line = document().editableLine(line_);
    const LineEnd old = line.end();
    line.setEnd(end_);
    end_ = old;
    return true;
}

bool UnifyLineEnds::change() {
    DynArray& lines = document().lines();
    const std::int32_t count = lines.lastUsed(LastUsed::Text) + 1;
    std::vector<LineEnd> old(static_cast<std::size_t>(count), LineEnd::None);
    for (std::int32_t i = 0; i < count; ++i) {
        TextLine* line = lines.occupied(i);
        if (line == nullptr || line->end() == LineEnd::None) continue;
        old[static_cast<std::size_t>(i)] = line->end();
        line->setEnd(end_);
    }
    oldEnds_ = std::move(old);
    oldStyle_ = std::exchange(document().lineEndStyle(), LineEndStyle{end_, false});
    lines.noteAllChanged();
    return true;
}

void UnifyLineEnds::takeBack() {
    std::int32_t i = 0;
    for (const LineEnd end : std::exchange(oldEnds_, {})) {
        if (end != LineEnd::None) document().lines().occupied(i)->setEnd(end);
        ++i;
    }
    document().lineEndStyle() = oldStyle_;
    document().lines().noteAllChanged();
}

}  // namespace vexa
