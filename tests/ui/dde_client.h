// Another program that talks to the editor by dynamic data exchange.
#pragma once

#include <string>

namespace vexa::test {

// Has the editor carry a command out; false when it refuses, or does not answer.
bool ExecuteByDde(const std::string& command);
// Whether the editor talks about a topic at all, asked for by its name or as any program that knows the topic.
bool ConnectsByDde(const std::string& topic, bool byName = true);

}  // namespace vexa::test
