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

// Read-only files can only be removed when they are no longer so, and programs when they have ended.
void RemoveAll(const fs::path& folder) {
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        SetFileAttributesA(entry.path().string().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    WaitUntil([&folder] {
        std::error_code failure;
        fs::remove_all(folder, failure);
        return !failure;
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
