// The operating system as the editor needs it: a link-time contract with one implementation a platform
// (platform/win32 and platform/host), held to the same behaviour by one test suite.
//
// Paths are DOS paths in the ANSI code page: C:\DIR\NAME.EXT, "\" between parts, letter case kept but not told apart.
// The host maps each drive to a folder of a sandbox root, so that native tests run in a disk of their own.
// A full path holds at most 259 bytes; a longer one names nothing. No name here is a macro of the Windows headers.
// No function throws; failures are values, and what a failure leaves behind is said at each.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::platform {

// ---- files -------------------------------------------------------------------------------------------------------

enum class OpenMode {
    Read,          // the file must exist; others may read and write it meanwhile
    ReadWrite,     // the file must exist; opened at its start, nothing truncated, attributes kept; others may only read
    CreateAlways,  // made, or emptied if it exists; for writing; others may only read
    CreateNew,     // as CreateAlways, but fails if anything of that name exists
};

// An open file. What the operating system calls a handle, and -1 for none.
using FileHandle = std::intptr_t;
inline constexpr FileHandle kNoFile = -1;

// kNoFile on any failure (missing, locked, protected, a directory, a name that is no path); nothing is changed then.
FileHandle OpenFile(const std::string& path, OpenMode mode);
// Reads size bytes, fewer only at the end of the file; the count read, or none on an error.
std::optional<std::size_t> ReadFile(FileHandle file, char* data, std::size_t size);
// Writes all of data at the file's position; false if any byte was not taken (some may have been).
bool WriteFile(FileHandle file, std::string_view data);
// Moves the position to an offset in bytes from the start.
bool SeekFile(FileHandle file, std::uint64_t offset);
// Ends the file at its present position.
bool EndFileHere(FileHandle file);
// Hands everything written to the device.
bool FlushFile(FileHandle file);
std::optional<std::uint64_t> FileSize(FileHandle file);
// Closes in every case; false if the operating system reports that something written was lost.
bool CloseFile(FileHandle file);

// Tells whether a file has been written since.
struct FileStamp {
    std::uint64_t size = 0;
    std::uint64_t writeTime = 0;  // to be compared with others alone: later is more

    bool operator==(const FileStamp&) const = default;
};
// None for what is missing or no file. Does not open the file, which takes far longer on some systems.
std::optional<FileStamp> StampOf(const std::string& path);
// What the system knows of a file.
struct FileFacts {
    std::uint64_t volume = 0;  // with the index it tells the file from all others that exist at the time,
    std::uint64_t index = 0;   // whatever name it is reached by; 0 where the disk has no such numbers
    FileStamp stamp;
    bool isReadOnly = false;
};
// None for what is missing or no file; a file that another program holds has facts all the same.
std::optional<FileFacts> FactsOf(const std::string& path);
// Whether anything (a file or a directory) of that name exists.
bool PathExists(const std::string& path);
bool DirectoryExists(const std::string& path);
// Takes a file away, also a read-only or hidden one; its absence is success. False when something of that name still
// exists afterwards (a file in use, a directory).
bool RemoveFile(const std::string& path);
// Renames a file to a new name or over an existing file, in one step where the system can. A read-only file is not
// replaced. One that another program holds is waited for, a fifth of a second at most. False leaves both as they were.
bool RenameFile(const std::string& from, const std::string& to);
// Makes one directory; true also when it exists already.
bool MakeDirectory(const std::string& path);
// The names (without directory) of the normal files that match the wildcards in the pattern's last part: no
// directories, hidden or system files. "*.*" matches every name. Sorted by name, letter case ignored.
std::vector<std::string> FindFiles(const std::string& pattern);
// The names of the directories of a directory (named without "\" at the end, unless it is a root) that are not hidden,
// without "." and with ".." where there is one above. Sorted as the files are.
std::vector<std::string> FindDirectories(const std::string& directory);

// Tells a directory from all others, whatever name it is reached by.
struct DirectoryIdentity {
    std::uint64_t volume = 0;
    std::uint64_t index = 0;  // 0 where the disk has no such numbers

