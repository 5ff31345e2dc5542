// The user's tools: programs at the end of the Tools menu, kept in the file "VexaTool.INF".
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/directories.h"
#include "external/program_request.h"

namespace vexa {

using Tools = std::vector<ProgramRequest>;

inline constexpr std::size_t kMostTools = 15;

// The file: a byte for the number of tools, then a record of 815 bytes each, in order: a byte each for capture and for
// asking for arguments, two each for kind and show mode, the low one first, then the program in 256 bytes, the menu
// text in 41, the arguments and the directory in 256 each, every text with a zero byte at its end. Of a file with more
// tools than the menu has room for, the first are used; of one that ends early, those that are whole.
Tools DecodeTools(std::string_view bytes);
std::string EncodeTools(const Tools& tools);

class ToolList {
  public:
    explicit ToolList(const Directories& directories);

    // Reads the file; a missing one means no tools, and so does one that cannot be read.
    void LoadTools();
    const Tools& tools() const { return tools_; }
    const std::string& path() const { return path_; }
    std::optional<std::size_t> find(std::string_view menuText) const;

    // Writes a changed list, and has it from then on. False when the file could not be written, or not be read before;
    // both are then as they were.
    bool replace(Tools tools);

  private:
    const std::string path_;
    Tools tools_;
    bool isRead_ = true;
};

// The text of a tool's menu item, with its key. The command's number is 432 and the tool's index.
std::string ToolMenuText(const ProgramRequest& tool, std::size_t index);

}  // namespace vexa
