#include "ui/test_folder.h"

#include <windows.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "ui/wait.h"

namespace vexa::test {
namespace {

namespace fs = std::filesystem;

// The folder's number among those of this process.
int NextNumber() {
    static int number = 0;
    return ++number;
}

// Given by the environment, or beside this program.
fs::path ProgramUnderTest() {
    if (const char* given = std::getenv("VEXA_PROGRAM")) return given;
    char self[MAX_PATH];
    GetModuleFileNameA(nullptr, self, sizeof self);
    return fs::path(self).replace_filename("vexa.exe");
}

// Read-only files can only be removed when they are no longer so. Programs that are about to end may remove files of
// theirs meanwhile, which the functions of the standard library do not bear.
void RemoveWhatCanBe(const std::string& folder) {
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA((folder + "\\*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        const std::string name = found.cFileName;
        const std::string path = folder + "\\" + name;
        if (name == "." || name == "..") continue;
        SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
            RemoveWhatCanBe(path);
        else
            DeleteFileA(path.c_str());
    } while (FindNextFileA(search, &found));
    FindClose(search);
    RemoveDirectoryA(folder.c_str());
}

// Programs can only be removed when they have ended.
void RemoveAll(const std::string& folder) {
    WaitUntil([&folder] {
        RemoveWhatCanBe(folder);
        return GetFileAttributesA(folder.c_str()) == INVALID_FILE_ATTRIBUTES;
    });
}

}  // namespace

TestFolder::TestFolder() {
    char temporary[MAX_PATH];
    GetTempPathA(sizeof temporary, temporary);
    path_ = std::string(temporary) + "vexa-ui-" + std::to_string(GetCurrentProcessId()) + "-" +
            std::to_string(NextNumber());
    if (fs::exists(path_)) RemoveAll(path_);  // what a run of that number has left behind that was killed
    fs::create_directories(path_);
    fs::copy_file(ProgramUnderTest(), program());
    putFromProgramFolder("VexaDOS.PIF");
}

TestFolder::~TestFolder() {
    RemoveAll(path_);
}

std::string TestFolder::path(const std::string& name) const {
    if (name.find(':') != std::string::npos) return name;
    return name.empty() ? path_ : path_ + "\\" + name;
}

void TestFolder::putTestProgram() const {
    char self[MAX_PATH];
    GetModuleFileNameA(nullptr, self, sizeof self);
    fs::copy_file(fs::path(self).replace_filename("test_program.exe"), path("test_program.exe"));
}

void TestFolder::putFromProgramFolder(const std::string& name) const {
    fs::copy_file(ProgramUnderTest().replace_filename(name), path(name));
}

void TestFolder::put(const std::string& name, const std::string& bytes) const {
    std::ofstream(path(name), std::ios::binary) << bytes;
}

std::string TestFolder::get(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool TestFolder::has(const std::string& name) const {
    return fs::exists(path(name));
}

void TestFolder::setReadOnly(const std::string& name) const {
    SetFileAttributesA(path(name).c_str(), FILE_ATTRIBUTE_READONLY);
}

void TestFolder::makeDirectory(const std::string& name) const {
    fs::create_directory(path(name));
}

}  // namespace vexa::test
