// The exports that the frame itself answers, and those that have no answer yet.
#include "frame/exports.h"

#include "picture/device_capabilities.h"

extern "C" {

void WINAPI MIB_FreeOverlayInfo(void* block) {
    if (block != nullptr)
        LocalFree(block);
}

void* WINAPI DDProc_FeatureNameItemTable() {
    return nullptr;
}

BOOL WINAPI DDProc_DeviceCapabilities(const DeviceTable* device, const FeatureRecord* features,
                                      const void* reserved, const FeatureSettings* settings, WORD capability,
                                      void* output, DWORD* answer) {
    return AnswerDeviceCapability(device, features, reserved, settings, capability, output, answer);
}

// Not built yet: FALSE, 0 or null, whatever the arguments. The README lists them.
#define NO_ANSWER(name)                                                                                      \
    INT_PTR WINAPI name() {                                                                                  \
        return 0;                                                                                            \
    }

NO_ANSWER(DrawPrinterView)
NO_ANSWER(DrawLogoImage)
NO_ANSWER(DrawLogoVersionTab)
NO_ANSWER(DDProc_DlgProc)
#undef NO_ANSWER
}
