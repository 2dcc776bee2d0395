// Fuzz target: any bytes as the answers of the bidirectional library. The input begins with statuses and counts; the
// rest is what the answers' bytes differ by from those of a device that answers everything.
#include "devcomm/bidi/scripted_bdc.h"
#include "require.h"

#include "telmar_d.h"
#include "win32_control.h"

namespace {

using scripted_bdc::Answer;
using scripted_bdc::ListAnswer;

void SetAnswers(scripted_bdc::Device& device, const uint8_t* octets, const uint8_t* end) {
    const auto next = [&]() -> uint8_t { return octets < end ? *octets++ : 0; };
    const auto change = [&](RawBytes& record) {
        for (uint8_t& octet : record.bytes)
            octet = octet ^ next();
    };
    ListAnswer* const lists[] = {&device.options,    &device.memory,   &device.finishers,
                                 &device.inputTrays, &device.firmware, &device.outputTrays};
    for (Answer* answer : {&device.name, &device.mediaPath, &device.communication})
        answer->status = static_cast<int8_t>(next());
    for (ListAnswer* list : lists) {
        list->firstStatus = static_cast<int8_t>(next());
        list->status = static_cast<int8_t>(next());
        list->count = next(); // with the items; the first one is that of the items, or more than there is memory for
        const size_t count = next();
        list->items = RawBytes(count % 16 * list->itemSize);
        if (count == 0xFF)
            list->firstCount = UINT32_MAX;
    }
    for (ListAnswer* list : lists)
        change(list->items);
    change(device.mediaPath.octets);
    change(device.name.octets);
}

// Runs a query with two items. After its key an item has texts of 32 bytes and a rest.
template <typename Item>
void CheckQuery(BOOL WINAPI (*query)(const char*, DWORD, Item*), const std::string& first, const std::string& second,
                bool isModel) {
    RawBytes before(2 * sizeof(Item));
    before.U8(0, 0xAB, before.bytes.size()).Text(0, first + '\0').Text(sizeof(Item), second + '\0');
    RawBytes after = before;
    const bool answered = query("10.0.0.9", 2, reinterpret_cast<Item*>(&after.bytes[0])) != FALSE;
    Require(answered == isModel, "another device than the model, or not the model");
    for (size_t at = 0; at < after.bytes.size(); at += sizeof(Item)) {
        Require(memcmp(&before.bytes[at], &after.bytes[at], isModel ? 32 : sizeof(Item)) == 0,
                "the key or a refused record has changed");
        for (size_t field = 32; isModel && field + 32 <= sizeof(Item); field += 32)
            Require(after.bytes[at + field + 31] == 0, "a text fills its field");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    std::vector<win32::Export> exports;
    for (const scripted_bdc::EntryPoint& entry : scripted_bdc::kEntryPoints)
        exports.emplace_back(entry.name, entry.function);
    win32::RegisterLibrary(L"TELMAR_B.DLL", exports);
    SetAnswers(scripted_bdc::script.device, octets, octets + count);
    const Answer& name = scripted_bdc::script.device.name;
    const bool isModel = name.status >= 0 && name.status != 1
                         && memcmp(&name.octets.bytes[4], "QUORVANE lumora R880", 21) == 0
                         && memcmp(&name.octets.bytes[260], "QUORVANE lumora R880", 21) == 0;
    CheckQuery(DDProc_OptionRequest, "OpOutTrayUnit", "OpHDD", isModel);
    CheckQuery(DDProc_InputTrayStatus, "InTray1", "other", isModel);
    const win32::Counts counts = win32::Count();
    Require(counts.globalBlocks == 0 && counts.libraryReferences == 0, "something is left over");
    scripted_bdc::script = {};
    win32::Reset(); // with nothing kept no search for leaks is due, which takes most of the time
    return 0;
}
