// The printer's address through the built DLL, with the system's own spooler, registry and code page: queues
// and ports are put into the registry, where the spooler finds them, and a port monitor is installed.
#include "product.h"
#include "support/print_queue.h"

#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr DWORD kUntouched = 0xABABABAB;
constexpr wchar_t kQueue[] = L"Lumora address test";

// Octets that end where the memory ends.
struct AtTheEnd {
    explicit AtTheEnd(size_t count)
        : pages(static_cast<BYTE*>(VirtualAlloc(nullptr, 2 * kPage, MEM_RESERVE, PAGE_NOACCESS))),
          begin(pages + kPage - count) {
        VirtualAlloc(pages, kPage, MEM_COMMIT, PAGE_READWRITE);
    }
    ~AtTheEnd() { VirtualFree(pages, 0, MEM_RELEASE); }
    AtTheEnd(const AtTheEnd&) = delete;
    AtTheEnd& operator=(const AtTheEnd&) = delete;

    static constexpr size_t kPage = 4096;
    BYTE* const pages;
    BYTE* const begin;
};

struct PrinterAddress : testing::Test {
    // The address; "-" when the call fails, "?" when it leaves the buffer as it was. Asks the queue without a
    // record's address. The record and the buffer end where the memory ends.
    std::string Ask(const wchar_t* record, DWORD bufferSize) {
        const std::wstring address = record != nullptr ? std::wstring(record) + L'\0' : L"";
        const AtTheEnd settings(564 + address.size() * sizeof(wchar_t));
        const AtTheEnd buffer(bufferSize);
        settings.begin[562] = record != nullptr ? 1 : 0;
        memcpy(settings.begin + 564, address.data(), address.size() * sizeof(wchar_t));
        memset(buffer.begin, '#', bufferSize);
        needed = kUntouched;
        SetLastError(0);
        const BOOL result =
            get(kQueue, settings.begin, bufferSize != 0 ? buffer.begin : nullptr, bufferSize, &needed);
        lastError = GetLastError();
        if (!result)
            return "-";
        const std::string stored(buffer.begin, buffer.begin + bufferSize);
        return stored.find_first_not_of('#') == std::string::npos ? "?" : stored.c_str();
    }

    LoadedModule module;
    BOOL WINAPI (*get)(const wchar_t*, const void*, void*, DWORD, DWORD*) =
        module.Export<BOOL WINAPI(const wchar_t*, const void*, void*, DWORD, DWORD*)>(
            "DDProc_GetPrinterIPAddress");
    DWORD needed = 0;
    DWORD lastError = 0;
};

TEST_F(PrinterAddress, FromTheRecord) {
    EXPECT_EQ(Ask(L"192.168.10.2", 13), "192.168.10.2");
    EXPECT_EQ(needed, kUntouched);
    EXPECT_EQ(Ask(L"192.168.10.2", 12), "-");
    EXPECT_EQ(needed, 13u);
    EXPECT_EQ(Ask(L"192.168.10.2", 0), "-");
    EXPECT_EQ(needed, 13u);
    EXPECT_EQ(Ask(L"", 13), "-");
    EXPECT_EQ(needed, kUntouched);
    EXPECT_EQ(get(kQueue, nullptr, nullptr, 0, nullptr), FALSE);
}

TEST_F(PrinterAddress, FromThePortMonitorsTransceiver) {
    const Queue queue(kQueue, L"IP_10.1.2.3");
    Monitor monitor(L"Tarn Port", L"IP_10.1.2.3", L"IPAddress", L"10.9.9.9");
    monitor.Text(L"Driver", (ProductFolder() / L"abi_port_monitor.dll").wstring());
    EXPECT_EQ(Ask(nullptr, 9), "10.1.2.3");
    EXPECT_EQ(needed, 9u);
    EXPECT_EQ(Ask(nullptr, 8), "?");
    EXPECT_EQ(needed, 9u);
    EXPECT_EQ(Ask(nullptr, 0), "?");
    EXPECT_EQ(needed, 9u);
    EXPECT_EQ(lastError, 122u);
    EXPECT_EQ(Ask(L"10.1.1.1", 9), "10.1.1.1") << "the record comes first";
}

TEST_F(PrinterAddress, FromTheRegistryWhenTheTransceiverRefuses) {
    const Queue queue(kQueue, L"LUMORA_1");
    Monitor monitor(L"Tarn Port", L"LUMORA_1", L"IPAddress", L"10.9.9.9");
    monitor.Text(L"Driver", (ProductFolder() / L"abi_port_monitor.dll").wstring());
    EXPECT_EQ(Ask(nullptr, 9), "10.9.9.9");
    EXPECT_EQ(needed, 9u);
}

TEST_F(PrinterAddress, FromTheRegistryInTheMonitorsOrder) {
    const Queue queue(kQueue, L"LUMORA_1");
    const Monitor lpr(L"LPR Port", L"LUMORA_1", L"Server Name", L"10.4.4.4");
    EXPECT_EQ(Ask(nullptr, 9), "10.4.4.4");
    EXPECT_EQ(Ask(nullptr, 8), "?");
    EXPECT_EQ(Ask(nullptr, 0), "?");
    EXPECT_EQ(needed, 9u);
    EXPECT_EQ(lastError, 122u);
    const Monitor vesper(L"Vesper Port", L"LUMORA_1", L"IPAddress", L"10.3.3.3");
    EXPECT_EQ(Ask(nullptr, 9), "10.3.3.3");

    Monitor tarn(L"Tarn Port", L"LUMORA_1", L"IPAddress", L"10.2.2.2");
    EXPECT_EQ(Ask(nullptr, 9), "10.2.2.2");
    const std::vector<wchar_t> characters(257, L'x');
    const auto store = [&](DWORD size) {
        tarn.Set(L"IPAddress", REG_SZ, characters.data(), size, L"\\Ports\\LUMORA_1");
    };
    store(512); // without a terminator
    EXPECT_EQ(Ask(nullptr, 257), std::string(256, 'x'));
    store(514);
    EXPECT_EQ(Ask(nullptr, 257), "10.3.3.3") << "what is longer is not read";
    store(0);
    EXPECT_EQ(Ask(nullptr, 257), "");
    EXPECT_EQ(needed, 1u);
}

TEST_F(PrinterAddress, QueuesWithoutAnAnswer) {
    EXPECT_EQ(Ask(nullptr, 9), "-");
    EXPECT_EQ(lastError, static_cast<DWORD>(ERROR_INVALID_PRINTER_NAME));
    {
        const Queue queue(kQueue, L"LUMORA_1");
        EXPECT_EQ(Ask(nullptr, 9), "-");
    }
    const Queue queue(kQueue, L"");
    EXPECT_EQ(Ask(nullptr, 9), "-");
    EXPECT_EQ(needed, kUntouched);
}

TEST_F(PrinterAddress, LeavesNoBlockAndNoHandle) {
    const Queue queue(kQueue, L"LUMORA_1");
    const Monitor lpr(L"LPR Port", L"LUMORA_1", L"Server Name", L"10.4.4.4");
    const auto heldAfter = [&](int calls) {
        for (; calls > 0; --calls)
            EXPECT_EQ(Ask(nullptr, 9), "10.4.4.4");
        return CountHoldings();
    };
    const Holdings before = heldAfter(3);
    const Holdings after = heldAfter(100);
    EXPECT_EQ(after.heapBlocks, before.heapBlocks);
    EXPECT_EQ(after.handles, before.handles);
}

} // namespace
