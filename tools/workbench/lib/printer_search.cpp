// Sends the requests of a search and collects the replies by device.
#include "workbench/lib/printer_search.h"

#include "workbench/lib/text.h"

#include <winsock2.h>

#include <ws2tcpip.h> // after winsock2.h

namespace {

// What devices are asked; the request-id tells the answers apart. Everything is asked of device 1, which is
// the printer in a printer.
enum SearchQuestion : size_t { kModel, kName, kTray };
constexpr const char* kSearchObjects[] = {
    ".1.3.6.1.2.1.25.3.2.1.3.1", // hrDeviceDescr
    ".1.3.6.1.2.1.1.5.0",        // sysName
    kPrinterObject,
};
constexpr uint32_t kFirstRequestId = 0x1000;

// The broadcast address of each network that this computer is in.
std::vector<uint32_t> BroadcastAddresses(SOCKET handle) {
    INTERFACE_INFO networks[32] = {};
    DWORD bytes = 0;
    std::vector<uint32_t> addresses;
    if (WSAIoctl(handle, SIO_GET_INTERFACE_LIST, nullptr, 0, networks, sizeof(networks), &bytes, nullptr,
                 nullptr)
        != 0)
        return addresses;
    for (size_t i = 0; i < bytes / sizeof(*networks); ++i) {
        constexpr u_long kNeeded = IFF_UP | IFF_BROADCAST;
        if ((networks[i].iiFlags & (kNeeded | IFF_LOOPBACK)) == kNeeded)
            addresses.push_back(networks[i].iiAddress.AddressIn.sin_addr.s_addr
                                | ~networks[i].iiNetmask.AddressIn.sin_addr.s_addr);
    }
    return addresses;
}

// Those in the environment; none when it has none.
std::vector<uint32_t> GivenAddresses() {
    wchar_t list[1024] = L"";
    GetEnvironmentVariableW(L"LUMORA_SEARCH", list, std::size(list));
    std::string rest = Trimmed(Utf8(list));
    std::vector<uint32_t> addresses;
    while (!rest.empty()) {
        const std::string first = rest.substr(0, rest.find(' '));
        addresses.push_back(inet_addr(first.c_str()));
        rest = Trimmed(rest.substr(first.size()));
    }
    return addresses;
}

} // namespace

PrinterSearch::PrinterSearch(HWND window, UINT message) : handle(socket(AF_INET, SOCK_DGRAM, 0)) {
    const BOOL isAllowed = TRUE;
    setsockopt(handle, SOL_SOCKET, SO_BROADCAST, reinterpret_cast<const char*>(&isAllowed),
               sizeof(isAllowed));
    WSAAsyncSelect(handle, window, message, FD_READ);
    std::vector<uint32_t> targets = GivenAddresses();
    if (targets.empty())
        targets = BroadcastAddresses(handle);
    for (const uint32_t target : targets)
        isSent = Send(target, kModel) || isSent;
}

PrinterSearch::~PrinterSearch() {
    closesocket(handle);
}

bool PrinterSearch::Send(uint32_t address, size_t question) const {
    sockaddr_in to = {};
    to.sin_family = AF_INET;
    to.sin_port = htons(kSnmpPort);
    to.sin_addr.s_addr = address;
    const std::string request =
        SnmpRequest(kSearchObjects[question], kFirstRequestId + static_cast<uint32_t>(question));
    return sendto(handle, request.data(), static_cast<int>(request.size()), 0,
                  reinterpret_cast<const sockaddr*>(&to), sizeof(to))
           > 0;
}

std::vector<FoundPrinter> PrinterSearch::Receive() {
    char datagram[4096];
    sockaddr_in from = {};
    int fromSize = sizeof(from);
    int size;
    while ((size = recvfrom(handle, datagram, sizeof(datagram), 0, reinterpret_cast<sockaddr*>(&from),
                            &fromSize))
           > 0) {
        const std::optional<SnmpReplyText> reply = ReadSnmpReply({datagram, static_cast<size_t>(size)});
        if (reply)
            TakeReply(from.sin_addr.s_addr, *reply);
    }
    std::vector<FoundPrinter> found;
    for (Device& device : devices)
        if (device.hasName && device.isPrinter && !device.isReturned) {
            device.isReturned = true;
            found.push_back(device.printer);
        }
    return found;
}

// Of any device that has answered; a new one is asked the other questions.
PrinterSearch::Device& PrinterSearch::DeviceAt(uint32_t address) {
    for (Device& device : devices)
        if (device.address == address)
            return device;
    in_addr shown = {};
    shown.s_addr = address;
    devices.push_back({address, {inet_ntoa(shown), {}, {}}, false, false, false});
    Send(address, kName);
    Send(address, kTray);
    return devices.back();
}

void PrinterSearch::TakeReply(uint32_t address, const SnmpReplyText& reply) {
    Device& device = DeviceAt(address);
    switch (reply.requestId - kFirstRequestId) {
    case kModel:
        device.printer.model = reply.text;
        break;
    case kName:
        device.printer.name = reply.text;
        device.hasName = true;
        break;
    case kTray:
        device.isPrinter = reply.errorStatus == 0;
        break;
    default: // not an answer to this search
        break;
    }
}
