// What the walls around windows, dialogs and files catch when the C++ library fails.
#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <new>
#include <string>
#include <vector>

namespace {

TEST(LibraryFailures, WhatCannotBeHeldIsShortOfMemory) {
    // Volatile, so that the compiler does not see and refuse it.
    volatile std::size_t most = std::size_t{0} - 1;
    std::vector<int> numbers;
    std::string text;
    EXPECT_THROW(numbers.reserve(most), std::bad_alloc);
    EXPECT_THROW(text.reserve(most), std::bad_alloc);
}

TEST(LibraryFailures, AnyOtherIsAnExceptionWithoutAText) {
    const std::string text = "abc";
    EXPECT_THROW(static_cast<void>(text.at(3)), std::exception);
    EXPECT_THROW(static_cast<void>(text.substr(4)), std::exception);
    EXPECT_THROW(static_cast<void>(std::vector<int>().at(0)), std::exception);
    EXPECT_THROW(std::function<void()>()(), std::exception);
}

}  // namespace
