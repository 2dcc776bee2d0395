// `workbench dialog`: opens one of the model's dialogs on settings of its own, has a script or a person use
// it, and tells what has changed.
#include "commands.h"
#include "dialog_run.h"
#include "input_file.h"
#include "output.h"
#include "paramdata/default_settings.h"
#include "profile_file.h"
#include "settings_fields.h"
#include "tray_papers.h"

#include <optional>

namespace {

// The user-interface module opens the colour dialogs. The module opens that for trays, which its model
// chooses.
constexpr struct DialogRow {
    uint32_t id;
    uint32_t trayType; // of the models that have this dialog for trays; 0: of colours
} kDialogs[] = {{122, 0}, {123, 0}, {124, 0}, {125, 0}, {128, 0}, {155, 1}, {165, 2}, {166, 3}};

struct Options {
    std::string id; // UTF-8, as all texts of the command line
    std::optional<std::string> out;
    std::optional<std::string> profiles;
    std::optional<std::string> settings;
    std::optional<std::string> script;
    std::optional<std::string> from;
    bool isShort = false;
    bool isLocked = false;
    bool waitsForPerson = false;
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

// The other dialogs for trays can't be opened: the module takes the model's.
void CheckTrayType(const FamilyFiles& family, const DialogRow& row) {
    const uint32_t type = SwitchValue(family.table.get(), kSwitchDlgMediaType);
    if (row.trayType != 0 && row.trayType != type)
        throw Failure(kExitFailed, "dialog " + std::to_string(row.id) + ": models with Dlg_MediaType TYPE"
                                       + std::to_string(row.trayType) + " have it, this one's is "
                                       + std::to_string(type) + "; name the folder of another with --folder");
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

// What the dialog did: of colours to the settings, of trays to their papers.
void AddChanges(Document& report, const DialogRow& row, const DialogContext& context,
                const OemDevmode& opening, const TrayPapers& papersBefore, const TrayPapers& papers) {
    report["changes"] =
        row.trayType == 0 ? SettingsChanges(opening, *context.settings) : PaperChanges(papersBefore, papers);
    if (row.trayType != 0)
        report["trays"] = PapersDocument(papers);
}

Document Dialog(const FamilyFiles& family, const Options& options) {
    const DialogRow& row = FindDialog(options.id);
    CheckTrayType(family, row);
    const OemDevmode opening = options.settings ? ReadSettings(*options.settings) : defaultSettings;
    const PrinterProfiles profiles =
        options.profiles ? ReadPrinterProfiles(*options.profiles) : PrinterProfiles{};
    const TrayPapers papersBefore = options.from ? AskPapers(family, *options.from) : UnknownPapers();
    DialogScript script = options.script ? ReadDialogScript(*options.script) : DialogScript{};
    const Library templates = OpenTemplates(family);

    OemDevmode settings = opening;
    OemDevmode saveArea = {};
    OemDevmode scratch = {};
    const ProfileLists lists = ListsOf(profiles);
    TrayPapers papers = papersBefore;
    DialogContext context = {};
    context.settings = &settings;
    context.saveArea = &saveArea;
    context.scratch = &scratch;
    context.profiles = &lists;
    context.changesAllowed = options.isLocked ? 0 : 1;
    context.shortRgbLists = options.isShort ? 1 : 0;
    context.trays = papers.data();
    const DialogEnd end =
        RunDialog({row.id, templates.get(), EXPORT(family, DDProc_DlgProc), row.trayType != 0}, context,
                  {script, options.waitsForPerson, options.out.value_or("")});
    Document report;
    report["files"] = FamilyDocument(family);
    report["dialog"] = {{"id", row.id},
                        {"title", end.view.title},
                        {"end", end.code == IDOK ? "OK" : "Cancel"},
                        {"endCode", end.code},
                        {"pageTold", row.trayType != 0 ? Document(end.isPageTold) : Document()},
                        {"hint", end.view.hint},
                        {"disabled", end.view.disabled}};
    report["actions"] = script.done;
    AddChanges(report, row, context, opening, papersBefore, papers);
    report["controls"] = end.view.controls;
    report["entries"] = end.view.entries;
    report["pictures"] = script.pictures;
    return report;
}

} // namespace

Run SetUpDialog(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command
        .add_option("ID", options->id, "The dialog: 122 to 125 or 128 of colours, 155, 165 or 166 of trays")
        ->required();
    command.add_option("--out", options->out, "Saves a picture of what OK or Cancel ends")->type_name("FILE");
    command
        .add_option("--script", options->script,
                    "Runs these actions; a dialog that they leave open is cancelled")
        ->type_name("FILE");
    command.add_flag("--open", options->waitsForPerson, "Leaves the dialog to a person, after the script");
    command.add_option("--profiles", options->profiles, "Colour profiles that the printer holds (JSON)")
        ->type_name("FILE");
    command
        .add_option("--settings", options->settings,
                    "Settings to begin with, a record of 7808 bytes (the model's defaults)")
        ->type_name("FILE");
    command
        .add_option(
            "--from", options->from,
            "Papers in the trays as a printer (IPv4 address or host name) tells them; otherwise unknown")
        ->type_name("ADDRESS");
    command.add_flag("--short-rgb", options->isShort, "Offers device RGB and sRGB as RGB sources only");
    command.add_flag("--locked", options->isLocked, "The user may look, but not change");
    command.footer(ScriptHelp());
    return [options](const FamilyFiles& family) { return Dialog(family, *options); };
}
