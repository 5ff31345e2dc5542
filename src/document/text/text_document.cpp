#include "document/text/text_document.h"

#include "base/checksum.h"
#include "base/file.h"
#include "document/text/columns.h"
#include "document/text/document_line_ends.h"
#include "document/text/text_loader.h"

namespace vexa {

namespace {

constexpr const char* kNoName = "name.bad";

}  // namespace

TextDocument::TextDocument(const EditorOptions& options, Notices& notices)
    : options_(options), notices_(notices), path_(kNoName), baseName_(kNoName), history_(notices) {}

// The history and the lines go before the arena that holds their text.
TextDocument::~TextDocument() {
    discardText();
}

void TextDocument::discardText() {
    history_.clear();
    lines_.clear();
    arena_.clear();
    lineStates_.reset();
    marked_ = {};
    bookmarks_ = {};
    currentLine_ = LineIndex(0);
    clearModified();
    linesWrapped_ = false;
    truncated_ = false;
}

void TextDocument::setName(const std::optional<std::string>& path) {
    named_ = path.has_value();
    disk_ = {};
    path_ = path.value_or(kNoName);
    const std::size_t slash = path_.rfind('\\');
    baseName_ = slash == std::string::npos ? path_ : path_.substr(slash + 1);
}

void TextDocument::setProfile(const ExtensionProfile& profile) {
    profile_ = &profile;
    // The old rules are in use until the new ones are.
    auto rules = std::make_unique<const TokenRules>(profile);
    lineStates_.setRules(rules.get());
    tokenRules_ = std::move(rules);
}

bool TextDocument::newEmpty() {
    loaded_ = true;
    named_ = false;
    rules_ = FileRules(options_.habits);
    takeLineEnds({});
    lines_.putIfVacant(makeLine({}), kNewDocumentLine);
    return true;
}

bool TextDocument::load(const FileRules& rules) {
    discardText();
    rules_ = rules;
    // As they are before the reading: what another program writes meanwhile is then a change.
    const auto facts = platform::FactsOf(path_);
    disk_ = {};
    loadFailure_ = TextId::CannotOpenFile;
    File file;
    if (!path_.empty()) file = File(path_, platform::OpenMode::Read);
    TextLoader loader(*this, arena_, rules_, options_.FileWrite);
    if (!file.isOpen() || !loader.read(file)) {
        discardText();
        disk_ = {};
        newEmpty();
        return false;
    }
    lines_.takeGrown();
    takeLineEnds(rules_.keepsLineEnds ? loader.tally() : LineEndTally());
    loaded_ = true;
    disk_.facts = facts;
    disk_.changesUnedited = disk_.kind != ContentsKind::Text && changesWhenWritten();
    return true;
}

bool TextDocument::changesWhenWritten() const {
    Checksum written;
    const auto sink = [&written](std::string_view part) {
        written.add(part);
        return true;
    };
    return !WriteLines(*this, sink, options_.FileWrite) || written.value() != disk_.checksum;
}

WriteOutcome TextDocument::tryWrite(bool withoutCopy) {
    if (!named_) return {};
    const WriteOutcome outcome = WriteText(*this, path_, {options_.FileWrite, disk_.checksum, withoutCopy});
    if (outcome.result == WriteResult::Torn) disk_.checksum.reset();
    if (outcome.result != WriteResult::Written) return outcome;
    disk_ = {};
    disk_.checksum = outcome.checksum;
    disk_.facts = platform::FactsOf(path_);
    history_.clear();
    clearModified();
    clearChangedLines();
    CountLineEnds(*this);
    linesWrapped_ = false;
    truncated_ = false;
    return outcome;
}

void TextDocument::takeLineEnds(const LineEndTally& tally) {
    lineEndStyle_ = tally.style(options_.FileWrite ? LineEnd::Lf : LineEnd::CrLf);
}

void TextDocument::countChange(std::int32_t step) {
    modifiedCount_ += step;
    ++revision_;
    if (!isModified()) clearChangedLines();
}

void TextDocument::becomeAsLoaded(const TextDocument& other) {
    disk_ = other.disk_;
    lineEndStyle_ = other.lineEndStyle_;
    linesWrapped_ = other.linesWrapped_;
    truncated_ = other.truncated_;
    clearModified();
    clearChangedLines();
}

void TextDocument::clearChangedLines() {
    const std::int32_t last = lines_.lastUsed(LastUsed::Plain);
    for (std::int32_t i = 0; i <= last; ++i) {
        TextLine* line = lines_.occupied(i);
        if (line && line->isChanged()) line->clearChanged();
    }
}

bool TextDocument::isLineChanged(LineIndex index) const {
    const TextLine* found = isModified() ? lines_.occupied(index.value) : nullptr;
    return found && found->isChanged();
}

// ---- lines -------------------------------------------------------------------------------------------------------

LineIndex TextDocument::lastLine(LastUsed mode) const {
    return LineIndex(loaded_ ? lines_.lastUsed(mode) : kNewDocumentLine);
}

TextLine& TextDocument::editableLine(LineIndex index) {
    lineStates_.touch(index);
    lines_.noteChanged(index.value);
    if (TextLine* line = lines_.occupied(index.value)) return *line;
    lines_.reserve(index.value);
    lines_.put(makeLine({}), index.value);
    lines_.occupied(index.value)->clearChanged();  // the cursor has only come to a line that nobody has used yet
    return *lines_.occupied(index.value);
}

LinePtr TextDocument::makeLine(std::string_view text) {
    return LinePtr(new TextLine(text));
}

// ---- cursor ------------------------------------------------------------------------------------------------------

CharColumn TextDocument::column() const {
    const TextLine* here = line(currentLine_);
    return here ? here->column() : CharColumn(0);
}

std::int32_t TextDocument::tabSize() const {
    return UsableTabSize(options_.TabSize);
}

DisplayColumn TextDocument::displayColumn() const {
    const TextLine* here = line(currentLine_);
    return here ? toDisplay(*here, here->column()) : DisplayColumn(0);
}

DisplayColumn TextDocument::toDisplay(LineIndex index, CharColumn column) const {
    const TextLine* shown = line(index);
    return shown ? toDisplay(*shown, column) : DisplayColumn(column.value);
}

DisplayColumn TextDocument::toDisplay(const TextLine& shown, CharColumn column) const {
    const std::int32_t tab = tabSize();
    return ToDisplay(shown.text(), column, tab, columnMarks_.before(shown, column, tab));
}

CharColumn TextDocument::toCharacter(LineIndex index, DisplayColumn column) const {
    const TextLine* shown = line(index);
    if (shown == nullptr) return ToCharacter({}, column, tabSize());
    const std::int32_t tab = tabSize();
    return ToCharacter(shown->text(), column, tab, columnMarks_.before(*shown, column, tab));
}

ColumnMark TextDocument::markBefore(LineIndex index, DisplayColumn column) const {
    const TextLine* shown = line(index);
    return shown ? columnMarks_.before(*shown, column, tabSize()) : ColumnMark();
}

}  // namespace vexa
