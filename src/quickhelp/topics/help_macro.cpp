#include "quickhelp/topics/help_macro.h"

#include "base/ascii.h"

namespace vexa::topics {
namespace {

constexpr std::size_t kMostCalls = 100;

// Quoted texts may hold others when they are written `so'.
class MacroReader {
  public:
    explicit MacroReader(std::string_view text) : text_(text) {}

    std::vector<MacroCall> read();

  private:
    bool atEnd() const { return next_ >= text_.size(); }
    void readArguments(MacroCall& call);
    std::string readArgument();
    void skipQuoted();

    std::string_view text_;
    std::size_t next_ = 0;
};

void MacroReader::skipQuoted() {
    const char open = text_[next_++];
    const char close = open == '`' ? '\'' : '"';
    for (int depth = 1; !atEnd() && depth > 0; ++next_) {
        if (text_[next_] == close) {
            --depth;
        } else if (text_[next_] == open) {
            ++depth;
        }
    }
}

std::string MacroReader::readArgument() {
    const std::size_t start = next_;
    int depth = 0;
    while (!atEnd()) {
        const char c = text_[next_];
        if (depth == 0 && (c == ',' || c == ')')) break;
        if (c == '`' || c == '"') {
            skipQuoted();
            continue;
        }
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        ++next_;
    }
    std::string_view argument = TrimBlanks(text_.substr(start, next_ - start));
    const bool isQuoted = argument.size() >= 2 && (argument.front() == '`' || argument.front() == '"');
    return std::string(isQuoted ? argument.substr(1, argument.size() - 2) : argument);
}

void MacroReader::readArguments(MacroCall& call) {
    ++next_;  // the bracket
    while (!atEnd() && text_[next_] != ')') {
        call.arguments.push_back(readArgument());
        if (!atEnd() && text_[next_] == ',') ++next_;
    }
    if (!atEnd()) ++next_;
}

std::vector<MacroCall> MacroReader::read() {
    std::vector<MacroCall> calls;
    while (!atEnd() && calls.size() < kMostCalls) {
        const std::size_t start = next_;
        next_ = std::min(text_.find_first_of("(;:", start), text_.size());
        MacroCall call;
        call.name = TrimBlanks(text_.substr(start, next_ - start));
        if (!atEnd() && text_[next_] == '(') readArguments(call);
        call.text = TrimBlanks(text_.substr(start, next_ - start));
        if (!call.name.empty()) calls.push_back(std::move(call));
        next_ = text_.find_first_of(";:", next_);
        if (next_ != std::string_view::npos) ++next_;
    }
    return calls;
}

}  // namespace

std::vector<MacroCall> ReadMacros(std::string_view text) {
    return MacroReader(text).read();
}

}  // namespace vexa::topics
