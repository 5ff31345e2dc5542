#include "language/quote_file.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/file.h"

namespace vexa {
namespace {

// Takes what stands before the first of the separators, and this one, off a text.
std::string_view TakeUntil(std::string_view& text, std::string_view separators) {
    const std::size_t end = std::min(text.find_first_of(separators), text.size());
    const std::string_view taken = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return taken;
}

std::string_view TakeWord(std::string_view& text) {
    text = TrimBlanks(text);
    return TakeUntil(text, " \t");
}

char FirstOf(std::string_view word) {
    return word.empty() ? '\0' : word[0];
}

void SetEscape(QuoteRules& rules, std::string_view values) {
    rules.escape = FirstOf(TakeWord(values));
}

void AddQuote(QuoteRules& rules, std::string_view values) {
    Quote quote;
    quote.open = quote.close = ShortText<7>(TakeWord(values));
    for (std::string_view word = TakeWord(values); !word.empty(); word = TakeWord(values)) {
        if (word == "lines") {
            quote.overLines = true;
        } else if (word == "raw") {
            quote.isRaw = true;
        } else if (word == "behind") {
            quote.behind = ShortText<31>(TakeWord(values));
        } else {
            quote.close = ShortText<7>(word);
        }
    }
    rules.add(quote);
}

void AddComment(QuoteRules& rules, std::string_view values) {
    Quote comment;
    comment.open = ShortText<7>(TakeWord(values));
    comment.close = ShortText<7>(TakeWord(values));
    comment.isComment = comment.overLines = comment.isRaw = true;
    rules.add(comment);
}

void SetLineComment(QuoteRules& rules, std::string_view values) {
    rules.commentsAtWords = TakeWord(values) == "word";
    rules.wordBreaks = ShortText<31>(TakeWord(values));
}

void SetCode(QuoteRules& rules, std::string_view values) {
    rules.codeStart = FirstOf(TakeWord(values));
    rules.codeEnd = FirstOf(TakeWord(values));
}

void SetInner(QuoteRules& rules, std::string_view values) {
    rules.innerStart = ShortText<3>(TakeWord(values));
    rules.innerEnd = FirstOf(TakeWord(values));
}

void SetHereText(QuoteRules& rules, std::string_view values) {
    rules.hereText = ShortText<3>(TakeWord(values));
}

struct Row {
    std::string_view name;
    void (*take)(QuoteRules& rules, std::string_view values);
};

constexpr Row kRows[] = {
    {"escape", SetEscape}, {"quote", AddQuote},          {"comment", AddComment},      {"line comment", SetLineComment},
    {"code", SetCode},     {"code in quotes", SetInner}, {"text behind", SetHereText},
};

}  // namespace

void QuoteRules::add(const Quote& quote) {
    if (count == kMostQuotes || quote.open.isEmpty() || quote.close.isEmpty()) return;
    Quote* at = quotes.data() + count++;
    for (; at != begin() && at[-1].open.view().size() < quote.open.view().size(); --at)
        *at = at[-1];
    *at = quote;
    (quote.isComment ? hasComment : hasString) = true;
}

QuoteRules ParseQuoteRules(std::string_view text) {
    QuoteRules rules;
    while (!text.empty()) {
        std::string_view line = TakeUntil(text, "\r\n");
        const std::string_view name = TrimBlanks(TakeUntil(line, ":"));
        for (const Row& row : kRows) {
            if (row.name == name) row.take(rules, line);
        }
    }
    return rules;
}

QuoteRules ReadQuoteRules(const std::string& path) {
    File file(path, platform::OpenMode::Read);
    if (!file.isOpen()) return {};
    return ParseQuoteRules(file.readUpTo(kLargestQuoteFile).value_or(std::string()));
}

}  // namespace vexa
