#include "shell/command_line.h"

#include <algorithm>
#include <memory>

#include "base/ascii.h"
#include "base/platform.h"
#include "regexp/regexp.h"
#include "shell/open_path.h"

namespace vexa {

namespace {

constexpr const char* kLineOption = "[-/]+[lL]+[ ]*[0-9]+";
constexpr std::size_t kLongestOption = 49;  // characters looked at for the number
constexpr std::int32_t kNoLine = -1;

// The name in front is cut by simpler rules: a quote only encloses, a backslash is nothing special.
std::string_view WithoutProgram(std::string_view whole) {
    bool quoted = false;
    std::size_t i = 0;
    for (; i < whole.size() && (quoted || !IsBlank(whole[i])); ++i)
        quoted = quoted != (whole[i] == '"');
    return TrimBlanks(whole.substr(i));
}

// Reads one argument after another off a command line.
class ArgumentReader {
  public:
    explicit ArgumentReader(std::string_view text) : rest_(text) { skipBlanks(); }

    bool atEnd() const { return rest_.empty(); }

    std::string next() {
        argument_.clear();
        bool quoted = false;
        while (!rest_.empty() && (quoted || !IsBlank(rest_[0])))
            quoted = takePiece(quoted);
        skipBlanks();
        return argument_;
    }

  private:
    // One character, or a run of backslashes with the quote after it; whether what follows is quoted.
    bool takePiece(bool quoted) {
        const std::size_t backslashes = std::min(rest_.find_first_not_of('\\'), rest_.size());
        const bool beforeQuote = rest_.substr(backslashes).starts_with('"');
        argument_.append(beforeQuote ? backslashes / 2 : backslashes, '\\');
        rest_.remove_prefix(backslashes);
        if (!beforeQuote) return backslashes == 0 ? takeCharacter(quoted) : quoted;
        if (backslashes % 2 != 0) return takeCharacter(quoted);
        rest_.remove_prefix(1);
        const bool doubled = quoted && rest_.starts_with('"');
        return doubled ? takeCharacter(quoted) : !quoted;
    }

    bool takeCharacter(bool quoted) {
        argument_ += rest_[0];
        rest_.remove_prefix(1);
        return quoted;
    }

    void skipBlanks() {
        while (!rest_.empty() && IsBlank(rest_[0]))
            rest_.remove_prefix(1);
    }

    std::string_view rest_;
    std::string argument_;
};

bool HasWildcard(std::string_view text) {
    return text.find_first_of("*?") != std::string_view::npos;
}

void AddMatches(std::vector<FileAtLine>& files, const std::string& pattern) {
    const std::string directory = pattern.substr(0, pattern.rfind('\\') + 1);
    for (const std::string& name : platform::FindFiles(pattern))
        files.push_back({OpenPathOf(directory + name), 0});
}

}  // namespace

CommandLine ParseCommandLine(std::string_view whole) {
    CommandLine line{std::string(WithoutProgram(whole)), {}};
    for (ArgumentReader reader(line.text); !reader.atEnd();)
        line.arguments.push_back(reader.next());
    return line;
}

bool AsksForHelp(std::span<const std::string> arguments) {
    return arguments.size() == 1 && (arguments[0] == "/?" || arguments[0] == "-?");
}

std::int32_t ParseLineOption(const std::string& argument) {
    static const std::unique_ptr<RegExp> option = RegExp::Compile(kLineOption);
    if (!RegExp::Execute(option.get(), std::string_view(argument))) return kNoLine;
    const std::string_view text(option->start(0), argument.data() + argument.size());
    const std::string_view found = text.substr(0, kLongestOption);
    const auto digits = std::ranges::find_if(found, IsDigit);
    return digits == found.end() ? kNoLine : LeadingInteger({digits, found.end()});
}

std::int32_t LineNamedBy(const std::string& argument) {
    const std::int32_t line = ParseLineOption(argument);
    const std::string path = OpenPathOf(argument);
    const bool isFile = line != kNoLine && platform::PathExists(path) && !platform::DirectoryExists(path);
    return isFile ? kNoLine : line;
}

std::vector<FileAtLine> FilesOf(std::span<const std::string> arguments) {
    std::int32_t line = 0;
    std::vector<std::string> names;
    for (const std::string& argument : arguments) {
        const std::int32_t named = LineNamedBy(argument);
        if (named != kNoLine) line = named;
        if (named == kNoLine && !argument.empty()) names.push_back(argument);
    }
    std::vector<FileAtLine> files;
    for (const std::string& name : names) {
        if (HasWildcard(name)) {
            AddMatches(files, name);
        } else {
            files.push_back({OpenPathOf(name), line});
        }
    }
    return files;
}

}  // namespace vexa
