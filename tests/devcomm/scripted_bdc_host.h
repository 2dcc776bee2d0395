// Host only: the scripted library registered with the platform, and the module's questions to its device.
#ifndef DEVCOMM_SCRIPTED_BDC_HOST_H
#define DEVCOMM_SCRIPTED_BDC_HOST_H

#include "devcomm/bdc_device.h"
#include "devcomm/bdc_questions.h"
#include "devcomm/device_status.h"
#include "devcomm/scripted_bdc.h"
#include "platform_control.h"

#include <memory>

constexpr char kAgent[] = "10.0.0.9";
constexpr wchar_t kBareName[] = L"TELMAR_B.DLL";
constexpr size_t kNone = scripted_bdc::kEntryPointCount; // no entry point is missing

inline void Register(const wchar_t* path, size_t missing = kNone) {
    std::vector<platform::Export> exports;
    for (size_t i = 0; i < scripted_bdc::kEntryPointCount; ++i)
        if (i != missing)
            exports.emplace_back(scripted_bdc::kEntryPoints[i].name, scripted_bdc::kEntryPoints[i].function);
    platform::RegisterLibrary(path, exports);
}

inline std::string Option(const std::string& key, const char* agent = kAgent) {
    const auto ask = [](const char* device, DWORD count, void* items) {
        return DDProc_OptionRequest(device, count, static_cast<OptionRequestItem*>(items));
    };
    return AskOption(ask, key, agent);
}

inline std::string Tray(const std::string& key, const char* agent = kAgent) {
    const auto ask = [](const char* device, DWORD count, void* items) {
        return DDProc_InputTrayStatus(device, count, static_cast<InputTrayStatusItem*>(items));
    };
    return AskTray(ask, key, agent);
}

struct Closing {
    void operator()(BdcDeviceContext* context) const { BdcCloseDevice(context); }
};
using Context = std::unique_ptr<BdcDeviceContext, Closing>;

// A context with all that the library tells.
inline Context Filled() {
    Context context(BdcOpenDevice(kAgent));
    if (context != nullptr)
        BdcFillDevice(*context);
    return context;
}

#endif
