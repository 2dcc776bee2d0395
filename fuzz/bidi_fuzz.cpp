// Fuzz target: any bytes as the answers of the bidirectional library. The input begins with statuses and counts; the
// rest is what the answers' bytes differ by from those of a device that answers everything.
#include "devcomm/bidi/scripted_bdc.h"
#include "require.h"

#include "telmar_d.h"
#include "win32_control.h"

namespace {

using scripted_bdc::ListAnswer;

void SetAnswers(scripted_bdc::Device& device, const uint8_t* octets, const uint8_t* end) {
    const auto next = [&]() -> uint8_t { return octets < end ? *octets++ : 0; };
    const auto nextStatus = [&] { // -128 to 127
        const int32_t octet = next();
        return octet < 128 ? octet : octet - 256;
    };
    const auto change = [&](RawBytes& record) {
        for (uint8_t& octet : record.bytes)
            octet = octet ^ next();
    };
    ListAnswer* const lists[] = {&device.options,    &device.memory,   &device.finishers,
                                 &device.inputTrays, &device.firmware, &device.outputTrays};
    for (scripted_bdc::Answer* answer : {&device.name, &device.mediaPath, &device.communication})
        answer->status = nextStatus();
    uint8_t& ofName = device.name.octets.bytes[4 + next() * 2 % 320]; // both names begin at even offsets
    ofName = ofName ^ next();
    for (ListAnswer* list : lists) {
        list->firstStatus = nextStatus();
        list->status = nextStatus();
        list->count = next(); // with the items; the first one is that of the items, or more than there is memory for
        const size_t count = next();
        list->items = RawBytes(count % 16 * list->itemSize);
        if (count == 0xFF)
            list->firstCount = UINT32_MAX;
    }
    for (ListAnswer* list : lists)
        change(list->items);
    change(device.mediaPath.octets);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    std::vector<win32::Export> exports;
    for (const scripted_bdc::EntryPoint& entry : scripted_bdc::kEntryPoints)
        exports.emplace_back(entry.name, entry.function);
    win32::RegisterLibrary(L"TELMAR_B.DLL", exports);
    SetAnswers(scripted_bdc::script.device, octets, octets + count);
    const scripted_bdc::Answer& name = scripted_bdc::script.device.name;
    const bool isModel = name.status >= 0 && name.status != 1
                         && memcmp(&name.octets.bytes[4], "QUORVANE lumora R880", 21) == 0
                         && memcmp(&name.octets.bytes[260], "QUORVANE lumora R880", 21) == 0;
    TelmarOptionRequestItem options[] = {{"OpOutTrayUnit", ""}, {"OpHDD", ""}};
    TelmarInputTrayStatusItem tray = {"InTray1", "", "", "", "", "", "", 0};
    Require((DDProc_OptionRequest("10.0.0.9", 2, options) != FALSE) == isModel
                && (DDProc_InputTrayStatus("10.0.0.9", 1, &tray) != FALSE) == isModel,
            "an answer about another device, or none about the model");
    for (const char* text : {options[0].value, options[1].value, tray.mediaSize, tray.mediaType, tray.orientation})
        Require(text[31] == 0 && (isModel || text[0] == 0), "a text fills its field, or is of another device");
    Require(win32::Count().globalBlocks == 0 && win32::Count().libraryReferences == 0, "something is left over");
    scripted_bdc::script = {};
    win32::Reset(); // with nothing kept no search for leaks is due, which takes most of the time
    return 0;
}
