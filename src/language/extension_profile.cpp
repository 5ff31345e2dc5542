#include "language/extension_profile.h"

#include <algorithm>
#include <iterator>

#include "base/ascii.h"
#include "base/file.h"
#include "base/fixed_field.h"
#include "language/profile_file.h"

namespace vexa {

namespace {

constexpr const char* kBuiltInKeywords[] = {
    "asm",      "auto",     "break",  "case",     "catch",     "cdecl",  "char",      "class",  "const",   "continue",
    "default",  "delete",   "do",     "double",   "else",      "enum",   "extern",    "far",    "float",   "for",
    "friend",   "goto",     "huge",   "if",       "inline",    "int",    "interrupt", "long",   "near",    "new",
    "operator", "overload", "pascal", "private",  "protected", "public", "register",  "return", "short",   "signed",
    "sizeof",   "static",   "struct", "switch",   "template",  "this",   "throw",     "try",    "typedef", "union",
    "unsigned", "virtual",  "void",   "volatile", "while"};
static_assert(std::size(kBuiltInKeywords) == 55);

}  // namespace

ExtensionProfile::ExtensionProfile()
    : delimiters_("[](){},;:.&*+-=~!%<>^|?"),
      commentStart_("/*"),
      commentEnd_("*/"),
      lineComment_("//"),
      // The marker of the built-in profile: no file name has this extension.
      extension_(LimitedText("*.TXT", kExtensionLimit)),
      preprocessor_('#'),
      stringQuote_('"'),
      version_(kProfileVersion),
      keywords_(std::begin(kBuiltInKeywords), std::end(kBuiltInKeywords)) {}

void ExtensionProfile::setDescription(std::string_view text) {
    description_ = LimitedText(text, kDescriptionLimit);
}

void ExtensionProfile::setDelimiters(std::string_view text) {
    delimiters_ = LimitedText(text, kDelimiterLimit);
}

void ExtensionProfile::setCommentStart(std::string_view text) {
    commentStart_ = LimitedText(text, kCommentLimit);
}

void ExtensionProfile::setCommentEnd(std::string_view text) {
    commentEnd_ = LimitedText(text, kCommentLimit);
}

void ExtensionProfile::setLineComment(std::string_view text) {
    lineComment_ = LimitedText(text, kCommentLimit);
}

void ExtensionProfile::setExtension(std::string_view text) {
    extension_ = LimitedText(text, kExtensionLimit);
}

void ExtensionProfile::replaceKeywords(std::vector<std::string> keywords) {
    for (std::string& keyword : keywords)
        keyword = LimitedText(keyword, kKeywordLimit);
    std::erase(keywords, "");
    keywords.resize(std::min(keywords.size(), kKeywordCountLimit));
    keywords_ = std::move(keywords);
}

bool ExtensionProfile::matches(std::string_view extension) const {
    return EqualIgnoringCase(extension_, extension.substr(0, kExtensionLimit));
}

bool ExtensionProfile::read(const std::string& path) {
    File file(path, platform::OpenMode::Read);
    if (!file.isOpen()) return false;
    const std::optional<std::string> bytes = file.readUpTo(kLargestProfileFile);
    return bytes && DecodeProfile(*bytes, *this);
}

bool ExtensionProfile::write(const std::string& path) {
    std::ranges::sort(keywords_);
    if (!WriteWholeFile(path, EncodeProfile(*this))) return false;
    version_ = kProfileVersion;
    return true;
}

}  // namespace vexa
