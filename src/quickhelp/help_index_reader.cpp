#include "quickhelp/help_index_reader.h"

#include "base/ascii.h"
#include "base/take_text.h"

namespace vexa {

namespace {

// From the end: keywords that stand together in an index often begin alike.
bool BeginsWith(std::string_view line, std::string_view keyword) {
    std::size_t i = keyword.size();
    while (i > 0 && LowerAscii(line[i - 1]) == LowerAscii(keyword[i - 1]))
        --i;
    return i == 0;
}

}  // namespace

std::optional<std::string_view> HelpIndexReader::nextLine() {
    if (rest_.empty()) return std::nullopt;
    return TakeLine(rest_);
}

bool HelpIndexReader::hasLineThatBeginsWith(std::string_view keyword) {
    while (const std::optional<std::string_view> line = nextLine()) {
        if (line->size() >= keyword.size() && BeginsWith(*line, keyword)) return true;
    }
    return false;
}

}  // namespace vexa
