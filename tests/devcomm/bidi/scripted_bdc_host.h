// Host only: the scripted library in the simulated system, and the module's queries of its device,
// with records built byte by byte.
#ifndef DEVCOMM_BIDI_SCRIPTED_BDC_HOST_H
#define DEVCOMM_BIDI_SCRIPTED_BDC_HOST_H

#include "devcomm/bidi/bdc_device.h"
#include "devcomm/bidi/scripted_bdc.h"
#include "support/raw_bytes.h"
#include "telmar_d.h"
#include "win32_control.h"

#include <gtest/gtest.h>
#include <memory>

constexpr char kAgent[] = "10.0.0.9";
constexpr wchar_t kBareName[] = L"TELMAR_B.DLL";
constexpr size_t kNone = scripted_bdc::kEntryPointCount; // no entry point is missing

inline void Register(const wchar_t* path, size_t missing = kNone) {
    std::vector<win32::Export> exports;
    for (size_t i = 0; i < scripted_bdc::kEntryPointCount; ++i)
        if (i != missing)
            exports.emplace_back(scripted_bdc::kEntryPoints[i].name, scripted_bdc::kEntryPoints[i].function);
    win32::RegisterLibrary(path, exports);
}

const std::string kUnknownTray =
    "MediaTypeList_Size_Unknown MediaTypeList_Orient_Unknown MediaTypeList_Type_Unknown "
    "MediaTypeList_Weight_Unknown MediaTypeList_Color_Unknown MediaTypeList_Hole_Unknown 0";

// The text of a 32-byte field, which is padded with zeros.
inline std::string FieldAt(const RawBytes& record, size_t offset) {
    const uint8_t* field = &record.bytes.at(offset + 31) - 31;
    const std::string text(reinterpret_cast<const char*>(field), 31);
    const std::string kept = text.substr(0, text.find('\0'));
    EXPECT_EQ(Differences(field, RawBytes(32).Text(0, kept)), "");
    return kept;
}

// Runs a query with one record, which must stay unchanged when the query fails.
template <typename Item>
bool Ask(BOOL WINAPI (*query)(const char*, DWORD, Item*), const char* agent, const std::string& key, RawBytes& record) {
    const std::string field = key.size() < 32 ? key + '\0' : key;
    record.U8(0, 0xAB, record.bytes.size()).Text(0, field);
    const RawBytes before = record;
    const BOOL result = query(agent, 1, reinterpret_cast<Item*>(record.bytes.data()));
    EXPECT_EQ(memcmp(record.bytes.data(), before.bytes.data(), 32), 0) << "the key is the caller's";
    if (result == FALSE) {
        EXPECT_EQ(Differences(record.bytes.data(), before), "");
    }
    return result != FALSE;
}

// The two queries' answers in words, or "refused".
inline std::string Option(const std::string& key, const char* agent = kAgent) {
    RawBytes record(64);
    return Ask(DDProc_OptionRequest, agent, key, record) ? FieldAt(record, 32) : "refused";
}

// "size orientation type weight color hole level".
inline std::string Tray(const std::string& key, const char* agent = kAgent) {
    RawBytes record(228);
    if (!Ask(DDProc_InputTrayStatus, agent, key, record))
        return "refused";
    std::string answer;
    for (size_t offset = 32; offset < 224; offset += 32)
        answer += FieldAt(record, offset) + " ";
    return answer + std::to_string(NumberAt<uint32_t>(record.bytes.data(), 224));
}

struct Closing {
    void operator()(BdcDeviceContext* context) const { BdcCloseDevice(context); }
};
using Context = std::unique_ptr<BdcDeviceContext, Closing>;

// A context with all that the library reports.
inline Context Filled() {
    Context context(BdcOpenDevice(kAgent));
    if (context != nullptr)
        BdcFillDevice(*context);
    return context;
}

#endif
