// Finds the lines of Google Test among what the tests print.
#include "checks/test_log.h"

#include <cstdlib>
#include <sstream>

namespace {

// What follows a mark, which other output may precede on the line.
bool TextAfter(const std::string& line, const char* mark, std::string& text) {
    const size_t at = line.find(mark);
    if (at != std::string::npos)
        text = line.substr(at + std::string(mark).size());
    return at != std::string::npos;
}

} // namespace

TestLog ReadTestLog(const std::string& log) {
    TestLog result;
    std::string reason, text;
    bool isReason = false;
    size_t count = 0;
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        line.erase(line.find_last_not_of('\r') + 1);
        // The lists after the last test name tests, too, but then none is running.
        const bool isRunning = !result.unfinished.empty();
        if (TextAfter(line, "[ RUN      ] ", text)) {
            result.unfinished = text;
            reason.clear();
            isReason = false;
        } else if (isRunning && TextAfter(line, "[       OK ] ", text)) {
            ++result.passed;
            result.unfinished.clear();
        } else if (isRunning && TextAfter(line, "[  SKIPPED ] ", text)) {
            result.skipped.emplace_back(result.unfinished, reason);
            result.unfinished.clear();
        } else if (isRunning && TextAfter(line, "[  FAILED  ] ", text)) {
            result.failed.push_back(result.unfinished);
            result.unfinished.clear();
        } else if (TextAfter(line, "[==========] ", text) && text.find(" ran.") != std::string::npos) {
            count = std::strtoul(text.c_str(), nullptr, 10);
        } else if (isReason) {
            reason += (reason.empty() || line.empty() ? "" : " ") + line;
        } else if (isRunning) {
            isReason = TextAfter(line, ": Skipped", text) && text.empty();
        }
    }
    result.isComplete =
        count != 0
        && count == static_cast<size_t>(result.passed) + result.failed.size() + result.skipped.size();
    return result;
}
