// Runs the queries one after the other and reports progress to the page.
#include "workbench/property_sheet/device_job.h"

namespace {

// Over the transport that the driver would use.
void QueryOptions(const FamilyFiles& family, DeviceReport& report) {
    DeviceOptions options = AskDeviceOptions(family, report.address);
    report.transport = options.transport;
    report.options = std::move(options.answers);
}

// Only the bidirectional library reports papers.
void QueryPapers(const FamilyFiles& family, DeviceReport& report) {
    if (!CheckLibraryAccess(family, report.address).isThisModel)
        return;
    report.papers = AskPapers(family, report.address);
    report.hasPapers = true;
}

void QuerySupplies(const FamilyFiles& family, DeviceReport& report) {
    report.supplies = AskSupplies(family, report.address);
}

void QueryOverlays(const FamilyFiles& family, DeviceReport& report) {
    for (const int32_t storage : {0, 1})
        report.overlays[storage] = AskOverlays(family, report.address, storage);
}

void QueryProfiles(const FamilyFiles& family, DeviceReport& report) {
    report.profiles = AskProfiles(family, report.address);
}

constexpr struct {
    const char* name;
    void (*query)(const FamilyFiles& family, DeviceReport& report);
} kSteps[kJobSteps] = {
    {"options", QueryOptions},   {"papers", QueryPapers},     {"consumables", QuerySupplies},
    {"overlays", QueryOverlays}, {"profiles", QueryProfiles},
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

// False when no further query makes sense: without its options the printer cannot be queried at all.
bool DeviceJob::RunStep(const FamilyFiles& family, int step) {
    try {
        kSteps[step].query(family, report);
        return true;
    } catch (const std::exception& failure) {
        if (step == 0)
            error = failure.what();
        else
            report.missing += (report.missing.empty() ? "" : ", ") + std::string(StepName(step));
        return step != 0;
    }
}

void DeviceJob::Run(const FamilyFiles& family) {
    for (int done = 0; done < kJobSteps && !isCancelled && RunStep(family, done);)
        if (++done; !isCancelled)
            PostMessageW(page, kJobProgress, number, done);
    hasEnded = true;
    if (!isCancelled)
        PostMessageW(page, kJobEnd, number, 0);
}
