// What the tests that use the editor at random have in common.
#pragma once

#include <random>
#include <string>

#include "ui/test_folder.h"

namespace vexa::test {

// A number that whoever starts the tests may give.
unsigned FromEnvironment(const char* name, unsigned otherwise);

// Three documents of some length, a tool, a compiler and the help.
void PutSoakFiles(const TestFolder& folder);
// What each of the documents holds.
std::string SoakText();

// A key or a few that open no dialog and close nothing.
const char* AnyKeys(std::mt19937& random);

}  // namespace vexa::test
