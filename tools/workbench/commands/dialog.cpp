// `workbench dialog`: opens one of the model's dialogs, lets a script or a person use it, and reports which
// settings or trays have changed.
#include "common/choices.h"
#include "workbench/commands/commands.h"
#include "workbench/lib/dialog_run.h"
#include "workbench/lib/files.h"
#include "workbench/lib/profile_file.h"
#include "workbench/lib/settings_fields.h"
#include "workbench/lib/tray_papers.h"

namespace {

ModelDialog FindDialog(const FamilyFiles& family, const std::string& wanted) {
    const auto number = [](const ModelDialog& dialog) { return std::to_string(dialog.id); };
    const std::vector<ModelDialog> dialogs = AllDialogs();
    for (const ModelDialog& dialog : dialogs) {
        if (number(dialog) != wanted)
            continue;
        const uint32_t own = TrayDialogOf(*family.table).id;
        if (dialog.isForTrays && dialog.id != own)
            throw Failure(kExitFailed, "this model has no dialog " + wanted
                                           + "; its dialog for trays, by Dlg_MediaType, is "
                                           + (own != 0 ? std::to_string(own) : "none")
                                           + ". Specify the folder of another model with --folder");
        return dialog;
    }
    throw Failure(kExitUsage, "there is no dialog '" + wanted + "'; " + Choices(dialogs, number));
}

OemDevmode ReadSettings(const std::string& path) {
    const std::string bytes = ReadInputFile(path, "--settings");
    OemDevmode settings;
    if (bytes.size() != sizeof(settings))
        throw Failure(kExitFailed, path + ": " + std::to_string(bytes.size())
                                       + " bytes; a settings record has " + std::to_string(sizeof(settings))
                                       + "; specify another file with --settings");
    memcpy(&settings, bytes.data(), sizeof(settings));
    return settings;
}

} // namespace

Document UseDialog(const FamilyFiles& family, const DialogOptions& options) {
    const ModelDialog dialog = FindDialog(family, options.id);
    const OemDevmode settingsBefore = options.settings ? ReadSettings(*options.settings) : defaultSettings;
    const PrinterProfiles profiles =
        options.profiles ? ReadPrinterProfiles(*options.profiles) : PrinterProfiles{};
    const TrayPapers papersBefore = options.from ? AskPapers(family, *options.from) : UnknownPapers(family);
    DialogScript script = options.script ? ReadDialogScript(*options.script) : DialogScript{};
    const Library templates = OpenTemplates(family);

    OemDevmode settings = settingsBefore;
    TrayPapers papers = papersBefore;
    DialogAreas areas(settings, papers.data(), profiles);
    areas.context.changesAllowed = options.isLocked ? 0 : 1;
    areas.context.shortRgbLists = options.isShort ? 1 : 0;
    const DialogEnd end = RunDialog(family, templates.get(), dialog, areas.context,
                                    {script, options.waitsForPerson, options.out.value_or("")});
    Document report;
    report["files"] = FamilyDocument(family);
    report["dialog"] = {{"id", dialog.id},
                        {"title", end.view.title},
                        {"end", end.code == IDOK ? "OK" : "Cancel"},
                        {"endCode", end.code},
                        {"pageTold", dialog.isForTrays ? Document(end.isPageNotified) : Document()},
                        {"hint", end.view.hint},
                        {"disabled", end.view.disabled}};
    report["actions"] = script.done;
    report["changes"] =
        dialog.isForTrays ? PaperChanges(papersBefore, papers) : SettingsChanges(settingsBefore, settings);
    if (dialog.isForTrays)
        report["trays"] = PapersDocument(papers);
    report["controls"] = end.view.controls;
    report["entries"] = end.view.entries;
    report["pictures"] = script.pictures;
    return report;
}
