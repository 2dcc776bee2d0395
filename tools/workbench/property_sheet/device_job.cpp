// Asks a printer on a thread of its own: see the header.
#include "workbench/property_sheet/device_job.h"

namespace {

// The way that the driver takes.
void AskForOptions(const FamilyFiles& family, DeviceReport& report) {
    DeviceOptions options = AskDeviceOptions(family, report.address);
    report.transport = options.road;
    report.options = std::move(options.answers);
}

// Only the bidirectional library tells of papers.
void AskForPapers(const FamilyFiles& family, DeviceReport& report) {
    if (!TryLibraryRoad(family, report.address).isThisModel)
        return;
    report.papers = AskPapers(family, report.address);
    report.hasPapers = true;
}

void AskForSupplies(const FamilyFiles& family, DeviceReport& report) {
    report.supplies = AskSupplies(family, report.address);
}

void AskForOverlays(const FamilyFiles& family, DeviceReport& report) {
    for (const int32_t storage : {0, 1})
        report.overlays[storage] = AskOverlays(family, report.address, storage);
}

void AskForProfiles(const FamilyFiles& family, DeviceReport& report) {
    report.profiles = AskProfiles(family, report.address);
}

constexpr struct {
    const char* name;
    void (*ask)(const FamilyFiles& family, DeviceReport& report);
} kSteps[kJobSteps] = {
    {"options", AskForOptions},   {"papers", AskForPapers},     {"consumables", AskForSupplies},
    {"overlays", AskForOverlays}, {"profiles", AskForProfiles},
};

} // namespace

const char* StepName(int step) {
    return kSteps[step].name;
}

DeviceJob::DeviceJob(const FamilyFiles& family, std::string address, HWND pageWindow, WPARAM jobNumber)
    : number(jobNumber), page(pageWindow) {
    report.address = std::move(address);
    thread = std::thread([this, &family] { Run(family); });
}

DeviceJob::~DeviceJob() {
    Cancel();
    thread.join();
}

// False when nothing else need be asked: the first answer tells whether the printer can be asked at all.
bool DeviceJob::TakeStep(const FamilyFiles& family, int step) {
    try {
        kSteps[step].ask(family, report);
        return true;
    } catch (const std::exception& error) {
        if (step == 0)
            trouble = error.what();
        else
            report.missing += (report.missing.empty() ? "" : ", ") + std::string(StepName(step));
        return step != 0;
    }
}

void DeviceJob::Run(const FamilyFiles& family) {
    for (int done = 0; done < kJobSteps && !isCancelled && TakeStep(family, done);)
        if (++done; !isCancelled)
            PostMessageW(page, kJobProgress, number, done);
    hasEnded = true;
    if (!isCancelled)
        PostMessageW(page, kJobEnd, number, 0);
}
