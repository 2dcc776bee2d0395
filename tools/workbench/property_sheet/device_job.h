// Asks a printer on a thread of its own, so that the window goes on: options, papers, consumables, overlays,
// profiles.
#ifndef WORKBENCH_PROPERTY_SHEET_DEVICE_JOB_H
#define WORKBENCH_PROPERTY_SHEET_DEVICE_JOB_H

#include "workbench/property_sheet/sheet_state.h"

#include <atomic>
#include <thread>

// Posted to the page: wParam is the job's number. Progress: lParam is the number of steps that are done.
constexpr UINT kJobProgress = WM_APP + 1;
constexpr UINT kJobEnd = WM_APP + 2;

constexpr int kJobSteps = 5;
const char* StepName(int step); // for a person

class DeviceJob {
public:
    // The family outlives the job; the page may go before it. Throws when there is no thread to be had.
    DeviceJob(const FamilyFiles& family, std::string address, HWND page, WPARAM number);
    // Waits for the question that is under way.
    ~DeviceJob();
    DeviceJob(const DeviceJob&) = delete;
    DeviceJob& operator=(const DeviceJob&) = delete;

    // No further question is asked, and nothing posted any more.
    void Cancel() { isCancelled = true; }
    bool HasEnded() const { return hasEnded; }

    // After the end: why the printer has told nothing, or else what it has told.
    const std::string& Trouble() const { return trouble; }
    DeviceReport& Report() { return report; }

    const WPARAM number;

private:
    void Run(const FamilyFiles& family);
    bool TakeStep(const FamilyFiles& family, int step);

    const HWND page;
    std::atomic<bool> isCancelled{false};
    std::atomic<bool> hasEnded{false};
    std::string trouble; // empty: none
    DeviceReport report;
    std::thread thread; // last: it uses the others
};

#endif
