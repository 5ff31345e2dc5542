// Macros of help files as plain data; see HelpBrowser for those that are carried out.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexa::topics {

struct MacroCall {
    std::string name;
    std::vector<std::string> arguments;  // texts without their quotes
    std::string text;                    // the whole call as it stands in the file
};

// The calls of a macro text, which follow each other with ";" or ":" between them. What is no call is passed
// over.
std::vector<MacroCall> ReadMacros(std::string_view text);

}  // namespace vexa::topics
