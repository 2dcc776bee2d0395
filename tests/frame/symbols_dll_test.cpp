// The symbols of the built DLL, read by the system's debug help library: addresses lead to functions, files and lines,
// and so does the minidump of a crash in the module. Lines are compared with the sources where those are at hand.
#include "support/product.h"
#include "support/wine.h"

#include <algorithm>
#include <windows.h>

#include <dbghelp.h>
#include <fstream>
#include <gtest/gtest.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr char kProjectInSymbols[] = "C:\\telmar_d\\"; // what the symbols have in place of the project's folder

struct Place {
    std::string function, file; // relative to the project's folder, with slashes
    size_t line;
};

// The symbols of the DLL at a base address, in a process of their own name only.
struct Symbols {
    explicit Symbols(DWORD64 imageBase) : base(imageBase) {
        SymSetOptions(SYMOPT_LOAD_LINES);
        EXPECT_TRUE(SymInitializeW(process, ProductFolder().c_str(), FALSE));
        EXPECT_EQ(SymLoadModuleExW(process, nullptr, (ProductFolder() / "TELMAR_D.DLL").c_str(), nullptr, base, 0,
                                   nullptr, 0),
                  base)
            << GetLastError();
    }
    ~Symbols() { SymCleanup(process); }
    Symbols(const Symbols&) = delete;
    Symbols& operator=(const Symbols&) = delete;

    Place At(DWORD64 address) const {
        alignas(SYMBOL_INFO) char memory[sizeof(SYMBOL_INFO) + 256] = {};
        auto& symbol = *reinterpret_cast<SYMBOL_INFO*>(memory);
        symbol.SizeOfStruct = sizeof symbol;
        symbol.MaxNameLen = 256;
        DWORD64 beyond = 0;
        EXPECT_TRUE(SymFromAddr(process, address, &beyond, &symbol)) << GetLastError();
        IMAGEHLP_LINE64 line = {};
        line.SizeOfStruct = sizeof line;
        DWORD column = 0;
        EXPECT_TRUE(SymGetLineFromAddr64(process, address, &column, &line)) << GetLastError();
        std::string file = line.FileName != nullptr ? line.FileName : "";
        if (file.rfind(kProjectInSymbols, 0) == 0)
            file.erase(0, sizeof kProjectInSymbols - 1);
        std::replace(file.begin(), file.end(), '\\', '/');
        return {symbol.Name, file, line.LineNumber};
    }

    const DWORD64 base;
    const HANDLE process = reinterpret_cast<HANDLE>(4711);
};

// The lines of a source; empty on a machine without the sources. The first has number 1.
std::vector<std::string> LinesOf(const std::string& file) {
    std::ifstream stream(fs::path(SOURCE_FOLDER) / file);
    std::vector<std::string> lines(1);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    if (lines.size() == 1)
        lines.clear();
    EXPECT_TRUE(!IsWine() || IsPacked() || !lines.empty()) << file;
    return lines;
}

// The line in which the definition of an export has its brace.
size_t LineOfDefinition(const std::vector<std::string>& lines, const std::string& name) {
    const std::string start = "WINAPI " + name + '(';
    size_t at = 1;
    while (at < lines.size() && lines[at].find(start) == std::string::npos)
        ++at;
    while (at < lines.size() && (lines[at].empty() || lines[at].back() != '{'))
        ++at;
    return at;
}

TEST(Symbols, LeadFromAddressesToFunctionsAndLines) {
    const LoadedModule module;
    const Symbols symbols(reinterpret_cast<DWORD64>(module.handle));
    constexpr std::pair<const char*, const char*> kResolved[] = {
        {"DrawPrinterView", "picture/view/printer_view.cpp"},
        {"DDProc_DlgProc", "frame/dlg_proc.cpp"},
        {"MIB_OptionRequest", "devcomm/queries/printer_queries.cpp"},
        {"DDProc_DeviceCapabilities", "picture/capabilities/device_capabilities.cpp"},
        {"DDProc_GetPrinterIPAddress", "devcomm/address/printer_address.cpp"},
    };
    for (const auto& [name, file] : kResolved) {
        const Place place = symbols.At(reinterpret_cast<DWORD64>(module.Export<void()>(name)));
        EXPECT_EQ(place.function, name);
        EXPECT_EQ(place.file, std::string("driver/ddproc/uni/") + file);
        const std::vector<std::string> lines = LinesOf(place.file);
        EXPECT_EQ(place.line, lines.empty() ? place.line : LineOfDefinition(lines, name)) << name;
    }
    IMAGEHLP_MODULEW64 info = {};
    info.SizeOfStruct = sizeof info;
    ASSERT_TRUE(SymGetModuleInfoW64(symbols.process, symbols.base, &info));
    EXPECT_FALSE(info.PdbUnmatched);
}

