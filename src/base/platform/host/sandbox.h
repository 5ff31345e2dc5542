// The host's disks: drive C: is the folder "c" of a sandbox root, and so on. Native tests and benchmarks set the root;
// until then no path names anything.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vexa::platform::host {

// The present places of the program.
struct Places {
    std::string root;  // a folder of the host, without "/" at the end
    std::string programPath = "C:\\VEXA.EXE";
    int drive = 2;                            // 0 is A
    std::array<std::string, 26> directories;  // of each drive, as "\DIR\SUB"; empty for its root
    std::vector<std::string> markers;         // global markers, one entry an adding
    std::vector<std::string> messages;        // registered names of broadcasts
    std::vector<std::string> broadcasts;      // the names of what has been posted
    bool refusesBroadcasts = false;
};

Places& ThePlaces();

// Starts over with the drives of this folder: drive C: current, at its root.
void SetSandboxRoot(const std::string& folder);
void SetProgramPath(const std::string& path);

// The host's name of a DOS path, parts that exist spelled as they are on the disk; empty for what names no file (a name
// with characters that Windows refuses, a device, a drive that does not exist).
std::string HostPath(const std::string& path);

}  // namespace vexa::platform::host
