// The lines of a text file. Header only, for tools of either build.
#ifndef COMMON_LINES_H
#define COMMON_LINES_H

#include <string_view>
#include <vector>

using Lines = std::vector<std::string_view>;

// The lines of a file, each with the CR before its LF. A file without any LF is split at each CR.
inline Lines SplitLines(std::string_view text) {
    Lines lines;
    const char lineEnd = text.find('\n') == std::string_view::npos ? '\r' : '\n';
    while (!text.empty()) {
        const size_t end = text.find(lineEnd);
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

inline std::string_view WithoutCr(std::string_view line) {
    return line.substr(0, line.size() - (!line.empty() && line.back() == '\r' ? 1 : 0));
}

#endif
