// Waiting for something that another program is about to do.
#pragma once

#include <functional>

namespace vexa::test {

// How long something that does not happen is waited for, in milliseconds.
inline constexpr unsigned kPatience = 40000;

// Looks again and again until the condition holds; false when it never does.
bool WaitUntil(const std::function<bool()>& condition);

}  // namespace vexa::test