fs::path DumpFile() {
    return fs::temp_directory_path() / "lumora_crash.dmp";
}

// Writes the dump of this process as an error reporter would, and ends it.
LONG WINAPI WriteDump(EXCEPTION_POINTERS* exception) {
    const HANDLE file =
        CreateFileW(DumpFile().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    MINIDUMP_EXCEPTION_INFORMATION information = {GetCurrentThreadId(), exception, FALSE};
    const BOOL written = MiniDumpWriteDump(GetCurrentProcess(), GetCurrentProcessId(), file, MiniDumpNormal,
                                           &information, nullptr, nullptr);
    CloseHandle(file);
    ExitProcess(written ? 42 : 1);
}

template <typename Stream>
const Stream* StreamOf(std::vector<char>& dump, MINIDUMP_STREAM_TYPE type) {
    void* stream = nullptr;
    MINIDUMP_DIRECTORY* directory = nullptr;
    return MiniDumpReadDumpStream(dump.data(), type, &directory, &stream, nullptr) ? static_cast<Stream*>(stream)
                                                                                   : nullptr;
}

// The module that holds an address; null when it is none of TELMAR_D.DLL.
const MINIDUMP_MODULE* DriverAt(std::vector<char>& dump, DWORD64 address) {
    const auto* const modules = StreamOf<MINIDUMP_MODULE_LIST>(dump, ModuleListStream);
    for (ULONG32 i = 0; modules != nullptr && i < modules->NumberOfModules; ++i) {
        const MINIDUMP_MODULE& module = modules->Modules[i];
        const auto* const name = reinterpret_cast<const MINIDUMP_STRING*>(dump.data() + module.ModuleNameRva);
        if (address - module.BaseOfImage < module.SizeOfImage)
            return fs::path(name->Buffer).filename() == "TELMAR_D.DLL" ? &module : nullptr;
    }
    return nullptr;
}

TEST(Symbols, MinidumpOfACrashLeadsToItsLine) {
    fs::remove(DumpFile());
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            SetUnhandledExceptionFilter(WriteDump);
            const LoadedModule module;
            module.Export<void WINAPI(HDC, const RECT*, const void*)>("DrawPrinterView")(
                nullptr, reinterpret_cast<const RECT*>(16), "a request");
        },
        testing::ExitedWithCode(42), "");

    std::ifstream stream(DumpFile(), std::ios::binary);
    std::vector<char> dump((std::istreambuf_iterator<char>(stream)), {});
    stream.close();
    fs::remove(DumpFile());
    ASSERT_FALSE(dump.empty());
    const auto* const exception = StreamOf<MINIDUMP_EXCEPTION_STREAM>(dump, ExceptionStream);
    ASSERT_NE(exception, nullptr);
    EXPECT_EQ(exception->ExceptionRecord.ExceptionCode, static_cast<DWORD>(EXCEPTION_ACCESS_VIOLATION));
    const DWORD64 address = exception->ExceptionRecord.ExceptionAddress;
    const MINIDUMP_MODULE* const driver = DriverAt(dump, address);
    ASSERT_NE(driver, nullptr) << "the crash is not in the module";

    const Place place = Symbols(driver->BaseOfImage).At(address);
    EXPECT_EQ(place.function, "DrawPrinterView");
    EXPECT_EQ(place.file, "driver/ddproc/uni/picture/view/printer_view.cpp");
    const std::vector<std::string> lines = LinesOf(place.file);
    if (!lines.empty()) {
        ASSERT_LT(place.line, lines.size());
        EXPECT_NE(lines[place.line].find("rectangle->"), std::string::npos) << lines[place.line];
    }
}

} // namespace
