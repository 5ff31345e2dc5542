// The rules of the "File Extensions" dialog: the extensions that have a profile of their own.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/notices.h"
#include "language/extension_edit_model.h"
#include "language/profile_list.h"

namespace vexa {

struct FileExtensionRow {
    std::string extension;
    std::string description;

    bool operator==(const FileExtensionRow&) const = default;
};

class FileExtensionsModel {
  public:
    explicit FileExtensionsModel(const ProfileList& profiles) : profiles_(profiles) { readRows(); }

    const std::vector<FileExtensionRow>& rows() const { return rows_; }
    // The row to choose after the extension's profile has been written.
    std::optional<std::size_t> rowOf(std::string_view extension) const;
    // What the edit dialog begins with.
    ExtensionEditModel newProfile() const { return ExtensionEditModel(profiles_); }
    ExtensionEditModel profileOf(std::size_t row) const { return {profiles_, rows_[row].extension}; }
    // Reads the profile files again.
    void readRows();
    // Deletes a row's profile if the user agrees; true when it is gone. The user is told of a failure.
    bool deleteProfile(std::size_t row, Notices& notices);

  private:
    const ProfileList& profiles_;
    std::vector<FileExtensionRow> rows_;
};

}  // namespace vexa