    auto operator<=>(const DirectoryIdentity&) const = default;
};
struct DirectoryContents {
    std::vector<std::string> files;
    std::vector<std::string> directories;  // without "." and ".."
};
// Reads the names of what a directory holds that is not hidden, in the order of the disk. A large directory takes a
// second and more, so it is read in parts. Links count as what they lead to.
class DirectoryReader {
  public:
    static constexpr int kPart = 250;  // entries, the hidden ones too
    enum class State { Reading, Ended, Failed };

    explicit DirectoryReader(const std::string& directory);
    ~DirectoryReader();
    DirectoryReader(const DirectoryReader&) = delete;
    DirectoryReader& operator=(const DirectoryReader&) = delete;

    const DirectoryIdentity& identity() const { return identity_; }
    // Adds the names of the next part. Failed for a directory that cannot be read.
    State read(DirectoryContents& contents);

  private:
    DirectoryIdentity identity_;
    [[maybe_unused]] std::string pattern_;  // the host needs none
    std::intptr_t search_ = 0;
};

// ---- places ------------------------------------------------------------------------------------------------------

// The path made full against the current directory, with "." and ".." parts resolved; empty when it is no path.
std::string FullPath(const std::string& path);
// FullPath with the parts that exist by their long names; the short ones of old programs ("PROGRA~1") are no others.
std::string LongPath(const std::string& path);
// Without a trailing "\" except for a drive's root.
std::string CurrentDirectory();
bool ChangeDirectory(const std::string& path);
// Changes to a drive (0 is A) and to the current directory it had.
bool ChangeDrive(int drive);
// The letters of the drives that there are, in capitals, in their order.
std::string DriveLetters();
// The full path of the executable.
std::string ProgramPath();
// The value of an environment variable; empty when there is none of that name.
std::string EnvironmentValue(const std::string& name);
// Sets a variable for this program and those that it starts from now on; an empty value takes it away.
void SetEnvironmentValue(const std::string& name, const std::string& value);
// The path in its short form, every part of at most 8 and 3 characters; empty when nothing of that name exists. Disks
// that keep no short names give the path as it is.
std::string ShortPath(const std::string& path);

// ---- settings files (INI) ----------------------------------------------------------------------------------------

struct Setting {
    std::string section;
    std::string key;
    std::string value;  // one line
};

// The value of a key, without the blanks around it and without one pair of enclosing quotes, at most size - 1 bytes;
// the fallback when the file, section or key is missing. None when the file is there and cannot be read.
std::optional<std::string> ReadSetting(const std::string& file, const std::string& section, const std::string& key,
                                       const std::string& fallback, std::size_t size);
// The value's leading decimal number, with or without a sign (0 for other text); the fallback when the key is missing
// or empty. None when the file is there and cannot be read.
std::optional<std::int32_t> ReadIntSetting(const std::string& file, const std::string& section, const std::string& key,
                                           std::int32_t fallback);
// Stores values, adding file, sections and keys as needed, other lines untouched. False for a read-only file or a
// missing directory, which stay as they were. The file is replaced in one step: at any moment it has all or none.
bool WriteSettings(const std::string& file, std::span<const Setting> settings);

// ---- other instances of the program ------------------------------------------------------------------------------

// A marker is a name that every running program sees. It stays until it has been deleted, also when the program that
// added it is no more.
bool AddGlobalMarker(const std::string& name);
bool GlobalMarkerExists(const std::string& name);
// Several programs may each have added it: deletes it until it is gone, at most six times.
void DeleteGlobalMarker(const std::string& name);

// The number of the window message of that name, the same in every program; 0 when the system has none to give.
std::uint32_t RegisterBroadcast(const std::string& name);
// Posts the message, without parameters, to the top-level windows of all programs; does not wait for them.
bool PostBroadcast(std::uint32_t message);

