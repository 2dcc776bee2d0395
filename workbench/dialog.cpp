// `workbench dialog`: opens one of the model's dialogs on settings of its own, has a script or a person use
// it, and tells what has changed.
#include "commands.h"
#include "dialog_run.h"
#include "input_file.h"
#include "output.h"
#include "paramdata/default_settings.h"
#include "profile_file.h"
#include "settings_fields.h"

#include <optional>

namespace {

constexpr const wchar_t* kTemplatesName = L"TELMAR_S.DLL";

// The dialogs that the user-interface module opens itself.
constexpr uint32_t kDialogs[] = {122, 123, 124, 125, 128};

struct Options {
    std::string id; // UTF-8, as all texts of the command line
    std::optional<std::string> out;
    std::optional<std::string> profiles;
    std::optional<std::string> settings;
    std::optional<std::string> script;
    bool isShort = false;
    bool isLocked = false;
    bool waitsForPerson = false;
};

uint32_t FindDialog(const std::string& wanted) {
    std::string choices;
    for (const uint32_t id : kDialogs) {
        if (wanted == std::to_string(id))
            return id;
        choices += (choices.empty() ? "" : ", ") + std::to_string(id);
    }
    throw Failure(kExitUsage, "there is no dialog '" + wanted + "'; possible: " + choices);
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

using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, Release>;

Library OpenTemplates(const FamilyFiles& family) {
    const auto path = family.modulePath.parent_path() / kTemplatesName;
    Library library(LoadLibraryW(path.c_str()));
    if (library == nullptr)
        throw Failure(kExitFailed, path.u8string() + ": the dialog templates can't be loaded ("
                                       + ErrorText(GetLastError()) + "); put the file there");
    return library;
}

Document Dialog(const FamilyFiles& family, const Options& options) {
    const uint32_t id = FindDialog(options.id);
    const OemDevmode opening = options.settings ? ReadSettings(*options.settings) : defaultSettings;
    const PrinterProfiles profiles =
        options.profiles ? ReadPrinterProfiles(*options.profiles) : PrinterProfiles{};
    DialogScript script = options.script ? ReadDialogScript(*options.script) : DialogScript{};
    const Library templates = OpenTemplates(family);

    OemDevmode settings = opening;
    OemDevmode saveArea = {};
    OemDevmode scratch = {};
    const ProfileLists lists = ListsOf(profiles);
    DialogContext context = {};
    context.settings = &settings;
    context.saveArea = &saveArea;
    context.scratch = &scratch;
    context.profiles = &lists;
    context.changesAllowed = options.isLocked ? 0 : 1;
    context.shortRgbLists = options.isShort ? 1 : 0;
    const DialogEnd end = RunDialog({id, templates.get(), EXPORT(family, DDProc_DlgProc)}, context,
                                    {script, options.waitsForPerson, options.out.value_or("")});
    return {
        {"files", FamilyDocument(family)},
        {"dialog",
         {{"id", id},
          {"title", end.view.title},
          {"end", end.code == IDOK ? "OK" : "Cancel"},
          {"endCode", end.code},
          {"hint", end.view.hint},
          {"disabled", end.view.disabled}}},
        {"actions", script.done},
        {"changes", SettingsChanges(opening, settings)},
        {"controls", end.view.controls},
        {"entries", end.view.entries},
        {"pictures", script.pictures},
    };
}

} // namespace

Run SetUpDialog(CLI::App& command) {
    const auto options = std::make_shared<Options>();
    command.add_option("ID", options->id, "The dialog: 122, 123, 124, 125 or 128")->required();
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
    command.add_flag("--short-rgb", options->isShort, "Offers device RGB and sRGB as RGB sources only");
    command.add_flag("--locked", options->isLocked, "The user may look, but not change");
    command.footer(ScriptHelp());
    return [options](const FamilyFiles& family) { return Dialog(family, *options); };
}
