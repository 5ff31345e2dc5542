// Receives commands from other programs over dynamic data exchange (DDE).
#pragma once

#include <windows.h>

#include <ddeml.h>

#include <functional>
#include <string>

namespace vexa {

// Serves one topic of one service while it lives. The DDE management library knows no objects, so there is one server
// in a process.
class DdeServer {
  public:
    // Takes a command; false for one that it does not know, which is then refused. It is called while the other program
    // waits, in the middle of the library's work: it must show no box and let no messages run.
    using Execute = std::function<bool(const std::string& command)>;

    // Without the library's help (none is installed, or it is exhausted) nothing is served.
    DdeServer(const std::string& service, const std::string& topic, Execute execute);
    ~DdeServer();
    DdeServer(const DdeServer&) = delete;
    DdeServer& operator=(const DdeServer&) = delete;

  private:
    static HDDEDATA CALLBACK Callback(UINT type, UINT format, HCONV conversation, HSZ string1, HSZ string2,
                                      HDDEDATA data, ULONG_PTR data1, ULONG_PTR data2) noexcept;
    bool serves(HSZ topic, HSZ service) const;
    // The answer to a client that leaves the service or the topic open.
    HDDEDATA offer(HSZ topic, HSZ service) const;
    bool execute(HDDEDATA data) const;

    static DdeServer* server_;
    DWORD instance_ = 0;
    HSZ service_ = nullptr;
    HSZ topic_ = nullptr;
    Execute execute_;
};

}  // namespace vexa
