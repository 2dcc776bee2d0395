// Queries a printer on a thread of its own, so that the window stays responsive: options, papers,
// consumables, overlays, profiles.
#ifndef WORKBENCH_PROPERTY_SHEET_DEVICE_JOB_H
#define WORKBENCH_PROPERTY_SHEET_DEVICE_JOB_H

#include "workbench/property_sheet/sheet_state.h"

#include <atomic>
#include <thread>

// Posted to the page; wParam is the job's number. With kJobProgress lParam is the number of completed steps.
constexpr UINT kJobProgress = WM_APP + 1;
constexpr UINT kJobEnd = WM_APP + 2;

constexpr int kJobSteps = 5;
const char* StepName(int step); // as shown to the user

class DeviceJob {
public:
    // The family must outlive the job; the page need not. Throws when no thread can be created.
    DeviceJob(const FamilyFiles& family, std::string address, HWND page, WPARAM number);
    // Waits until the current query ends.
    ~DeviceJob();
    DeviceJob(const DeviceJob&) = delete;
    DeviceJob& operator=(const DeviceJob&) = delete;

    // No further query is made, and no further message posted.
    void Cancel() { isCancelled = true; }
    bool HasEnded() const { return hasEnded; }

    // After the end: why the query failed, or else its results.
    const std::string& Error() const { return error; }
    DeviceReport& Report() { return report; }

    const WPARAM number;

private:
    void Run(const FamilyFiles& family);
    bool RunStep(const FamilyFiles& family, int step);

    const HWND page;
    std::atomic<bool> isCancelled{false};
    std::atomic<bool> hasEnded{false};
    std::string error; // empty: none
    DeviceReport report;
    std::thread thread; // last, since it uses the others
};

#endif
