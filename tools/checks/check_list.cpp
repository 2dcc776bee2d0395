// Reads the list of checks.
#include "checks/check_list.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

std::vector<Check> ReadCheckList(const std::filesystem::path& file) {
    std::ifstream lines(file);
    std::vector<Check> checks;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        Check check = {};
        if (!(words >> check.name >> check.limit >> check.printers >> check.program))
            throw std::runtime_error(file.u8string() + ": not a check: " + line);
        check.printers = check.printers == "-" ? "" : check.printers;
        std::getline(words >> std::ws, check.arguments);
        checks.push_back(check);
    }
    if (checks.empty())
        throw std::runtime_error(file.u8string() + " is missing or empty. Unpack the whole package again.");
    return checks;
}
