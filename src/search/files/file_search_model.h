// The rules of the Find in Files dialog.
#pragma once

#include <string>

#include "base/config_store.h"
#include "search/files/file_search.h"
#include "search/find_dialog_model.h"

namespace vexa {

// Whoever carries a search in files out.
class FileSearcher {
  public:
    virtual ~FileSearcher() = default;
    virtual void searchFiles(const FileSearchRequest& request) = 0;
};

// What the dialog begins with: what was used last, and at first the folder of the active document.
struct FileSearchFields {
    static constexpr std::size_t kTextLimit = 255;  // characters of each

    // From and to section "FileSearch".
    void Load(const ConfigStore& store);
    void Save(ConfigStore& store) const;

    std::string folder;
    std::string patterns = "*.*";
    bool subfolders = true;
};

class FileSearchModel : public FindDialogModel {
  public:
    static constexpr const char* kFolderHistoryFile = "VexaFol.his";
    static constexpr const char* kPatternHistoryFile = "VexaPat.his";

    FileSearchModel(FindCommands& commands, HistoryList& findHistory, HistoryList& folders, HistoryList& patterns,
                    const FileSearchFields& fields);

    FileSearchFields fields;

    // Why no search can be started with the fields; empty when one can.
    std::string refusal() const;
    // Makes the fields the new options.
    FileSearchRequest request();

  private:
    bool hasLineEnds() const;

    HistoryList& folders_;
    HistoryList& patterns_;
};

}  // namespace vexa
