// Asks a printer on a thread of its own: see the header.
#include "device_job.h"

namespace {

// Over the road that the driver takes.
void AskOptions(const FamilyFiles& family, const std::string& address, DeviceReport& report) {
    DeviceOptions options = AskDeviceOptions(family, address);
    report.road = options.road;
    report.options = std::move(options.answers);
}

// Only the bidirectional library tells of papers.
void AskPapersIfPossible(const FamilyFiles& family, const std::string& address, DeviceReport& report) {
    report.hasPapers = TryLibraryRoad(family, address).isThisModel;
    if (report.hasPapers)
        report.papers = AskPapers(family, address);
}

void AskForSupplies(const FamilyFiles& family, const std::string& address, DeviceReport& report) {
    report.supplies = AskSupplies(family, address);
}

void AskForOverlays(const FamilyFiles& family, const std::string& address, DeviceReport& report) {
    for (const int32_t storage : {0, 1})
        report.overlays[storage] = AskOverlays(family, address, storage);
}

void AskForProfiles(const FamilyFiles& family, const std::string& address, DeviceReport& report) {
    report.profiles = AskProfiles(family, address);
}

constexpr void (*kSteps[])(const FamilyFiles& family, const std::string& address, DeviceReport& report) = {
    AskOptions, AskPapersIfPossible, AskForSupplies, AskForOverlays, AskForProfiles,
};
static_assert(sizeof(kSteps) / sizeof(kSteps[0]) == kJobSteps);

} // namespace

DeviceJob::DeviceJob(const FamilyFiles& family, std::string address, HWND pageWindow, WPARAM jobNumber)
    : number(jobNumber), page(pageWindow),
      thread([this, &family, asked = std::move(address)] { Run(family, asked); }) {}

DeviceJob::~DeviceJob() {
    Cancel();
    thread.join();
}

void DeviceJob::Run(const FamilyFiles& family, const std::string& address) {
    try {
        for (int done = 0; done < kJobSteps && !isCancelled;) {
            kSteps[done](family, address, report);
            if (!isCancelled)
                PostMessageW(page, kJobProgress, number, ++done);
        }
    } catch (const std::exception& error) {
        failure = error.what();
    }
    if (!isCancelled)
        PostMessageW(page, kJobEnd, number, 0);
}
