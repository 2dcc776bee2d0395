// The exports that the frame itself answers.
#include "frame/exports.h"

#include "picture/device_capabilities.h"

extern "C" {

void* WINAPI DDProc_FeatureNameItemTable() {
    return nullptr;
}

BOOL WINAPI DDProc_DeviceCapabilities(const DeviceTable* device, const FeatureRecord* features,
                                      const void* reserved, const FeatureSettings* settings, WORD capability,
                                      void* output, DWORD* answer) {
    return AnswerDeviceCapability(device, features, reserved, settings, capability, output, answer);
}
}
