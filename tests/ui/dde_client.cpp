#include "ui/dde_client.h"

#include <windows.h>

#include <ddeml.h>

#include "ui/wait.h"

namespace vexa::test {
namespace {

HDDEDATA CALLBACK IgnoreAll(UINT, UINT, HCONV, HSZ, HSZ, HDDEDATA, ULONG_PTR, ULONG_PTR) {
    return nullptr;
}

class Conversation {
  public:
    explicit Conversation(const std::string& topic, bool byName = true) {
        DdeInitializeA(&instance_, &IgnoreAll, APPCMD_CLIENTONLY, 0);
        service_ = DdeCreateStringHandleA(instance_, "Vexa Editor", CP_WINANSI);
        topic_ = DdeCreateStringHandleA(instance_, topic.c_str(), CP_WINANSI);
        conversation_ = DdeConnect(instance_, byName ? service_ : nullptr, topic_, nullptr);
    }
    ~Conversation() {
        if (conversation_) DdeDisconnect(conversation_);
        DdeFreeStringHandle(instance_, topic_);
        DdeFreeStringHandle(instance_, service_);
        DdeUninitialize(instance_);
    }
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;

    bool isOpen() const { return conversation_ != nullptr; }
    bool execute(std::string command) const {
        DWORD result = 0;
        return DdeClientTransaction(reinterpret_cast<BYTE*>(command.data()), static_cast<DWORD>(command.size() + 1),
                                    conversation_, nullptr, 0, XTYP_EXECUTE, kPatience, &result) != nullptr;
    }

  private:
    DWORD instance_ = 0;
    HSZ service_ = nullptr;
    HSZ topic_ = nullptr;
    HCONV conversation_ = nullptr;
};

}  // namespace

bool ExecuteByDde(const std::string& command) {
    const Conversation conversation("system");
    return conversation.isOpen() && conversation.execute(command);
}

bool ConnectsByDde(const std::string& topic, bool byName) {
    return Conversation(topic, byName).isOpen();
}

}  // namespace vexa::test
