// Print queues and port transceivers that a test has registered; owns them and the open printers. A printer's
// handle is the address of its record.
#include "services.h"
#include "unicode.h"
#include "win32_control.h"

#include <algorithm>
#include <cstring>
#include <list>
#include <winspool.h>

namespace {

struct Printer {
    std::string name;
    std::vector<BYTE> info; // level 2 of a queue, without pointers
    size_t portOffset;      // in it; 0: no port
    bool isTransceiver;
    std::vector<BYTE> reply;
    DWORD status;
};

std::list<Printer> printers;
std::list<const Printer*> openPrinters;

const Printer& FromHandle(HANDLE handle) {
    return **static_cast<const Printer**>(handle);
}

bool OrderedToFail(const std::string& call) {
    const DWORD error = win32::RecordCall(call);
    return error != 0 && !win32::Fail(error);
}

std::string NameOf(const wchar_t* name) {
    return name != nullptr ? win32::ToUtf8(name) : "(local)";
}

} // namespace

BOOL WINAPI OpenPrinterW(LPWSTR name, HANDLE* printer, PRINTER_DEFAULTSW* defaults) {
    const std::string wanted = NameOf(name);
    const DWORD access = defaults != nullptr ? defaults->DesiredAccess : 0;
    if (OrderedToFail("OpenPrinterW " + wanted + " " + std::to_string(access)))
        return FALSE;
    if (defaults != nullptr && (defaults->pDatatype != nullptr || defaults->pDevMode != nullptr))
        return win32::Fail(ERROR_INVALID_PARAMETER);
    const auto found = std::find_if(printers.begin(), printers.end(), [&](const Printer& p) {
        return p.name == wanted && p.isTransceiver == (access == SERVER_ACCESS_ADMINISTER);
    });
    if (found == printers.end())
        return win32::Fail(ERROR_INVALID_PRINTER_NAME);
    openPrinters.push_back(&*found);
    *printer = &openPrinters.back();
    return TRUE;
}

BOOL WINAPI GetPrinterW(HANDLE printer, DWORD level, BYTE* info, DWORD capacity, DWORD* needed) {
    if (OrderedToFail("GetPrinterW " + std::to_string(level) + " " + std::to_string(capacity)))
        return FALSE;
    const Printer& queue = FromHandle(printer);
    if (queue.isTransceiver || level != 2)
        return win32::Fail(ERROR_INVALID_HANDLE);
    *needed = static_cast<DWORD>(queue.info.size());
    if (capacity < *needed)
        return win32::Fail(ERROR_INSUFFICIENT_BUFFER);
    std::copy(queue.info.begin(), queue.info.end(), info);
    if (queue.portOffset != 0) {
        auto* port = reinterpret_cast<LPWSTR>(info + queue.portOffset);
        memcpy(info + offsetof(PRINTER_INFO_2W, pPortName), &port, sizeof(port));
    }
    return TRUE;
}

BOOL WINAPI ClosePrinter(HANDLE printer) {
    openPrinters.remove_if([printer](const Printer*& open) { return &open == printer; });
    win32::Released();
    return TRUE;
}

BOOL WINAPI XcvDataW(HANDLE transceiver, LPCWSTR command, BYTE* input, DWORD inputSize, BYTE* output,
                     DWORD capacity, DWORD* needed, DWORD* status) {
    const Printer& printer = FromHandle(transceiver);
    *needed = static_cast<DWORD>(printer.reply.size());
    if (OrderedToFail("XcvDataW " + win32::ToUtf8(command) + " " + std::to_string(capacity)))
        return FALSE;
    if (!printer.isTransceiver || input != nullptr || inputSize != 0)
        return win32::Fail(ERROR_INVALID_PARAMETER);
    *status = capacity < *needed ? ERROR_INSUFFICIENT_BUFFER : printer.status;
    if (*status == 0)
        std::copy(printer.reply.begin(), printer.reply.end(), output);
    return TRUE;
}

namespace win32 {

void ResetSpooler() {
    printers.clear();
    openPrinters.clear();
}

int LivePrinters() {
    return static_cast<int>(openPrinters.size());
}

void RegisterQueue(const Queue& queue) {
    Printer printer = {NameOf(queue.name), std::vector<BYTE>(sizeof(PRINTER_INFO_2W)), 0, false, {}, 0};
    if (queue.port != nullptr) {
        printer.portOffset = printer.info.size();
        const std::vector<wchar_t> port = Copy(queue.port);
        printer.info.resize(printer.portOffset + port.size() * sizeof(port[0]));
        memcpy(&printer.info[printer.portOffset], port.data(), port.size() * sizeof(port[0]));
    }
    if (queue.infoSize != 0)
        printer.info.resize(queue.infoSize);
    printers.push_back(printer);
}

void RegisterTransceiver(const wchar_t* name, const std::vector<BYTE>& reply, DWORD status) {
    printers.push_back({NameOf(name), {}, 0, true, reply, status});
}

} // namespace win32
