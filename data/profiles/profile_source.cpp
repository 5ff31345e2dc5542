#include "profile_source.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/take_text.h"

namespace vexa {

namespace {

std::vector<std::string> WordsOf(std::string_view text) {
    std::vector<std::string> words;
    for (text = TrimBlanks(text); !text.empty(); text = TrimBlanks(text)) {
        const std::size_t end = std::min(text.find_first_of(" \t"), text.size());
        words.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

char CharacterOf(std::string_view value) {
    return value.empty() ? '\0' : value[0];
}

// A field of the profile, with what may stand in it.
struct Field {
    std::string_view name;
    std::size_t limit;
    void (*set)(ProfileSource& source, std::string_view value);
};

constexpr Field kFields[] = {
    {"extensions", 200, [](ProfileSource& s, std::string_view value) { s.extensions = WordsOf(value); }},
    {"description", kDescriptionLimit, [](ProfileSource& s, std::string_view v) { s.profile.setDescription(v); }},
    {"comment start", kCommentLimit, [](ProfileSource& s, std::string_view v) { s.profile.setCommentStart(v); }},
    {"comment end", kCommentLimit, [](ProfileSource& s, std::string_view v) { s.profile.setCommentEnd(v); }},
    {"line comment", kCommentLimit, [](ProfileSource& s, std::string_view v) { s.profile.setLineComment(v); }},
    {"string", 1, [](ProfileSource& s, std::string_view v) { s.profile.setStringQuote(CharacterOf(v)); }},
    {"preprocessor", 1, [](ProfileSource& s, std::string_view v) { s.profile.setPreprocessor(CharacterOf(v)); }},
    {"delimiters", kDelimiterLimit, [](ProfileSource& s, std::string_view v) { s.profile.setDelimiters(v); }},
};

ProfileSource EmptySource() {
    ProfileSource source;
    for (const Field& field : kFields)
        field.set(source, "");
    return source;
}

std::string SetField(ProfileSource& source, std::string_view line) {
    const std::size_t colon = line.find(':');
    const auto field = std::ranges::find(kFields, line.substr(0, colon), &Field::name);
    if (colon == std::string_view::npos || field == std::end(kFields)) return "no field: " + std::string(line);
    const std::string_view value = TrimBlanks(line.substr(colon + 1));
    if (value.size() > field->limit) return "too long: " + std::string(line);
    field->set(source, value);
    return {};
}

std::string SetKeywords(ProfileSource& source, std::string_view text) {
    std::vector<std::string> keywords;
    while (!text.empty()) {
        for (std::string& word : WordsOf(TakeLine(text))) {
            if (word.size() > kKeywordLimit) return "too long: " + word;
            keywords.push_back(std::move(word));
        }
    }
    std::ranges::sort(keywords);
    source.profile.replaceKeywords(std::move(keywords));
    return {};
}

}  // namespace

std::optional<ProfileSource> ParseProfileSource(std::string_view text, std::string& error) {
    ProfileSource source = EmptySource();
    while (error.empty() && !text.empty()) {
        const std::string_view line = TakeLine(text);
        if (TrimBlanks(line) == "keywords:") {
            error = SetKeywords(source, text);
            break;
        }
        if (!line.starts_with('#') && !TrimBlanks(line).empty()) error = SetField(source, line);
    }
    const auto tooLong = [](const std::string& extension) { return extension.size() > kExtensionLimit; };
    if (error.empty() && source.extensions.empty()) error = "no extension";
    if (error.empty() && std::ranges::any_of(source.extensions, tooLong)) error = "an extension is too long";
    if (!error.empty()) return std::nullopt;
    return source;
}

}  // namespace vexa
