// `workbench report`: a web page that shows the model, and what differs from another one. The other model is
// gathered by another process, since the module's tables can be filled only once in a process.
#include "workbench/commands/commands.h"
#include "workbench/lib/files.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/text.h"
#include "workbench/report/contents.h"
#include "workbench/report/page.h"

#include <process.h>

namespace {

constexpr const char* kPageName = "report.html";
constexpr const char* kOutOption = "--out";

// A file that is removed at the end.
struct TemporaryFile {
    explicit TemporaryFile(std::filesystem::path where) : path(std::move(where)) {}
    ~TemporaryFile() {
        std::error_code error;
        std::filesystem::remove(path, error);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::filesystem::path path;
};

// As a program's argument. Paths contain no quotation marks; a backslash before the last one would count as
// escaping it.
std::wstring Quoted(std::wstring path) {
    while (!path.empty() && path.back() == L'\\')
        path.pop_back();
    return L"\"" + path + L"\"";
}

// Runs the program for the other model. It writes its own messages.
Document GatherOther(const ReportOptions& options, const std::filesystem::path& folder) {
    const TemporaryFile file(folder / "other_model.json");
    std::wstring program(32768, L'\0'); // the longest path of Windows
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    const std::wstring name = Quoted(program);
    const std::wstring model = Quoted(Wide(*options.against));
    const std::wstring contents = Quoted(file.path.wstring());
    const std::wstring dialogs = Quoted(Wide(options.againstDialogs.value_or("")));
    const wchar_t* arguments[] = {name.c_str(),  L"report",       L"--folder",
                                  model.c_str(), L"--contents",   contents.c_str(),
                                  L"--dialogs",  dialogs.c_str(), nullptr};
    if (!options.againstDialogs)
        arguments[6] = nullptr;
    const intptr_t exitCode = _wspawnv(_P_WAIT, program.c_str(), arguments);
    if (exitCode != 0)
        throw Failure(kExitFailed,
                      *options.against
                          + ": the model to compare with cannot be gathered; see the message above");
    const std::string path = file.path.u8string();
    return ParseJson(ReadTextFile(path, kOutOption), path);
}

Document ReadFindings(const std::string& path) {
    Document findings = ParseJson(ReadTextFile(path, "--findings"), path);
    if (!findings.IsList())
        throw Failure(kExitFailed, path + ": not a list of findings; write it with 'prmc check --json'");
    return findings;
}

} // namespace

// What can be refused is read first, since gathering the contents takes seconds.
Document MakeReport(const FamilyFiles& family, const ReportOptions& options) {
    if (!options.out && !options.contents)
        throw Failure(kExitUsage, "nothing to write; possible: --out DIR, --contents FILE");
    Document result = {{"files", FamilyDocument(family)}};
    PageContents page;
    std::filesystem::path folder;
    if (options.out)
        folder = MakeFolder(*options.out, kOutOption);
    if (options.findings)
        page.findings = ReadFindings(*options.findings);
    const Document dialogs = options.dialogs ? ReadDialogs(*options.dialogs) : Document::MakeList();
    if (options.out && options.against)
        page.other = GatherOther(options, folder);
    page.model = GatherContents(family, dialogs);
    if (options.contents) {
        WriteOutputFile(std::filesystem::u8path(*options.contents), JsonForm(page.model), "--contents");
        result["contents"] = {{"path", *options.contents}};
    }
    if (options.out) {
        const std::string text = MakePage(page);
        WriteOutputFile(folder / kPageName, text, kOutOption);
        result["report"] = {{"path", (folder / kPageName).u8string()}, {"bytes", text.size()}};
    }
    return result;
}
