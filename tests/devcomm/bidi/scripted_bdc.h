// Host only: a stand-in for the bidirectional library that answers as a test has scripted, and records every
// call. Records and items are built byte by byte, independently of the module's structs.
#ifndef DEVCOMM_BIDI_SCRIPTED_BDC_H
#define DEVCOMM_BIDI_SCRIPTED_BDC_H

#include "support/raw_bytes.h"

#include <optional>
#include <string>
#include <vector>

namespace scripted_bdc {

constexpr uint32_t kStateAfter = 9001; // the state word that each call returns

// What goes into the caller's buffer in full, whatever the status.
struct Answer {
    RawBytes octets;
    int32_t status = 0;
};

struct ListAnswer {
    size_t itemSize;
    RawBytes items = RawBytes(0);
    int32_t firstStatus = 0; // of the call without a buffer
    int32_t status = 0;
    std::optional<uint32_t> firstCount = {}; // else as many as there are items
    std::optional<uint32_t> count = {};      // made of the caller's by the call with a buffer
};

// A device that answers everything: this model, with an empty item in each list.
struct Device {
    Answer communication = {RawBytes(336).U8(0, 0xC0, 336).U32(72, 0x12345678)};
    Answer name = {RawBytes(324).Text(4, "QUORVANE lumora R880").Text(260, "QUORVANE lumora R880")};
    Answer mediaPath = {RawBytes(8).U32(4, 2)};
    ListAnswer firmware = {132, RawBytes(132)};
    ListAnswer memory = {12, RawBytes(12)};
    ListAnswer options = {72, RawBytes(72)};
    ListAnswer inputTrays = {108, RawBytes(108)};
    ListAnswer outputTrays = {144, RawBytes(144)};
    ListAnswer finishers = {140, RawBytes(140)};
};

RawBytes OptionItem(uint32_t type, const std::string& model);
RawBytes MemoryItem(uint32_t kind);
RawBytes FinisherItem(uint32_t flags);
struct TrayState {
    uint32_t number = 1;
    unsigned size = 260;
    uint32_t type = 1;
    unsigned level = 0;
    uint32_t orientation = 2;
    uint32_t weight = 0xFFFFFFFF; // -1
    uint32_t color = 0;
    uint32_t hole = 0xFFFFFFFF;
    uint32_t secondSide = 0;
};
RawBytes TrayItem(const TrayState& tray);

struct Call {
    // Such as "BdcGetDevInputTrayInfoEx, selector 2, state 1, null" and then "..., state 1, 3 items". A block
    // for items that is not movable, locked and zero-filled over its whole size is called "unfit" as well.
    std::string text;
    std::vector<uint8_t> record; // the device record's 428 bytes; empty when there is none
};

struct Script {
    Answer version = {RawBytes(16).U32(0, 4).U32(12, 1)};
    Device device;
    std::vector<Call> calls;
};
extern Script script;

std::vector<std::string> CallTexts();

// In the order of the module's look-ups.
struct EntryPoint {
    const char* name;
    void (*function)();
};
constexpr size_t kEntryPointCount = 21;
extern const EntryPoint kEntryPoints[kEntryPointCount];

} // namespace scripted_bdc

#endif
