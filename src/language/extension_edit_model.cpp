#include "language/extension_edit_model.h"

#include <algorithm>

#include "base/ascii.h"
#include "base/directories.h"
#include "base/file.h"
#include "base/strings.h"
#include "language/profile_file.h"

namespace vexa {
namespace {

std::string TextOf(char c) {
    return c == '\0' ? std::string() : std::string(1, c);
}

char CharacterOf(const std::string& text) {
    return text.empty() ? '\0' : text.front();
}

std::string NameIn(const std::string& path) {
    return path.substr(DirectoryOf(path).size());
}

// A "." would end the extension before it.
bool CanStandInAFileName(char c) {
    constexpr std::string_view kForbidden = "\\/:*?\"<>|.";
    return static_cast<unsigned char>(c) > ' ' && c != '\x7F' && kForbidden.find(c) == std::string_view::npos;
}

bool IsGoodExtension(std::string_view extension) {
    return !extension.empty() && extension.size() <= kExtensionLimit &&
           std::ranges::all_of(extension, CanStandInAFileName);
}

std::vector<std::string> SortedOnceEach(std::vector<std::string> words) {
    std::ranges::sort(words);
    words.erase(std::unique(words.begin(), words.end()), words.end());
    return words;
}

void Tell(Notices& notices, const std::string& text) {
    notices.box(text, TextId::ErrorCaption, BoxButtons::Ok);
}

}  // namespace

ExtensionEditModel::ExtensionEditModel(const ProfileList& profiles) : profiles_(profiles), isNew_(true) {
    takeFields(ExtensionProfile());
}

ExtensionEditModel::ExtensionEditModel(const ProfileList& profiles, std::string_view fileExtension)
    : extension(fileExtension), profiles_(profiles), isNew_(false) {
    ExtensionProfile profile;
    const auto bytes = ReadKeptFile(profiles.profilePath(fileExtension), kLargestProfileFile);
    isUnreadable_ = !bytes;
    if (bytes) DecodeProfile(*bytes, profile);
    takeFields(profile);
}

void ExtensionEditModel::takeFields(const ExtensionProfile& profile) {
    description = profile.description();
    preprocessor = TextOf(profile.preprocessor());
    stringCharacter = TextOf(profile.stringQuote());
    lineComment = profile.lineComment();
    commentStart = profile.commentStart();
    commentEnd = profile.commentEnd();
    delimiters = profile.delimiters();
    keywords_ = SortedOnceEach(profile.keywords());
}

ExtensionProfile ExtensionEditModel::profile() const {
    ExtensionProfile profile;
    profile.setExtension(wantedExtension());
    profile.setDescription(description);
    profile.setPreprocessor(CharacterOf(preprocessor));
    profile.setStringQuote(CharacterOf(stringCharacter));
    profile.setLineComment(lineComment);
    profile.setCommentStart(commentStart);
    profile.setCommentEnd(commentEnd);
    profile.setDelimiters(delimiters);
    profile.replaceKeywords(keywords_);
    return profile;
}

// ---- keywords ----------------------------------------------------------------------------------------------------

// Sorted once for all the words, as an import may bring very many.
void ExtensionEditModel::add(const KeywordWords& words, ImportCount& count) {
    std::vector<std::string> fresh = SortedOnceEach(words.words);
    std::erase_if(fresh, [this](const std::string& word) { return std::ranges::binary_search(keywords_, word); });
    count.known += words.words.size() - fresh.size();
    count.tooLong += words.tooLong;

    const std::size_t added = std::min(fresh.size(), kKeywordCountLimit - keywords_.size());
    count.added += added;
    count.noRoom += fresh.size() - added;
    const auto old = static_cast<std::ptrdiff_t>(keywords_.size());
    keywords_.insert(keywords_.end(), fresh.begin(), fresh.begin() + static_cast<std::ptrdiff_t>(added));
    std::inplace_merge(keywords_.begin(), keywords_.begin() + old, keywords_.end());
}

std::optional<std::size_t> ExtensionEditModel::addKeywords(std::string_view typed, Notices& notices) {
    const KeywordWords words = CutKeywords(typed);
    if (words.words.empty()) {
        Tell(notices, std::string(LoadText(TextId::NoKeyword)));
        return std::nullopt;
    }
    ImportCount count;
    add(words, count);
    const auto row = std::ranges::lower_bound(keywords_, words.words.front());
    if (row != keywords_.end() && *row == words.words.front()) return row - keywords_.begin();
    Tell(notices, FillText(TextId::KeywordListFull, {std::to_string(count.noRoom)}));
    return std::nullopt;
}

void ExtensionEditModel::removeKeyword(std::size_t row) {
    if (row < keywords_.size()) keywords_.erase(keywords_.begin() + static_cast<std::ptrdiff_t>(row));
}

std::string ExtensionEditModel::Summary(const ImportCount& count) {
    std::string text = FillText(TextId::KeywordsAdded, {std::to_string(count.added)});
    if (count.known > 0) text += "\n" + FillText(TextId::KeywordsKnown, {std::to_string(count.known)});
    const std::string limit = std::to_string(kKeywordLimit);
    if (count.tooLong > 0) text += "\n" + FillText(TextId::KeywordsTooLong, {limit, std::to_string(count.tooLong)});
    if (count.noRoom > 0) text += "\n" + FillText(TextId::KeywordListFull, {std::to_string(count.noRoom)});
    return text;
}

void ExtensionEditModel::importFiles(const std::vector<std::string>& paths, Notices& notices) {
    ImportCount count;
    bool isAnyRead = false;
    for (const std::string& path : paths) {
        const std::optional<KeywordWords> words = ReadKeywordFile(path);
        if (words) {
            add(*words, count);
        } else {
            Tell(notices, FillText(TextId::CannotOpenFile, {NameIn(path)}));
        }
        isAnyRead = isAnyRead || words;
    }
    if (isAnyRead) notices.box(Summary(count), TextId::ProgramCaption, BoxButtons::Ok);
}

// ---- update ------------------------------------------------------------------------------------------------------

std::string_view ExtensionEditModel::wantedExtension() const {
    return isNew_ ? TrimBlanks(extension) : std::string_view(extension);
}

bool ExtensionEditModel::mayReplace(Notices& notices) const {
    const std::string_view wanted = wantedExtension();
    const auto isWanted = [wanted](const std::string& name) { return EqualIgnoringCase(name, wanted); };
    if (!isNew_ || std::ranges::none_of(profiles_.extensions(), isWanted)) return true;
    const std::string question = FillText(TextId::ReplaceExtension, {wanted});
    return notices.box(question, TextId::ProgramCaption, BoxButtons::YesNo) == BoxAnswer::Yes;
}

bool ExtensionEditModel::update(Notices& notices) const {
    const std::string_view wanted = wantedExtension();
    if (isNew_ && !IsGoodExtension(wanted)) {
        Tell(notices, FillText(TextId::BadExtension, {std::to_string(kExtensionLimit)}));
        return false;
    }
    if (!mayReplace(notices)) return false;
    const std::string path = profiles_.profilePath(wanted);
    if (!isUnreadable_ && profile().write(path)) return true;
    Tell(notices, FillText(TextId::CannotWriteFile, {NameIn(path)}));
    return false;
}

}  // namespace vexa
