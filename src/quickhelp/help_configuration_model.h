// The rules of the dialog "Help Configuration": help files to be found on the disks, and those that are installed.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/notices.h"
#include "quickhelp/help_index.h"

namespace vexa {

// A row of the file list.
struct HelpFileRow {
    enum class Kind { File, Directory, Drive };
    Kind kind;
    std::string name;  // of a drive its letter

    // As the row is shown: "NAME.HLP", "[DIR]" or "[-c-]".
    std::string text() const;

    bool operator==(const HelpFileRow&) const = default;
};

// Lists the current directory, and changes it as the user goes through the disks; the former one is the current one
// again when the dialog is done.
class HelpConfigurationModel {
  public:
    // The directory of the indexes, without "\" at its end.
    HelpConfigurationModel(std::string indexDirectory, Notices& notices);
    ~HelpConfigurationModel();
    HelpConfigurationModel(const HelpConfigurationModel&) = delete;
    HelpConfigurationModel& operator=(const HelpConfigurationModel&) = delete;

    // The directory that is listed.
    const std::string& path() const { return path_; }
    // Its help files, then its directories, then the drives.
    const std::vector<HelpFileRow>& rows() const { return rows_; }
    // Names of help files, in lower-case letters.
    const std::vector<std::string>& installed() const { return installed_; }

    // Rows as the user chooses them; none takes the choice away.
    void chooseRow(std::optional<std::size_t> row) { row_ = row; }
    void chooseInstalled(std::optional<std::size_t> row) { installedRow_ = row; }
    std::optional<std::size_t> chosenRow() const { return row_; }
    std::optional<std::size_t> chosenInstalled() const { return installedRow_; }
    // Whether the buttons are enabled.
    bool canAdd() const;
    bool canRemove() const;

    // A double click: goes to the chosen row's directory or drive, or installs its file. False, with the choice and the
    // list as they were, when that is not possible.
    bool open();
    // Makes an index of the chosen file. The user is told of a failure.
    bool add();
    // Deletes the index of the chosen installed file. The user is told of a failure, after which the file stays.
    void remove();

  private:
    const HelpFileRow* chosenFile() const;
    bool goTo(const HelpFileRow& row);
    IndexResult build(const std::string& helpFile);
    void listFiles();
    void listInstalled();
    void clearChoices();
    void note(const std::string& name);

    const std::string indexDirectory_;
    const std::string formerDirectory_;
    Notices& notices_;
    std::string path_;
    std::vector<HelpFileRow> rows_;
    std::vector<std::string> installed_;
    std::optional<std::size_t> row_;
    std::optional<std::size_t> installedRow_;
};

}  // namespace vexa
