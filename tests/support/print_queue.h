// Print queues and port monitors as the system's spooler finds them in the registry, for tests on Windows.
// Each is removed at the end.
#ifndef SUPPORT_PRINT_QUEUE_H
#define SUPPORT_PRINT_QUEUE_H

#include <gtest/gtest.h>
#include <string>
#include <windows.h>

constexpr wchar_t kPrintKey[] = L"System\\CurrentControlSet\\Control\\Print\\";

// A key under HKEY_LOCAL_MACHINE, removed with all that is below it.
struct RegistryKey {
    explicit RegistryKey(const std::wstring& keyPath) : path(keyPath) {
        RegDeleteTreeW(HKEY_LOCAL_MACHINE, path.c_str()); // of a run that was broken off
    }
    ~RegistryKey() { EXPECT_EQ(RegDeleteTreeW(HKEY_LOCAL_MACHINE, path.c_str()), ERROR_SUCCESS); }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    RegistryKey& Text(const wchar_t* name, const std::wstring& text, const std::wstring& below = L"") {
        const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
        return Set(name, REG_SZ, text.c_str(), size, below);
    }

    RegistryKey& Set(const wchar_t* name, DWORD type, const void* data, DWORD size, const std::wstring& below = L"") {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, (path + below).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                  &key, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), size), ERROR_SUCCESS);
        RegCloseKey(key);
        return *this;
    }

    const std::wstring path;
};

// A print queue on a port, with wine's own print processor.
struct Queue : RegistryKey {
    Queue(const wchar_t* name, const wchar_t* port) : RegistryKey(kPrintKey + (L"Printers\\" + std::wstring(name))) {
        const DWORD attributes = 0;
        Text(L"Name", name).Text(L"Port", port).Text(L"Printer Driver", L"none");
        Text(L"Print Processor", L"wineps").Text(L"Datatype", L"RAW");
        Set(L"Attributes", REG_DWORD, &attributes, sizeof(attributes));
    }
};

// What a port monitor keeps of one port.
struct Monitor : RegistryKey {
    Monitor(const wchar_t* name, const std::wstring& port, const wchar_t* valueName, const wchar_t* value)
        : RegistryKey(kPrintKey + (L"Monitors\\" + std::wstring(name))) {
        Text(valueName, value, L"\\Ports\\" + port);
    }
};

#endif
