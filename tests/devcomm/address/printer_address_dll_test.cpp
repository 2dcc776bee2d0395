// The printer's address through the built DLL, with the system's own spooler, registry and code page: queues
// and ports are put into the registry, where the spooler finds them, and a port monitor is installed.
#include "product.h"
#include "support/print_queue.h"
#include "support/wine.h"

#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr wchar_t kQueue[] = L"Lumora address test";

struct PrinterAddress : testing::Test {
    // The address; "-" when the call fails, "?" when it leaves the buffer as it was. Asks the queue without a
    // record's address.
    std::string Ask(const wchar_t* record, DWORD bufferSize) {
        const std::wstring address = record != nullptr ? std::wstring(record) + L'\0' : L"";
        std::vector<BYTE> settings(564 + address.size() * sizeof(wchar_t));
        settings[562] = record != nullptr ? 1 : 0;
        memcpy(settings.data() + 564, address.data(), address.size() * sizeof(wchar_t));
        std::string buffer(bufferSize, '#');
        SetLastError(0);
        const BOOL result =
            get(kQueue, settings.data(), bufferSize != 0 ? buffer.data() : nullptr, bufferSize, &needed);
        lastError = GetLastError();
        if (!result)
            return "-";
        return buffer.find_first_not_of('#') == std::string::npos ? "?" : buffer.c_str();
    }

    LoadedModule module;
    BOOL WINAPI (*get)(const wchar_t*, const void*, void*, DWORD, DWORD*) =
        module.Export<BOOL WINAPI(const wchar_t*, const void*, void*, DWORD, DWORD*)>("DDProc_GetPrinterIPAddress");
    DWORD needed = 0;
    DWORD lastError = 0;
};

TEST_F(PrinterAddress, FromTheRecord) {
    EXPECT_EQ(Ask(L"10.1.1.1", 9), "10.1.1.1") << "without asking for the queue, which does not exist";
}

TEST_F(PrinterAddress, FromThePortMonitorsTransceiver) {
    SKIP_WITHOUT_OWN_SPOOLER();
    const Queue queue(kQueue, L"IP_10.1.2.3");
    Monitor monitor(L"Tarn Port", L"IP_10.1.2.3", L"IPAddress", L"10.9.9.9");
    monitor.Text(L"Driver", (ProductFolder() / L"test_port_monitor.dll").wstring());
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
    SKIP_WITHOUT_OWN_SPOOLER();
    const Queue queue(kQueue, L"LUMORA_1");
    Monitor monitor(L"Tarn Port", L"LUMORA_1", L"IPAddress", L"10.9.9.9");
    monitor.Text(L"Driver", (ProductFolder() / L"test_port_monitor.dll").wstring());
    EXPECT_EQ(Ask(nullptr, 9), "10.9.9.9");
    EXPECT_EQ(needed, 9u);
}

} // namespace
