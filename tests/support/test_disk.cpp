#include "support/test_disk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

namespace vexa::test {

namespace fs = std::filesystem;

std::string TestDisk::path(std::string_view name) const {
    return name.empty() ? dosPath_ : dosPath_ + "\\" + std::string(name);
}

fs::path TestDisk::real(std::string_view name) const {
    std::string relative(name);
    std::ranges::replace(relative, '\\', '/');
    return folder_ / relative;
}

void TestDisk::put(std::string_view name, std::string_view bytes) const {
    std::ofstream file(real(name), std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(file.flush().good()) << "cannot put " << name;
}

std::string TestDisk::get(std::string_view name) const {
    std::ifstream file(real(name), std::ios::binary);
    EXPECT_TRUE(file.is_open()) << "no file " << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

bool TestDisk::has(std::string_view name) const {
    return fs::exists(real(name));
}

void TestDisk::link(std::string_view name, std::string_view second) const {
    fs::create_hard_link(real(name), real(second));
}

void TestDisk::makeDirectory(std::string_view name) const {
    fs::create_directories(real(name));
}

void TestDisk::remove(std::string_view name) const {
    EXPECT_GT(fs::remove_all(real(name)), 0u) << "no file " << name;
}

std::size_t TestDisk::count(std::string_view directory) const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(real(directory)), fs::directory_iterator()));
}

}  // namespace vexa::test
