// Makes the profile files of the distribution: make_profiles FOLDER TEXT... writes a "Vexa%s.PRF" to the folder for
// every extension that the texts name, and where "NAME.quo" stands beside a text, that as its "Vexa%s.QUO".
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <string_view>

#include "language/profile_file.h"
#include "profile_source.h"

namespace {

bool Fail(const std::string& what) {
    std::fprintf(stderr, "make_profiles: %s\n", what.c_str());
    return false;
}

bool WriteFile(const std::string& name, std::string_view contents) {
    std::ofstream out(name, std::ios::binary);
    out << contents << std::flush;
    return out.good() || Fail("cannot write " + name);
}

std::string ReadFile(const std::string& name) {
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

bool MakeFiles(const std::string& folder, const std::string& name, std::set<std::string>& made) {
    std::string error;
    auto source = vexa::ParseProfileSource(ReadFile(name), error);
    if (!source) return Fail(name + ": " + error);
    const std::string quotes = ReadFile(std::filesystem::path(name).replace_extension(".quo").string());
    for (const std::string& extension : source->extensions) {
        if (!made.insert(extension).second) return Fail(name + ": " + extension + " has a profile already");
        source->profile.setExtension(extension);
        const std::string path = folder + "/Vexa" + extension;
        if (!WriteFile(path + ".PRF", vexa::EncodeProfile(source->profile))) return false;
        if (!quotes.empty() && !WriteFile(path + ".QUO", quotes)) return false;
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
