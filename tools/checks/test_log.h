// What the log of a test program says of its tests.
#ifndef CHECKS_TEST_LOG_H
#define CHECKS_TEST_LOG_H

#include <string>
#include <utility>
#include <vector>

struct TestLog {
    int passed = 0;
    std::vector<std::string> failed;
    std::vector<std::pair<std::string, std::string>> skipped; // with the reason
    std::string unfinished;  // the test that was running at the end of the log
    bool isComplete = false; // the program has run all of its tests, each with a result
};

// Reads the output of Google Test. Its report files are no alternative: a program that crashes leaves none,
// and their path is limited to the system's code page.
TestLog ReadTestLog(const std::string& log);

#endif
