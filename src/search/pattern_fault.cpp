#include "search/pattern_fault.h"

#include "base/strings.h"
#include "regexp/regexp.h"

namespace vexa {

namespace {

const char* fault = "";

void KeepFault(const char* text) {
    fault = text;
}

}  // namespace

std::string FaultOfPattern(const std::string& pattern) {
    const RegExpErrorHook before = SetRegExpErrorHook(&KeepFault);
    const bool isGood = RegExp::Compile(pattern.c_str()) != nullptr;
    SetRegExpErrorHook(before);
    return isGood ? std::string() : FillText(TextId::RegexError, {fault});
}

}  // namespace vexa
