// The line ends of a document that keeps them as its file had them.
#pragma once

#include <string_view>
#include <vector>

#include "base/units.h"
#include "document/text/line_end.h"
#include "document/text/text_actions.h"
#include "document/text/text_line.h"

namespace vexa {

// That of lines which the user makes; none where ends are not kept.
LineEnd NewLineEnd(const TextDocument& document);
// A line to be inserted, with that end.
LinePtr NewLine(const TextDocument& document, std::string_view text);
// What the file has after a line of a text that ends with the last line. CR LF where ends are not kept.
LineEnd LineEndAt(const TextDocument& document, LineIndex index, LineIndex last);

// Counts the ends of all lines anew.
void CountLineEnds(TextDocument& document);

// To which end a user who asks for the other one changes: mixed ones to the most common, others to CR LF, and CR LF to
// LF.
LineEnd OtherLineEnd(const LineEndStyle& style);

// Gives a line another end.
class SetLineEnd : public TextAction {
  public:
    SetLineEnd(TextDocument& document, LineIndex line, LineEnd end) : TextAction(document), line_(line), end_(end) {}

  private:
    bool change() override;
    void takeBack() override { change(); }
    LineIndex line_;
    LineEnd end_;  // that which the line does not have at present
};

// Gives every line that has an end the same one.
class UnifyLineEnds : public TextAction {
  public:
    UnifyLineEnds(TextDocument& document, LineEnd end) : TextAction(document), end_(end) {}

  private:
    bool change() override;
    void takeBack() override;
    LineEnd end_;
    std::vector<LineEnd> oldEnds_;
    LineEndStyle oldStyle_;
};

}  // namespace vexa
