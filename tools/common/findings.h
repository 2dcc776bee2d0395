// What a reader of people's files finds wrong, and where.
#ifndef COMMON_FINDINGS_H
#define COMMON_FINDINGS_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Where something stands: line and column from 1 of a text, column 0: the line as a whole; line 0: the byte
// offset in a binary file.
struct Place {
    uint64_t line = 0;
    uint64_t column = 0;
};

inline Place AtOffset(uint64_t offset) {
    return {0, offset};
}
inline Place AtLine(uint64_t line) {
    return {line, 0};
}

// "3:7", "3" or "0x2C"
std::string PlaceText(const Place& place);

struct Finding {
    Place place;
    bool isNote; // something that is lost or left out, but no fault
    std::string message;
};

// "PLACE: MESSAGE" or "PLACE: note: MESSAGE"
std::string FindingText(const Finding& finding);

struct Findings {
    std::vector<Finding> list;

    void Error(Place place, std::string message) { list.push_back({place, false, std::move(message)}); }
    void Note(Place place, std::string message) { list.push_back({place, true, std::move(message)}); }
    bool HasErrors() const;
    void Sort(); // in the order of their places
};

#endif
