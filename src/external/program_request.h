// What is to be run: a program, its arguments and its directory, and how. A tool of the Tools menu is such a request.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vexa {

enum class ProgramKind : std::uint16_t {
    Dos = 0,          // carried out by the command interpreter
    Windows = 1,      // started directly
    Interpreter = 2,  // the command interpreter itself: a command line, or a shell when there are no arguments
};

// How a program's window begins; Windows' own numbers.
enum class ShowMode : std::uint16_t { Hidden = 0, Normal = 1, Minimised = 2, Maximised = 3, MinimisedInactive = 7 };

class ProgramRequest {
  public:
    // Characters that each text keeps; a longer one is cut.
    static constexpr std::size_t kTextLimit = 255;
    static constexpr std::size_t kMenuTextLimit = 40;

    // Every text is empty.
    ProgramRequest() = default;
    // Without a directory, the current one.
    explicit ProgramRequest(std::string_view program, std::string_view arguments = {}, std::string_view directory = {});

    ProgramKind kind = ProgramKind::Dos;
    ShowMode showMode = ShowMode::Hidden;
    bool capture = true;           // what it prints goes to the Output window
    bool askForArguments = false;  // before each run

    const std::string& program() const { return program_; }
    const std::string& menuText() const { return menuText_; }
    const std::string& arguments() const { return arguments_; }
    const std::string& directory() const { return directory_; }
    void setProgram(std::string_view text);
    void setMenuText(std::string_view text);
    void setArguments(std::string_view text);
    void setDirectory(std::string_view text);

    // What the status line shows while it runs: the program's name from its last "\" on, and the arguments.
    std::string description() const;

    bool operator==(const ProgramRequest&) const = default;

  private:
    std::string program_;
    std::string menuText_;
    std::string arguments_;
    std::string directory_;
};

}  // namespace vexa
