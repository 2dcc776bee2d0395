// Errors and warnings about an input file, each with its place.
#ifndef COMMON_FINDINGS_H
#define COMMON_FINDINGS_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// A place in a file. Text: line and column from 1, column 0 for the whole line. Binary: line 0, and the byte
// offset as the column.
struct Place {
    uint64_t line = 0;
    uint64_t column = 0;
    size_t file = 0; // position among the files that were read; 0 is the one that was asked for
};

inline Place AtOffset(uint64_t offset) {
    return {0, offset};
}
inline Place AtLine(uint64_t line) {
    return {line, 0};
}

// "3:7", "3" or "0x2C"
std::string PlaceText(const Place& place);

enum class Severity {
    kError,
    kWarning, // something is lost or has no effect, but the file is usable
};

struct Finding {
    Place place;
    Severity severity;
    std::string message;
};

// "PLACE: MESSAGE" or "PLACE: warning: MESSAGE"
std::string FindingText(const Finding& finding);

// "warning: ", or empty for an error
std::string WarningMark(const Finding& finding);

struct Findings {
    std::vector<Finding> list;

    void Error(Place place, std::string message) {
        list.push_back({place, Severity::kError, std::move(message)});
    }
    void Warning(Place place, std::string message) {
        list.push_back({place, Severity::kWarning, std::move(message)});
    }
    bool HasErrors() const;
    void Sort();          // in the order of their files and places
    void RaiseWarnings(); // makes them errors
};

#endif
