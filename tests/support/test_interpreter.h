// The command interpreter file of a test's program directory: on Windows the one that is shipped, on the host a script
// that carries a command of the same form out. Commands that both understand are "echo", "exit" and redirections.
#pragma once

#include <functional>

#include "support/test_disk.h"

namespace vexa::test {

void PutInterpreter(const TestDisk& disk);

// Waits until a program has ended or is not asked any more; false after a long time.
bool WaitFor(const std::function<bool()>& condition);

}  // namespace vexa::test
