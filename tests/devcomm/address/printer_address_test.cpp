// Host only: the printer's address from the record, the transceiver and the registry; every call, allocation
// and library that can fail. Records, replies and buffers are heap blocks of just their size.
#include "base/records.h"
#include "support/raw_bytes.h"
#include "win32_control.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>
#include <winspool.h>

namespace {

using Bytes = std::vector<BYTE>;

constexpr DWORD kBefore = 0xB0F0;   // last error before the call
constexpr DWORD kReleases = 0x5E1E; // what releases make of it
constexpr DWORD kUntouched = 0xABABABAB;
constexpr DWORD kNoBuffer = 0xFFFFFFFF;
constexpr UINT kLatin = 1252, kUtf8 = 65001;

// Outcomes of a call, as Ask puts them into words.
const std::string kNothing = "no -";
std::string Stored(const std::string& text) {
    return "yes " + text + ", needs " + std::to_string(text.size() + 1);
}
std::string NoRoom(DWORD needed) {
    return "yes -, needs " + std::to_string(needed) + ", error 122";
}
std::string Refused(DWORD lastError) {
    return "no -, error " + std::to_string(lastError);
}
const std::string kFromTransceiver = Stored("10.0.0.1"), kFromRegistry = Stored("10.0.0.22");

// The characters of a literal, without a terminator.
template <size_t N>
Bytes Octets(const wchar_t (&text)[N]) {
    const auto* begin = reinterpret_cast<const BYTE*>(text);
    return {begin, begin + (N - 1) * sizeof(wchar_t)};
}

template <size_t N>
Bytes Terminated(const wchar_t (&text)[N]) {
    const auto* begin = reinterpret_cast<const BYTE*>(text);
    return {begin, begin + sizeof(text)};
}

Bytes Xs(size_t octets) {
    Bytes xs(octets);
    for (size_t i = 0; i < octets; i += 2)
        xs[i] = 'x';
    return xs;
}

RawBytes Record(unsigned flag, const Bytes& address) {
    RawBytes record(564);
    record.U8(562, flag);
    record.bytes.insert(record.bytes.end(), address.begin(), address.end());
    return record;
}

const RawBytes kAskQueue = Record(0, {});

// The result, the text stored ("-": none), the needed size and the last error, where the call has set them. The
// address of a port may be stored with any last error.
std::string Ask(const RawBytes& record, DWORD bufferSize = 64, const wchar_t* printer = L"Lumora") {
    std::vector<char> buffer(bufferSize != kNoBuffer ? bufferSize : 0, '#');
    char* to = bufferSize != kNoBuffer ? buffer.data() : nullptr;
    DWORD needed = kUntouched;
    SetLastError(kBefore);
    const BOOL result = DDProc_GetPrinterIPAddress(
        printer, reinterpret_cast<const AddressSettings*>(record.bytes.data()), to, bufferSize, &needed);
    const DWORD lastError = GetLastError();
    const bool isStored = std::any_of(buffer.begin(), buffer.end(), [](char c) { return c != '#'; });
    std::string outcome = result ? "yes " : "no ";
    outcome += isStored ? std::string(buffer.begin(), std::find(buffer.begin(), buffer.end(), '\0')) : "-";
    if (needed != kUntouched)
        outcome += ", needs " + std::to_string(needed);
    if (lastError != kBefore && !(result && isStored && needed != kUntouched))
        outcome += ", error " + std::to_string(lastError);
    const win32::Counts counts = win32::Count();
    EXPECT_TRUE(counts.printers == 0 && counts.registryKeys == 0) << "a printer or a key is left open";
    EXPECT_TRUE(counts.libraryReferences == 0 && counts.globalBlocks == 0) << "a library or a block is left";
    return outcome;
}

std::vector<std::string> CallsOf(const std::string& function) {
    std::vector<std::string> found;
    for (const std::string& call : win32::Calls())
        if (call.compare(0, function.size() + 1, function + " ") == 0)
            found.push_back(call);
    return found;
}

#define MONITORS L"System\\CurrentControlSet\\Control\\Print\\Monitors\\"

// The queue on its port, for which the LPR monitor's key has 10.0.0.22, and no transceiver.
void Arrange(const win32::Queue& queue = {L"Lumora", L"IP_1"}) {
    win32::Reset();
    win32::LetReleasesSetLastError(kReleases);
    win32::RegisterQueue(queue);
    win32::SetRegistryValue(MONITORS L"LPR Port\\Ports\\IP_1", L"Server Name", Terminated(L"10.0.0.22"));
}

// The same with a transceiver.
void ArrangeTransceiver(const Bytes& reply = Terminated(L"10.0.0.1"), DWORD status = 0,
                        const std::vector<win32::Export>& exports = {{"XcvDataW", XcvDataW}}) {
    Arrange();
    win32::RegisterTransceiver(L",XcvPort IP_1", reply, status);
    win32::RegisterLibrary(L"C:\\Windows\\system32\\WINSPOOL.DRV", exports);
}

TEST(PrinterAddress, FromTheRecord) {
    ArrangeTransceiver(); // which is not asked
    const std::tuple<unsigned, Bytes, UINT, DWORD, std::string> cases[] = {
        // flag, address, code page, size of the buffer, outcome
        // clang-format off
        {1, Terminated(L"192.168.10.2"), kLatin, 13, "yes 192.168.10.2"},
        {0x80, Terminated(L"192.168.10.2"), kLatin, 12, "no -, needs 13"},
        {0xFF, Terminated(L"192.168.10.2"), kLatin, 0, "no -, needs 13"},
        {1, Terminated(L"192.168.10.2"), kLatin, kNoBuffer, kNothing}, {1, Terminated(L""), kLatin, 13, kNothing},
        {1, Terminated(L"pr\u00FC"), kLatin, 4, "yes pr\xFC"}, {1, Terminated(L"\u4E2D"), kLatin, 2, "yes ?"},
        {1, Terminated(L"pr\u00FC"), kUtf8, 4, "no -, needs 5"},
        // clang-format on
    };
    for (const auto& [flag, address, codePage, bufferSize, outcome] : cases) {
        win32::SetAnsiCodePage(codePage);
        EXPECT_EQ(Ask(Record(flag, address), bufferSize), outcome) << flag << ", " << bufferSize;
    }
    EXPECT_EQ(CallsOf("OpenPrinterW").size(), 0u);
    for (const unsigned conversion : {1u, 2u}) {
        win32::FailCall(conversion, 1113);
        EXPECT_EQ(Ask(Record(1, Terminated(L"10.0.0.3"))), kNothing);
    }

    RawBytes otherFlags = Record(0, Terminated(L"10.0.0.3")).U8(561, 0xFF).U8(563, 0xFF);
    EXPECT_EQ(Ask(otherFlags), kFromTransceiver);
}

TEST(PrinterAddress, NullArgumentsAndSizesThatNoBufferHas) {
    const RawBytes record = Record(1, Terminated(L"10.0.0.3"));
    char buffer[9];
    const auto ask = [&buffer](const RawBytes& from, DWORD size) {
        return DDProc_GetPrinterIPAddress(L"Lumora", reinterpret_cast<const AddressSettings*>(from.bytes.data()),
                                          buffer, size, nullptr);
    };
    ArrangeTransceiver();
    DWORD needed = kUntouched;
    SetLastError(kBefore);
    EXPECT_EQ(DDProc_GetPrinterIPAddress(L"Lumora", nullptr, buffer, sizeof(buffer), &needed), FALSE);
    EXPECT_EQ(GetLastError(), kBefore);
    EXPECT_EQ(needed, kUntouched);
    EXPECT_TRUE(win32::Calls().empty());

    EXPECT_EQ(ask(record, 8), FALSE);
    EXPECT_EQ(ask(kAskQueue, 8), TRUE);
    for (const DWORD claimed : {9u, 0x80000000u, 0xFFFFFFFFu}) { // the conversion's sizes are signed numbers
        EXPECT_EQ(ask(record, claimed), TRUE);
        EXPECT_STREQ(buffer, "10.0.0.3");
        EXPECT_EQ(ask(kAskQueue, claimed), TRUE);
        EXPECT_STREQ(buffer, "10.0.0.1");
        EXPECT_EQ(win32::Calls().back(), "WideCharToMultiByte 1252 8");
    }
}

TEST(PrinterAddress, ATransceiversAnswerNeedsNoRegistry) {
    ArrangeTransceiver();
    EXPECT_EQ(Ask(kAskQueue), kFromTransceiver);
    const std::vector<std::string> calls = {
        // clang-format off
        "OpenPrinterW Lumora 0", "GetPrinterW 2 0", "GetPrinterW 2 146", // 136 and the port's name
        "OpenPrinterW ,XcvPort IP_1 1", "XcvDataW IPAddress 0", "XcvDataW IPAddress 18",
        "WideCharToMultiByte 1252 0", "WideCharToMultiByte 1252 8",
        // clang-format on
    };
    EXPECT_EQ(win32::Calls(), calls);
}

TEST(PrinterAddress, TheSystemsVersionNamesTheTransceiver) {
    const std::tuple<DWORD, DWORD, std::string> cases[] = {
        // platform, major version, the last printer that is opened
        // clang-format off
        {2, 10, "OpenPrinterW ,XcvPort IP_1 1"}, {2, 5, "OpenPrinterW ,XcvPort IP_1 1"},
        {2, 4, "OpenPrinterW (local) 1"}, {1, 5, "OpenPrinterW Lumora 0"},
        // clang-format on
    };
    for (const auto& [platform, major, opened] : cases) {
        ArrangeTransceiver();
        win32::RegisterTransceiver(nullptr, Terminated(L"10.0.0.1"));
        win32::SetVersion(platform, major);
        EXPECT_EQ(Ask(kAskQueue), platform == 2 ? kFromTransceiver : kFromRegistry) << platform << "." << major;
        EXPECT_EQ(CallsOf("OpenPrinterW").back(), opened);
    }
}

// What a transceiver replies and what the registry holds are taken in the same way.
TEST(PrinterAddress, TextsOfAnyShape) {
    const std::tuple<Bytes, UINT, DWORD, std::string> cases[] = {
        // text, code page, size of the buffer, outcome
        // clang-format off
        {Terminated(L"10.0.0.3"), kLatin, 8, NoRoom(9)}, {Terminated(L"10.0.0.3"), kLatin, kNoBuffer, NoRoom(9)},
        {Octets(L"10.0.0.3"), kLatin, 9, Stored("10.0.0.3")}, // no terminator
        {Octets(L"10.0\000.3"), kLatin, 9, Stored("10.0")}, {Terminated(L"pr\u00FC"), kUtf8, 4, NoRoom(5)},
        {{'1', 0, '2', 0, '3'}, kLatin, 9, Stored("12")}, // half a character
        {Terminated(L""), kLatin, 1, Stored("")}, {Terminated(L""), kLatin, 0, NoRoom(1)},
        {Xs(512), kLatin, 257, Stored(std::string(256, 'x'))}, {Xs(511), kLatin, 300, Stored(std::string(255, 'x'))},
        // clang-format on
    };
    for (const auto& [text, codePage, bufferSize, outcome] : cases) {
        ArrangeTransceiver(text);
        win32::SetAnsiCodePage(codePage);
        EXPECT_EQ(Ask(kAskQueue, bufferSize), outcome);
        Arrange();
        win32::SetAnsiCodePage(codePage);
        win32::SetRegistryValue(MONITORS L"Tarn Port\\Ports\\IP_1", L"IPAddress", text);
        EXPECT_EQ(Ask(kAskQueue, bufferSize), outcome);
    }
}

TEST(PrinterAddress, NoReplyLeadsToTheRegistryAndNoValueToTheNextMonitor) {
    ArrangeTransceiver({});
    EXPECT_EQ(Ask(kAskQueue), kFromRegistry);
    ArrangeTransceiver(Terminated(L"10.0.0.1"), 5); // refused, though the call itself succeeds
    EXPECT_EQ(Ask(kAskQueue), kFromRegistry);
    ArrangeTransceiver(Terminated(L"10.0.0.1"), 0, {}); // the spooler's library lacks the call
    EXPECT_EQ(Ask(kAskQueue), kFromRegistry);
    ArrangeTransceiver();
    win32::SetSystemDirectory(L"C:\\Elsewhere"); // which has no such library
    EXPECT_EQ(Ask(kAskQueue), kFromRegistry);
    EXPECT_EQ(win32::LibraryCalls().size(), 1u) << "no entry point is looked up";

    Arrange();
    win32::SetRegistryValue(MONITORS L"Tarn Port\\Ports\\IP_1", L"IPAddress", Xs(513));
    EXPECT_EQ(Ask(kAskQueue), kFromRegistry);
    EXPECT_EQ(CallsOf("RegQueryValueExW").front(), "RegQueryValueExW IPAddress 512");
    win32::SetRegistryValue(MONITORS L"Tarn Port\\Ports\\IP_1", L"IPAddress", {});
    EXPECT_EQ(Ask(kAskQueue), Stored(""));
}

TEST(PrinterAddress, EveryPortMonitorInItsOrder) {
    constexpr std::pair<const wchar_t*, const wchar_t*> kMonitors[] = {
        // key, value
        {MONITORS L"Standard TCP/IP Port\\Ports\\IP_1", L"IPAddress"},
        {MONITORS L"Tarn Port\\Ports\\IP_1", L"IPAddress"},
        {MONITORS L"Vesper Port\\Ports\\IP_1", L"IPAddress"},
        {MONITORS L"LPR Port\\Ports\\IP_1", L"Server Name"},
        {MONITORS L"Vesper Port+\\Ports\\IP_1", L"IPAddress"},
        {MONITORS L"Digital Network Port\\Ports\\IP_1", L"TCP/IP Address"},
        {MONITORS L"HP Standard TCP/IP Port\\Ports\\IP_1", L"IPAddress"},
    };
    for (unsigned first = 1; first <= 8; ++first) { // the monitors before it lack the value or the whole key
        SCOPED_TRACE(first);
        win32::Reset();
        win32::LetReleasesSetLastError(kReleases);
        win32::RegisterQueue({L"Lumora", L"IP_1"});
        for (unsigned i = 1; i <= 7; ++i) {
            const auto& [key, value] = kMonitors[i - 1];
            const BYTE digit = static_cast<BYTE>('0' + i);
            if (i % 2 == 0)
                win32::SetRegistryValue(key, L"HostName", Terminated(L"other"));
            if (i >= first)
                win32::SetRegistryValue(key, value, {digit, 0});
        }
        // The transceiver, which can't be opened, is the last that leaves an error.
        EXPECT_EQ(Ask(kAskQueue), first < 8 ? Stored(std::to_string(first)) : Refused(1801));
    }
}

// The key's path ends after 1,023 characters; the transceiver's name holds the whole port's.
TEST(PrinterAddress, LongPortNames) {
    const std::string ports = "System\\CurrentControlSet\\Control\\Print\\Monitors\\LPR Port\\Ports\\";
    const std::string key = ports + std::string(1023 - ports.size(), 'p');
    for (const size_t length : {1023 - ports.size(), 1024 - ports.size(), size_t{2000}}) {
        SCOPED_TRACE(length);
        const std::string port(length, 'p');
        Arrange({L"Long", Widened(port).data()});
        win32::SetRegistryValue(Widened(key).data(), L"Server Name", Terminated(L"10.0.0.4"));
        EXPECT_EQ(Ask(kAskQueue, 64, L"Long"), Stored("10.0.0.4"));
        EXPECT_EQ(CallsOf("OpenPrinterW").back(), "OpenPrinterW ,XcvPort " + port + " 1");
        EXPECT_EQ(CallsOf("RegOpenKeyExW").back(), "RegOpenKeyExW " + key);
    }
}

TEST(PrinterAddress, QueuesThatLackSomething) {
    const std::pair<win32::Queue, std::string> cases[] = {
        {{L"Other", L"IP_1"}, Refused(1801)},
        {{L"Lumora", nullptr}, Refused(122)},       // which the question for the size has left
        {{L"Lumora", L""}, Refused(1801)},          // by the print server: the name is asked as it is
        {{L"Lumora", nullptr, 30}, Refused(122)},   // ends within the pointer to the name
        {{L"Lumora", L"IP_1", 136}, Refused(1801)}, // the port's name begins where the block ends
        {{L"Lumora", L"IP_1", 144}, kFromRegistry}, // no terminator
        {{L"Lumora", L"IP_10", 145}, kFromRegistry},
    };
    for (const auto& [queue, outcome] : cases) {
        Arrange(queue);
        EXPECT_EQ(Ask(kAskQueue), outcome);
    }
}

TEST(PrinterAddress, EveryCallFailsInTurn) {
    // Open the queue, ask for the size of its data, read them; open the transceiver, ask for the size of the
    // reply (only the size counts), fetch it; ask for the size of the text, convert it. Then nothing fails.
    const std::string withTransceiver[] = {Refused(5),    Refused(5),       Refused(5),
                                           kFromRegistry, kFromTransceiver, kFromRegistry,
                                           kFromRegistry, kFromRegistry,    kFromTransceiver};
    for (unsigned i = 0; i < std::size(withTransceiver); ++i) {
        SCOPED_TRACE(i);
        ArrangeTransceiver();
        win32::FailCall(i + 1, 5);
        EXPECT_EQ(Ask(kAskQueue), withTransceiver[i]);
    }
    // Open the third monitor's key, which is not there anyway, then the LPR monitor's and read its value: the
    // transceiver has left the error. Ask for the size of the text, convert it. Then nothing fails.
    const std::string onRegistry[] = {kFromRegistry, Refused(1801), Refused(1801), NoRoom(0), "yes -, needs 0, error 5",
                                      kFromRegistry};
    for (unsigned i = 0; i < std::size(onRegistry); ++i) {
        SCOPED_TRACE(i);
        Arrange();
        win32::FailCall(i + 7, 5);
        EXPECT_EQ(Ask(kAskQueue), onRegistry[i]);
        EXPECT_EQ(CallsOf("RegOpenKeyExW").size(), onRegistry[i][0] == 'y' ? 4u : 7u);
    }
}

TEST(PrinterAddress, EveryAllocationFailsInTurn) {
    const std::string expected[] = {
        Refused(ERROR_NOT_ENOUGH_MEMORY), // the queue's data
        kNothing,                         // the transceiver's name: the registry is not tried
        kFromRegistry,                    // the reply
        kFromTransceiver,                 // nothing fails
    };
    for (unsigned i = 0; i < std::size(expected); ++i) {
        SCOPED_TRACE(i);
        ArrangeTransceiver();
        win32::FailAllocations(i + 1);
        EXPECT_EQ(Ask(kAskQueue), expected[i]);
    }
}

} // namespace
