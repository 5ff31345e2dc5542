// Every operation of the program that writes a file: a new one joins by a row.
#pragma once

#include <vector>

#include "faults/fault_scene.h"

namespace vexa::test {

const std::vector<WritingOperation>& WritingOperations();

}  // namespace vexa::test
