// `workbench dialog`: opens one of the model's dialogs on settings of its own, has a script or a person use
// it, and tells what has changed.
#include "paramdata/default_settings.h"
#include "workbench/commands/commands.h"
#include "workbench/lib/dialog_run.h"
#include "workbench/lib/input_file.h"
#include "workbench/lib/output.h"
#include "workbench/lib/profile_file.h"
#include "workbench/lib/settings_fields.h"
#include "workbench/lib/tray_papers.h"

namespace {

// The user-interface module opens the colour dialogs. The module opens that for trays, which its model
// chooses.
constexpr struct DialogRow {
    uint32_t id;
    bool isForTrays;
} kDialogs[] = {
    {122, false}, {123, false}, {124, false}, {125, false},
    {128, false}, {155, true},  {165, true},  {166, true},
};

const DialogRow& FindDialog(const std::string& wanted) {
    std::string choices;
    for (const DialogRow& row : kDialogs) {
        if (wanted == std::to_string(row.id))
            return row;
        choices += (choices.empty() ? "" : ", ") + std::to_string(row.id);
    }
    throw Failure(kExitUsage, "there is no dialog '" + wanted + "'; possible: " + choices);
}

void CheckTrayDialog(const FamilyFiles& family, const DialogRow& row) {
    const uint32_t own = TrayDialogOf(family.table.get());
    if (row.isForTrays && row.id != own)
        throw Failure(kExitFailed, "this model has no dialog " + std::to_string(row.id)
                                       + "; its dialog for trays, by Dlg_MediaType, is "
                                       + (own != 0 ? std::to_string(own) : "none")
                                       + ". Name the folder of another model with --folder");
}

OemDevmode ReadSettings(const std::string& path) {
    const std::string bytes = ReadInputFile(path, "--settings");
    OemDevmode settings;
    if (bytes.size() != sizeof(settings))
        throw Failure(kExitFailed,
                      path + ": " + std::to_string(bytes.size()) + " bytes are no settings record, which has "
                          + std::to_string(sizeof(settings)) + "; name another file with --settings");
    memcpy(&settings, bytes.data(), sizeof(settings));
    return settings;
}

} // namespace

Document UseDialog(const FamilyFiles& family, const DialogOptions& options) {
    const DialogRow& row = FindDialog(options.id);
    CheckTrayDialog(family, row);
    const OemDevmode opening = options.settings ? ReadSettings(*options.settings) : defaultSettings;
    const PrinterProfiles profiles =
        options.profiles ? ReadPrinterProfiles(*options.profiles) : PrinterProfiles{};
    const TrayPapers papersBefore = options.from ? AskPapers(family, *options.from) : UnknownPapers(family);
    DialogScript script = options.script ? ReadDialogScript(*options.script) : DialogScript{};
    const Library templates = OpenTemplates(family);

    OemDevmode settings = opening;
    TrayPapers papers = papersBefore;
    DialogAreas areas(settings, papers.data(), profiles);
    areas.context.changesAllowed = options.isLocked ? 0 : 1;
    areas.context.shortRgbLists = options.isShort ? 1 : 0;
    const DialogEnd end =
        RunDialog({row.id, templates.get(), EXPORT(family, DDProc_DlgProc), row.isForTrays}, areas.context,
                  {script, options.waitsForPerson, options.out.value_or("")});
    Document report;
    report["files"] = FamilyDocument(family);
    report["dialog"] = {{"id", row.id},
                        {"title", end.view.title},
                        {"end", end.code == IDOK ? "OK" : "Cancel"},
                        {"endCode", end.code},
                        {"pageTold", row.isForTrays ? Document(end.isPageTold) : Document()},
                        {"hint", end.view.hint},
                        {"disabled", end.view.disabled}};
    report["actions"] = script.done;
    report["changes"] =
        row.isForTrays ? PaperChanges(papersBefore, papers) : SettingsChanges(opening, settings);
    if (row.isForTrays)
        report["trays"] = PapersDocument(papers);
    report["controls"] = end.view.controls;
    report["entries"] = end.view.entries;
    report["pictures"] = script.pictures;
    return report;
}
