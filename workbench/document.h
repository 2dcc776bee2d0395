// What a command answers: one document, written either as JSON or as text, and the failure that ends a
// command.
#ifndef WORKBENCH_DOCUMENT_H
#define WORKBENCH_DOCUMENT_H

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

// Keeps its fields in the order in which they were added. Texts are UTF-8.
using Document = nlohmann::ordered_json;

constexpr int kExitFailed = 1; // something is missing or broken
constexpr int kExitUsage = 2;  // the command line asks for something that doesn't exist

// Ends the program: the message says what is wrong, where, and what to do.
struct Failure : std::runtime_error {
    Failure(int code, const std::string& message) : std::runtime_error(message), exitCode(code) {}
    int exitCode;
};

#endif
