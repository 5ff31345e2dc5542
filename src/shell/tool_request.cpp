#include "shell/tool_request.h"

#include <utility>

#include "base/ascii.h"
#include "base/platform.h"
#include "shell/open_path.h"

namespace vexa {

namespace {

constexpr std::int32_t kNoLine = -1;

bool IsFile(const std::string& path) {
    return platform::PathExists(path) && !platform::DirectoryExists(path);
}

std::string PathOf(const std::string& name) {
    const std::string path = platform::LongPath(name);
    return path.empty() ? name : path;
}

// Takes ":12" off the end of a text, or all of "+12"; none when it ends in another way.
std::optional<std::int32_t> TakeNumber(std::string_view& text) {
    std::size_t start = text.size();
    while (start > 0 && IsDigit(text[start - 1]))
        --start;
    const bool isBehindColon = start > 0 && text[start - 1] == ':';
    const bool isBehindPlus = start == 1 && text[0] == '+';
    if (start == text.size() || (!isBehindColon && !isBehindPlus)) return std::nullopt;
    const std::int32_t number = LeadingInteger(text.substr(start));
    text = text.substr(0, start - 1);
    return number;
}

bool IsDriveLetter(std::string_view text) {
    return text.size() == 1 && LowerAscii(text[0]) >= 'a' && LowerAscii(text[0]) <= 'z';
}

// A name with a line, and perhaps a column, as compilers and searches print them; "+12" has no name.
struct Positioned {
    std::string_view name;
    std::int32_t line = kNoLine;  // for a text that ends in another way
    std::int32_t column = 0;
};

// Tools also put a colon after a position. One after the letter of a drive belongs to the name.
Positioned PositionIn(std::string_view text) {
    if (text.starts_with(':')) return {};
    if (text.ends_with(':')) text.remove_suffix(1);
    const std::optional<std::int32_t> last = TakeNumber(text);
    if (!last || IsDriveLetter(text)) return {};
    std::string_view name = text;
    const std::optional<std::int32_t> line = TakeNumber(name);
    return line && !IsDriveLetter(name) ? Positioned{name, *line, *last} : Positioned{text, *last};
}

class RequestReader {
  public:
    void take(const std::string& argument) {
        if (!takeFile(argument) && !takeToolForm(argument)) takeOther(argument);
    }

    std::optional<ToolRequest> result() {
        if (!hasToolForm_) return std::nullopt;
        if (!request_.files.empty()) putAtPosition(request_.files.back());
        for (FileAtLine& file : request_.files) {
            if (file.line == kNoLine) file.line = line_;
        }
        return std::move(request_);
    }

  private:
    void putAtPosition(FileAtLine& file) {
        if (position_.line == kNoLine) return;
        file.line = position_.line;
        file.column = position_.column;
        position_.line = kNoLine;
    }

    void add(const std::string& name) {
        request_.files.push_back({PathOf(name), kNoLine});
        putAtPosition(request_.files.back());
    }

    // By the rules for plain names, or with its directory.
    bool takeFile(const std::string& argument) {
        const bool isFile = !argument.empty() && (IsFile(OpenPathOf(argument)) || IsFile(PathOf(argument)));
        if (isFile) add(argument);
        return isFile;
    }

    bool takeToolForm(const std::string& argument) {
        const bool isWait = EqualIgnoringCase(argument, "-wait");
        const Positioned position = PositionIn(argument);
        const std::string name(position.name);
        if (!isWait && (position.line == kNoLine || isLineOption(argument, name))) return false;
        hasToolForm_ = true;
        request_.waits |= isWait;
        if (!isWait) position_ = position;
        if (!name.empty()) add(name);
        return true;
    }

    // Such an option may be a part of any argument, also of what looks like a name with a position.
    static bool isLineOption(const std::string& argument, const std::string& name) {
        return ParseLineOption(argument) != kNoLine && !IsFile(PathOf(name));
    }

    void takeOther(const std::string& argument) {
        const std::int32_t line = ParseLineOption(argument);
        if (line != kNoLine) {
            line_ = line;
        } else if (argument.find_first_of("*?") != std::string::npos) {
            const std::string pattern = platform::FullPath(argument);
            for (const FileAtLine& match : FilesOf({&pattern, 1}))
                add(match.file);
        } else if (!argument.empty()) {
            add(argument);
        }
    }

    ToolRequest request_;
    Positioned position_;  // of the next file
    std::int32_t line_ = 0;
    bool hasToolForm_ = false;
};

}  // namespace

std::optional<ToolRequest> ToolRequestOf(std::span<const std::string> arguments) {
    RequestReader reader;
    for (const std::string& argument : arguments)
        reader.take(argument);
    return reader.result();
}

}  // namespace vexa
