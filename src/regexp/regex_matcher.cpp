#include "regexp/regex_matcher.h"

#include <algorithm>

#include "base/strings.h"

namespace vexa {

namespace {

std::string errorText;
bool errorIsEmpty = false;

void SetErrorText(std::string_view text) {
    errorText = FillText(TextId::RegexError, {text});
    errorIsEmpty = text.empty();
}

}  // namespace

const char* RegexErrorText() {
    return errorText.c_str();
}

int RegexMatcher::match(const char* subject, const char* pattern) {
    return match(subject != nullptr ? std::string_view(subject) : std::string_view(), pattern);
}

int RegexMatcher::match(std::string_view line, const char* pattern) {
    if (line.data() == nullptr || pattern == nullptr) {
        SetErrorText(LoadText(TextId::BadCommandLine));
        return 0;
    }
    if (!errorIsEmpty) SetErrorText({});
    if (!compile(pattern)) {
        SetErrorText(FillText(TextId::UnexpectedError, {"VXEREG01", "162"}));
        return 0;
    }
    if (!RegExp::Execute(program_.get(), line)) return 0;
    store(line.data());
    return 1;
}

bool RegexMatcher::compile(const char* pattern) {
    if (program_ && pattern_ == pattern) return true;
    program_.reset();
    pattern_ = pattern;
    program_ = RegExp::Compile(pattern);
    return program_ != nullptr;
}

void RegexMatcher::store(const char* line) {
    const auto whole = program_->end(0) - program_->start(0);
    length_ = static_cast<std::int32_t>(std::min<std::ptrdiff_t>(whole, kTextLimit));
    *std::copy_n(program_->start(0), length_, text_.data()) = '\0';
    offset_ = static_cast<std::int32_t>(program_->start(0) - line);
}

}  // namespace vexa
