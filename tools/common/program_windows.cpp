// Windows has UTF-16 command lines, a code page for what is written to a console, and line ends of two bytes.
#include "common/program.h"

#include "common/wide_text.h"

#include <iostream>
#include <shellapi.h>
#include <sstream>
#include <vector>

namespace {

// Passes each text that is flushed to a standard handle: to a console as UTF-16, to anything else as it is.
class StandardOutput : public std::stringbuf {
public:
    explicit StandardOutput(DWORD which) : handle(GetStdHandle(which)) {}

protected:
    int sync() override {
        std::string text = str();
        str({});
        DWORD mode, written;
        if (GetConsoleMode(handle, &mode)) {
            const std::wstring wide = WideText(text);
            return WriteConsoleW(handle, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr)
                       ? 0
                       : -1;
        }
        for (; !text.empty(); text.erase(0, written)) {
            if (!WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr))
                return -1;
        }
        return 0;
    }

private:
    const HANDLE handle;
};

} // namespace

void StartProgram(int& argc, char**& argv) {
    // All are needed until the process ends.
    static std::vector<std::string> arguments;
    static std::vector<char*> pointers;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &argc);
    arguments.reserve(static_cast<size_t>(argc));
    pointers.reserve(static_cast<size_t>(argc) + 1);
    for (int i = 0; i < argc; ++i)
        arguments.push_back(Utf8FromWide(wide[i]));
    LocalFree(wide);
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    argv = pointers.data();
    std::cout.rdbuf(new StandardOutput(STD_OUTPUT_HANDLE));
    std::cerr.rdbuf(new StandardOutput(STD_ERROR_HANDLE));
}
