// Asks a printer on a thread of its own, so that the window goes on: options, papers, supplies, overlays,
// profiles.
#ifndef PROPERTY_SHEET_DEVICE_JOB_H
#define PROPERTY_SHEET_DEVICE_JOB_H

#include "sheet_state.h"

#include <atomic>
#include <thread>

// Posted to the page: wParam is the job's number. Progress: lParam is the number of steps that are done.
constexpr UINT kJobProgress = WM_APP + 1;
constexpr UINT kJobEnd = WM_APP + 2;
constexpr int kJobSteps = 5;

class DeviceJob {
public:
    // The family outlives the job; the page may go before it.
    DeviceJob(const FamilyFiles& family, std::string address, HWND page, WPARAM number);
    // Waits for the question that is under way.
    ~DeviceJob();
    DeviceJob(const DeviceJob&) = delete;
    DeviceJob& operator=(const DeviceJob&) = delete;

    // No further question is asked, and nothing posted any more.
    void Cancel() { isCancelled = true; }

    // After the end: what went wrong, or what the printer has told.
    const std::string& Failure() const { return failure; }
    DeviceReport& Report() { return report; }

    const WPARAM number;

private:
    void Run(const FamilyFiles& family, const std::string& address);

    const HWND page;
    std::atomic<bool> isCancelled{false};
    std::string failure; // empty: none
    DeviceReport report;
    std::thread thread; // last: it uses the others
};

#endif
