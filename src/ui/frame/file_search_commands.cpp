#include "ui/frame/file_search_commands.h"

#include <algorithm>

#include "document/text/file_identity.h"
#include "ui/dialogs/replace_in_files_dialog.h"
#include "ui/frame/command_rows.h"

namespace vexa {
namespace {

constexpr UINT_PTR kSearchTimer = 7;
constexpr int kPause = 10;  // milliseconds

}  // namespace

FileSearchCommands::FileSearchCommands(OpenDocuments& documents, Application& application, FrameNotices& notices,
                                       FrameLists& lists)
    : documents_(documents),
      application_(application),
      notices_(notices),
      steps_(lists.steps()),
      timer_(documents.frame(), kSearchTimer),
      hits_(*this, application.searchOptions, notices),
      window_(TextId::SearchResultsTitle, hits_, documents.frame(), lists, application),
      job_(hits_, *this, notices) {
    hits_.attach(&window_);
    steps_.add(hits_);
    fields_.Load(application.store);
}

void FileSearchCommands::registerCommands(CommandDispatcher& dispatcher) {
    static constexpr MethodRow<FileSearchCommands> kRows[] = {
        {CommandId::StopSearch, &FileSearchCommands::stop},
        {CommandId::ShowSearchResults, &FileSearchCommands::showResults},
        {CommandId::ReplaceInFiles, &FileSearchCommands::replace},
    };
    RegisterRows(dispatcher, *this, kRows);
}

// ---- searching ---------------------------------------------------------------------------------------------------

void FileSearchCommands::searchFiles(const FileSearchRequest& request) {
    fields_.Save(application_.store);
    steps_.use(hits_);
    job_.start(request);
    timer_.start(kPause);
}

bool FileSearchCommands::useTimer(UINT_PTR timer) {
    if (timer != timer_.number()) return false;
    if (!job_.work()) timer_.stop();
    return true;
}

void FileSearchCommands::stop() {
    if (job_.isRunning()) return job_.stop();
    notices_.status(LoadText(TextId::NoFileSearch), false, false);
}

void FileSearchCommands::showResults() {
    steps_.use(hits_);
    window_.show();
}

// ---- replacing ---------------------------------------------------------------------------------------------------

// None when another window than that of the results is the active one.
HitRows FileSearchCommands::chosenRows() const {
    const ListWindow* list = documents_.activeList();
    if (!list || &list->rows() != &hits_) return {};
    const RowSpan span = list->selection();
    const std::size_t first = std::max(span.first, hits_.firstHit());
    const std::size_t end = std::min(span.first + span.count, hits_.firstHit() + hits_.hitCount());
    return {first, end > first ? end - first : 0};
}

// Several rows are not selected by chance.
void FileSearchCommands::replace() {
    const auto tell = [this](std::string_view text) { notices_.status(text, false, false); };
    if (hits_.hitCount() == 0) return tell(LoadText(TextId::NoHitsToReplace));
    const HitRows chosen = chosenRows();
    FileReplaceFields fields{hits_.request().options.findText(), application_.searchOptions.replaceText(),
                             chosen.count > 0, chosen.count < 2};
    ReplaceInFilesDialog dialog(application_, fields);
    if (!dialog.runModal(documents_.frame().window())) return;
    application_.searchOptions.setReplaceText(fields.replaceText);
    job_.stop();
    const HitRows all{hits_.firstHit(), hits_.hitCount()};
    const DrawingPause pause = documents_.pauseFor(HitReplacement::kMostFiles);
    const BusyCursor busy(notices_);
    tell(HitReplacement(hits_, *this).replace(fields.inAll ? all : chosen, fields.replaceText));
}

// ---- what the search and the list ask for ------------------------------------------------------------------------

const TextDocument* FileSearchCommands::documentOf(const std::string& path, std::uint64_t size) const {
    const TextDocument* found = nullptr;
    documents_.each([&](DocumentWindow& window) {
        const TextDocument& document = window.document();
        if (document.isNamed() && IsFileOf(document, path, size)) found = &document;
    });
    return found;
}

std::string_view FileSearchCommands::delimitersOf(const std::string& path) {
    return application_.profiles.profileFor(path).delimiters();
}

bool FileSearchCommands::openFileAtLine(const std::string& path, std::int32_t line) {
    return documents_.opening().OpenFileAtLine(path, line);
}

EditView* FileSearchCommands::activeView() {
    DocumentWindow* active = documents_.active();
    return active ? &active->view() : nullptr;
}

void FileSearchCommands::refreshActive() {
    documents_.active()->refresh();
}

}  // namespace vexa
