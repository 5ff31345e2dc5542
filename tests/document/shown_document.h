// Documents as readable texts: "|" is the caret, "~" a column beyond a line's end, "{" and "}" enclose what is marked:
// once for a stream, on each line for whole lines ("{" first, "}" last) and for a column. \t is a tab, \r and \n the
// characters of a line end, \\ a backslash, \xNN any byte.
#pragma once

#include <string>
#include <vector>

#include "document/text/text_document.h"

namespace vexa::test {

std::string Unescape(const std::string& text);
std::string Escape(char c);

// Puts the lines into a new document, and its caret where "|" stands.
void FillDocument(TextDocument& document, std::vector<std::string> lines);
// The lines up to the last that has text, the caret or a marking.
std::vector<std::string> ShowDocument(const TextDocument& document);
// One text of them all, for messages.
std::string Joined(const std::vector<std::string>& lines);

}  // namespace vexa::test
