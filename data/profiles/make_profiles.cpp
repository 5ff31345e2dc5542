// Makes the profile files of the distribution: make_profiles FOLDER TEXT... writes a "Vexa%s.PRF" to the folder for
// every extension that the texts name.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "language/profile_file.h"
#include "profile_source.h"

namespace {

bool Fail(const std::string& what) {
    std::fprintf(stderr, "make_profiles: %s\n", what.c_str());
    return false;
}

bool MakeFiles(const std::string& folder, const std::string& name, std::set<std::string>& made) {
    std::ifstream file(name, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    std::string error;
    auto source = vexa::ParseProfileSource(text, error);
    if (!source) return Fail(name + ": " + error);
    for (const std::string& extension : source->extensions) {
        if (!made.insert(extension).second) return Fail(name + ": " + extension + " has a profile already");
        source->profile.setExtension(extension);
        std::ofstream out(folder + "/Vexa" + extension + ".PRF", std::ios::binary);
        out << vexa::EncodeProfile(source->profile) << std::flush;
        if (!out) return Fail("cannot write the profile of " + extension);
    }
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 3) return Fail("usage: make_profiles FOLDER TEXT..."), 2;
    std::set<std::string> made;
    bool good = true;
    for (int i = 2; i < count; ++i)
        good = MakeFiles(arguments[1], arguments[i], made) && good;
    return good ? 0 : 1;
}
