#include "framework/dde_server.h"

#include <utility>

namespace vexa {

DdeServer* DdeServer::server_ = nullptr;

DdeServer::DdeServer(const std::string& service, const std::string& topic, Execute execute)
    : execute_(std::move(execute)) {
    constexpr DWORD kOnlyCommands = APPCLASS_STANDARD | CBF_FAIL_ADVISES | CBF_FAIL_POKES | CBF_FAIL_REQUESTS |
                                    CBF_SKIP_REGISTRATIONS | CBF_SKIP_UNREGISTRATIONS;
    if (DdeInitializeA(&instance_, &DdeServer::Callback, kOnlyCommands, 0) != DMLERR_NO_ERROR) return;
    server_ = this;
    service_ = DdeCreateStringHandleA(instance_, service.c_str(), CP_WINANSI);
    topic_ = DdeCreateStringHandleA(instance_, topic.c_str(), CP_WINANSI);
    DdeNameService(instance_, service_, nullptr, DNS_REGISTER);
}

DdeServer::~DdeServer() {
    if (server_ != this) return;
    DdeNameService(instance_, service_, nullptr, DNS_UNREGISTER);
    DdeFreeStringHandle(instance_, topic_);
    DdeFreeStringHandle(instance_, service_);
    DdeUninitialize(instance_);
    server_ = nullptr;
}

bool DdeServer::serves(HSZ topic, HSZ service) const {
    return DdeCmpStringHandles(topic, topic_) == 0 && DdeCmpStringHandles(service, service_) == 0;
}

HDDEDATA DdeServer::offer(HSZ topic, HSZ service) const {
    if (!serves(topic ? topic : topic_, service ? service : service_)) return nullptr;
    HSZPAIR pairs[] = {{service_, topic_}, {nullptr, nullptr}};
    return DdeCreateDataHandle(instance_, reinterpret_cast<BYTE*>(pairs), sizeof(pairs), 0, nullptr, CF_TEXT, 0);
}

bool DdeServer::execute(HDDEDATA data) const {
    const DWORD size = DdeGetData(data, nullptr, 0, 0);
    std::string command(size, '\0');
    DdeGetData(data, reinterpret_cast<BYTE*>(command.data()), size, 0);
    command.resize(command.find('\0') == std::string::npos ? size : command.find('\0'));
    return execute_(command);
}

HDDEDATA CALLBACK DdeServer::Callback(UINT type, UINT, HCONV, HSZ string1, HSZ string2, HDDEDATA data, ULONG_PTR,
                                      ULONG_PTR) noexcept {
    const auto answer = [](ULONG_PTR value) { return reinterpret_cast<HDDEDATA>(value); };
    if (!server_) return nullptr;
    try {
        if (type == XTYP_CONNECT) return answer(server_->serves(string1, string2));
        if (type == XTYP_WILDCONNECT) return server_->offer(string1, string2);
        if (type == XTYP_EXECUTE) return answer(server_->execute(data) ? DDE_FACK : DDE_FNOTPROCESSED);
    } catch (...) {
        OutputDebugStringA("A DDE command failed.");
    }
    return nullptr;
}

}  // namespace vexa
