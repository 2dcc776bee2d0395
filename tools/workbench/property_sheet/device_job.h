// Queries a printer on a thread of its own, so that the window stays responsive: options, papers,
// consumables, overlays, profiles. The thread makes one short query after the other and looks between them
// whether it is cancelled.
#ifndef WORKBENCH_PROPERTY_SHEET_DEVICE_JOB_H
#define WORKBENCH_PROPERTY_SHEET_DEVICE_JOB_H

#include "workbench/lib/running_jobs.h"
#include "workbench/property_sheet/sheet_state.h"

// Posted to the page; wParam is the job's number. With kJobProgress lParam says how far the job is.
constexpr UINT kJobProgress = WM_APP + 1;
constexpr UINT kJobEnd = WM_APP + 2;

struct JobProgress {
    uint16_t question; // counted from 1; 0: the printer is looked for
    uint16_t total;
    uint16_t asked; // text of what is asked
};
JobProgress ProgressOf(LPARAM posted);

class DeviceJob {
public:
    // Neither the files nor the page need outlive the job: the thread loads the module for itself. Throws
    // when no thread can be created.
    DeviceJob(const FamilyFiles& family, const std::string& address, HWND page, WPARAM number);
    // Cancels the job. Does not wait: the thread ends after its current query.
    ~DeviceJob();
    DeviceJob(const DeviceJob&) = delete;
    DeviceJob& operator=(const DeviceJob&) = delete;

    // After the end: why the query failed, or else its results.
    const std::optional<PrinterFailure>& Failure() const;
    DeviceReport& Report();

    const WPARAM number;

private:
    struct Work;
    std::shared_ptr<Work> work; // shared with the thread
};

#endif