// Something that one running program at a time does, by its name. The turn of a program that ends, also by force, is
// free again.
class SystemTurn {
  public:
    // Waits for the turn while another program has it, at most that many milliseconds.
    SystemTurn(const std::string& name, std::uint32_t patience);
    ~SystemTurn();
    SystemTurn(const SystemTurn&) = delete;
    SystemTurn& operator=(const SystemTurn&) = delete;
    bool isMine() const { return isMine_; }

  private:
    [[maybe_unused]] std::string name_;  // each platform uses one of the two
    [[maybe_unused]] std::intptr_t mutex_ = 0;
    bool isMine_ = false;
};

// A number that all running programs share which have one of that name; 0 at first. Without room for it in the system
// it stays 0.
class SharedNumber {
  public:
    explicit SharedNumber(const std::string& name);
    ~SharedNumber();
    SharedNumber(const SharedNumber&) = delete;
    SharedNumber& operator=(const SharedNumber&) = delete;
    std::uint32_t get() const;
    void set(std::uint32_t value);

  private:
    [[maybe_unused]] std::intptr_t mapping_ = 0;  // the host needs none
    std::uint32_t* number_ = nullptr;
};

// The full path of a file that a command line names, in the ANSI code page; no file is opened. Empty when the text is
// no path, or one of more than 127 bytes.
std::string ParseFileName(const std::string& text);

// ---- other programs ----------------------------------------------------------------------------------------------

// A program that was started. What the operating system calls a handle, and 0 for none.
using ProcessHandle = std::intptr_t;
inline constexpr ProcessHandle kNoProcess = 0;

enum class StartResult { Started, FileNotFound, PathNotFound, DirectoryNotFound, Failed };

struct StartedProcess {
    ProcessHandle process = kNoProcess;
    StartResult result = StartResult::Failed;
};

// Starts the program that a command line names first, in the current directory, with this program's environment and a
// console window of its own. The show mode is Windows' number: 0 hidden, 1 normal, 2 minimised, 3 maximised, 7
// minimised and not active. Does not wait. No handle of this program is inherited.
// A program of the host's disk is a shell script: its one argument is the rest of the command line, and VEXA_DISK names
// the sandbox root.
StartedProcess StartProcess(const std::string& commandLine, const std::string& title, std::uint16_t showMode);
// The exit code of a program that has ended, whatever number it is; none while it runs, or when it cannot be asked.
std::optional<std::uint32_t> ExitCodeOf(ProcessHandle process);
// Lets go of the handle. The program runs on.
void CloseProcess(ProcessHandle process);

// ---- characters --------------------------------------------------------------------------------------------------

// A character, given by its Unicode number, in the ANSI code page, which takes several bytes for one in some countries;
// empty when it lacks it. The host's code page holds the first 256.
std::string AnsiCharacter(char32_t character);

// ---- threads -----------------------------------------------------------------------------------------------------

// Something that is done again and again while the program goes on, in a thread of the system. The thread is started
// when it is first needed, and waits in between. While there can be none, begin() does the work before it returns.
class BackgroundWork {
  public:
    using Function = void (*)(void* context) noexcept;

    BackgroundWork(Function function, void* context);
    // Waits for the end of what was begun.
    ~BackgroundWork();
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;
    // Not while it is running.
    void begin();
    // Does not ask the system, which may be busy with the work.
    bool isRunning();

  private:
    struct Thread;
    void run();

    const Function function_;
    void* const context_;
    std::atomic<bool> isRunning_ = false;
    std::unique_ptr<Thread> thread_;  // none while there can be none
};

// ---- the rest ----------------------------------------------------------------------------------------------------

// Seconds since the beginning of 1970, as the system's clock has it; it may be set back.
std::int64_t CurrentSeconds();
// Milliseconds on a clock that is never set, the one of the system's window messages; begins again at 0 after 49 days.
std::uint32_t Ticks();
void Pause(std::uint32_t milliseconds);
// A line for whoever debugs the program; never seen by its user.
void DebugOutput(std::string_view text);

}  // namespace vexa::platform
