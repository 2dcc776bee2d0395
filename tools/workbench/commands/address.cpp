// `workbench address`: calls the module's DDProc_GetPrinterIPAddress as the user-interface module does, first
// for the size, then for the address: with a settings record that contains an address, or for a print queue.
#include "workbench/commands/commands.h"
#include "workbench/lib/text.h"

namespace {

using Export = decltype(&DDProc_GetPrinterIPAddress);

// The caller's settings record, with the address if there is one.
std::vector<uint8_t> MakeRecord(const std::wstring* address) {
    std::vector<uint8_t> record(sizeof(AddressSettings));
    if (address != nullptr) {
        record.resize(record.size() + address->size() * sizeof(wchar_t));
        record[offsetof(AddressSettings, hasAddress)] = 1;
        memcpy(record.data() + offsetof(AddressSettings, address), address->data(),
               address->size() * sizeof(wchar_t));
    }
    return record;
}

struct Call {
    bool succeeded;
    DWORD bufferSize;
    DWORD neededSize; // 0: not reported
    DWORD lastError;
    std::string text;
};

Call Ask(Export get, const std::wstring& queue, const std::vector<uint8_t>& record, DWORD bufferSize) {
    Call call = {false, bufferSize, 0, 0, {}};
    std::vector<char> buffer(bufferSize);
    SetLastError(ERROR_SUCCESS);
    call.succeeded = get(queue.c_str(), reinterpret_cast<const AddressSettings*>(record.data()),
                         buffer.empty() ? nullptr : buffer.data(), bufferSize, &call.neededSize)
                     != FALSE;
    call.lastError = GetLastError();
    if (call.succeeded && !buffer.empty())
        call.text = Utf8(buffer.data());
    return call;
}

Document CallDocument(const Call& call) {
    return {
        {"bufferSize", call.bufferSize},
        {"answer", call.succeeded},
        {"neededSize", call.neededSize != 0 ? Document(call.neededSize) : Document()},
        {"lastError", call.lastError},
    };
}

[[noreturn]] void FailOnRecord() {
    throw Failure(kExitFailed,
                  "the record's address is empty or cannot be converted to the system's code page; specify "
                  "another with --record");
}

[[noreturn]] void FailOnQueue(const std::string& queue, DWORD error) {
    const std::string what = error == ERROR_INVALID_PRINTER_NAME
                                 ? "there is no such print queue"
                                 : "its port cannot be read, or no port monitor knows the port's address";
    throw Failure(kExitFailed, "print queue '" + queue + "': " + what + " (" + ErrorText(error)
                                   + "); specify a queue of this system with a network port, or the address "
                                     "itself with --record");
}

} // namespace

Document FindAddress(const FamilyFiles& family, const AddressOptions& options) {
    if (!options.record && !options.queue)
        throw Failure(kExitUsage, "address lacks the printer; possible: --record TEXT, --queue NAME");
    const auto get = ModuleExport<Export>(family, "DDProc_GetPrinterIPAddress");
    const std::wstring address = Wide(options.record.value_or(""));
    const std::wstring queue = Wide(options.queue.value_or(""));
    const std::vector<uint8_t> record = MakeRecord(options.record ? &address : nullptr);

    const Call size = Ask(get, queue, record, 0);
    const Call answer = size.neededSize != 0 ? Ask(get, queue, record, size.neededSize) : size;
    if (!answer.succeeded || answer.bufferSize == 0 || answer.neededSize > answer.bufferSize) {
        if (options.record)
            FailOnRecord();
        FailOnQueue(*options.queue, answer.lastError);
    }
    return {
        {"files", FamilyDocument(family)},
        {"calls", {CallDocument(size), CallDocument(answer)}},
        {"printer",
         {{options.record ? "record" : "queue", options.record ? *options.record : *options.queue},
          {"address", answer.text}}},
    };
}
