// The progress of a command: a line on the console, which the next one overwrites.
#ifndef WORKBENCH_LIB_PROGRESS_LINE_H
#define WORKBENCH_LIB_PROGRESS_LINE_H

#include <string>

class ProgressLine {
public:
    ProgressLine();
    ~ProgressLine(); // clears the line
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    // Does nothing without a console.
    void Show(const std::string& text);

private:
    bool isShown;
    std::string shown;
};

#endif
