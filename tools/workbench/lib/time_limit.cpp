// Runs work on detached threads.
#include "workbench/lib/time_limit.h"

#include "workbench/lib/running_jobs.h"
#include "workbench/lib/stopwatch.h"

#include <future>
#include <memory>

bool EndsWithin(double limit, std::function<void()> work, const std::function<void()>& meanwhile) {
    constexpr std::chrono::milliseconds kMeanwhile(200);
    const auto end = std::make_shared<std::promise<void>>();
    const std::future<void> ended = end->get_future();
    StartJob([end, work = std::move(work)]() mutable {
        work();
        work = nullptr; // releases what it shares
        end->set_value();
    });
    const int64_t start = CounterNow();
    while (ended.wait_for(kMeanwhile) != std::future_status::ready) {
        if (MillisecondsSince(start) > limit)
            return false;
        meanwhile();
    }
    return true;
}
