// The workbench as a process: what it writes, where to, and its exit codes. Expected facts are those of the
// shipped model file. The test's own folders lie beside the test program and are removed at the end.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <windows.h>

namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

fs::path ProgramFolder() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

// A folder with copies of some of the driver's files.
struct Folder {
    explicit Folder(const wchar_t* name) : path(ProgramFolder() / name) {
        fs::remove_all(path);
        fs::create_directory(path);
    }
    ~Folder() { fs::remove_all(path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    void Copy(const char* from, const char* to) const { fs::copy_file(ProgramFolder() / from, path / to); }
    void Copy(const char* name) const { Copy(name, name); }

    fs::path path;
};

std::string Contents(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

HANDLE CreateInheritable(const fs::path& path) {
    SECURITY_ATTRIBUTES inheritable = {sizeof(inheritable), nullptr, TRUE};
    return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inheritable, CREATE_ALWAYS, 0, nullptr);
}

struct Result {
    DWORD exitCode;
    std::string output;
    std::string errors;
};

Result RunWorkbench(std::wstring arguments) {
    const Folder redirected(L"workbench_output");
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = CreateInheritable(redirected.path / "out");
    startup.hStdError = CreateInheritable(redirected.path / "err");
    PROCESS_INFORMATION process = {};
    arguments.insert(0, L"workbench ");
    Result result = {~0u, "", ""};
    if (CreateProcessW((ProgramFolder() / "workbench.exe").c_str(), arguments.data(), nullptr, nullptr, TRUE,
                       0, nullptr, nullptr, &startup, &process)) {
        WaitForSingleObject(process.hProcess, INFINITE);
        GetExitCodeProcess(process.hProcess, &result.exitCode);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    CloseHandle(startup.hStdOutput);
    CloseHandle(startup.hStdError);
    result.output = Contents(redirected.path / "out");
    result.errors = Contents(redirected.path / "err");
    return result;
}

// What a command that must succeed writes as JSON.
Json RunForJson(const std::wstring& arguments) {
    const Result result = RunWorkbench(arguments + L" --json");
    EXPECT_EQ(result.exitCode, 0u) << result.errors;
    return Json::parse(result.output, nullptr, false);
}

// One field of every row of a table.
Json Pick(const Json& rows, const char* field) {
    Json values = Json::array();
    for (const Json& row : rows)
        values.push_back(row.at(field));
    return values;
}

std::wstring In(const Folder& folder) {
    return L" --folder \"" + folder.path.wstring() + L"\"";
}

TEST(Workbench, DescribesTheModel) {
    const Json model = RunForJson(L"describe");
    EXPECT_EQ(Pick(model["lists"]["InTray"], "value"), Json({7, 257, 258, 259, 260, 261, 1000, 4}));
    EXPECT_EQ(model["lists"]["InTray"][6]["name"], "Large-capacity tray");
    EXPECT_EQ(model["lists"]["MediaTypeList_Tray"][1]["key"], "MediaTypeList_InTray1");
    EXPECT_EQ(model["lists"]["PIFrontCover"][1]["value"], 1002);
    EXPECT_EQ(model["lists"]["MediaWeight"][0]["name"], "60-90 g/m\u00B2");
    EXPECT_EQ(model["lists"]["PaperSize"][1]["length"], 2970);
    EXPECT_EQ(model["lists"]["Resolution"][1]["number"], 1200);
    EXPECT_EQ(model["switches"][11]["value"], 1);     // "ColorSetting", TYPE1
    EXPECT_EQ(model["switches"][35]["value"], "off"); // "Trim"
    EXPECT_EQ(model["switches"][52]["value"], "on");  // "Overlay"
    EXPECT_EQ(model["device"]["pagesPerMinute"], 35);
    EXPECT_EQ(model["device"]["machineEncryption"], "AES");
    EXPECT_EQ(model["ranges"][1], Json({{"name", "UserPaper_Width"}, {"a", 3110}, {"b", 900}}));
    EXPECT_EQ(model["inputSlots"][2]["FCoverTray"], "FCover_Tray1");
    for (const auto& list : model["lists"].items())
        EXPECT_FALSE(list.value().empty()) << list.key() << " is not in the model file";
}

TEST(Workbench, ListsThePaperSourcesThatAreInstalled) {
    std::wstring all = L"capabilities --set OpOutTrayUnit=OpOutTrayUnit1";
    for (const wchar_t* tray : {L"InTray2", L"InTray3", L"InTray4", L"InTray5", L"InTrayLCT"})
        all += std::wstring(L" --set Op") + tray + L"=EnaOp" + tray;
    const Json complete = RunForJson(all);
    EXPECT_EQ(Pick(complete["paperSources"], "bin"), Json({7, 257, 258, 259, 260, 261, 1000, 4}));
    EXPECT_EQ(Pick(complete["answers"], "answer"), Json({8, 8, 1, 1}));

    const Json removed =
        RunForJson(all + L" --set opintray3=DISOPINTRAY3 --set OpOutTrayUnit=DisOpOutTrayUnit");
    EXPECT_EQ(Pick(removed["paperSources"], "bin"), Json({7, 257, 258, 260, 261, 1000, 4}));
    EXPECT_EQ(removed["paperSources"][3]["name"], "Tray 4");
    EXPECT_EQ(Pick(removed["answers"], "answer"), Json({7, 7, 1, 0}));
}

TEST(Workbench, WritesAlignedTextInUtf8) {
    const Result result = RunWorkbench(L"describe");
    EXPECT_NE(result.output.find("\n  Key         Value  Name          Text\n"
                                 "  MW_60_90        0  60-90 g/m\u00B2    60\n"
                                 "  MW_91_120       1  91-120 g/m\u00B2   91\n"),
              std::string::npos);
    EXPECT_EQ(result.output.find('\r'), std::string::npos);
    EXPECT_EQ(result.output.find(" \n"), std::string::npos) << "spaces at the end of a line";
}

TEST(Workbench, OpensAFolderOfAnyName) {
    const Folder folder(L"Dr\u00FCcker \u30D7\u30EA\u30F3\u30BF");
    folder.Copy("TELMAR_D.DLL");
    folder.Copy("TELMAR_D.PRM");
    const Json answer = RunForJson(L"capabilities" + In(folder));
    EXPECT_EQ(answer["files"]["module"], (folder.path / "TELMAR_D.DLL").u8string());
    EXPECT_EQ(answer["answers"][2]["answer"], 1);
}

// Every failure says on the error output what is wrong and what would be right, and writes nothing else.
TEST(Workbench, SaysWhatIsWrong) {
    const Folder empty(L"workbench_empty");
    const Folder moduleOnly(L"workbench_module_only");
    moduleOnly.Copy("TELMAR_D.DLL");
    const Folder damaged(L"workbench_damaged");
    damaged.Copy("TELMAR_D.DLL");
    damaged.Copy("TELMAR_D.DLL", "TELMAR_D.PRM");
    const Folder foreign(L"workbench_foreign");
    foreign.Copy("TELMAR_S.DLL", "TELMAR_D.DLL");
    foreign.Copy("TELMAR_D.PRM");
    const struct {
        std::wstring arguments;
        DWORD exitCode;
        std::vector<const char*> says;
    } cases[] = {
        {L"capabilities --set OpTray3=EnaOpInTray3", 2, {"'OpTray3'", "OpInTray3", "OpOutTrayUnit"}},
        {L"capabilities --set OpInTray3=Yes", 2, {"'Yes'", "EnaOpInTray3", "DisOpInTray3"}},
        {L"capabilities --set OpInTray3", 2, {"FEATURE=ITEM", "'OpInTray3'"}},
        {L"describe --color", 2, {"--color"}},
        {L"", 2, {"--help"}},
        {L"describe" + In(empty), 1, {"workbench_empty", "TELMAR_D.DLL", "--folder"}},
        {L"describe" + In(moduleOnly), 1, {"module_only", "TELMAR_D.PRM", "--folder"}},
        {L"describe" + In(damaged), 1, {"TELMAR_D.PRM", "damaged", "prmc check"}},
        {L"capabilities" + In(foreign), 1, {"TELMAR_D.DLL", "DDProc_DeviceCapabilities"}},
    };
    for (const auto& c : cases) {
        const Result result = RunWorkbench(c.arguments);
        EXPECT_EQ(result.exitCode, c.exitCode) << result.errors;
        EXPECT_EQ(result.output, "");
        for (const char* part : c.says)
            EXPECT_NE(result.errors.find(part), std::string::npos) << part << " in: " << result.errors;
    }
}

} // namespace
