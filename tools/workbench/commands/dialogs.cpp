// `workbench dialogs`: a picture of each of the model's dialogs as it opens, at the resolution of the screen,
// and a list of them for `workbench report`.
#include "workbench/commands/commands.h"
#include "workbench/lib/dialog_run.h"
#include "workbench/lib/files.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/tray_papers.h"

namespace {

int ScreenResolution() {
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

// Every colour dialog works with the lists of any model; of the dialogs for trays a model has at most one.
std::vector<ModelDialog> DialogsOf(const FamilyFiles& family) {
    std::vector<ModelDialog> dialogs;
    for (const ModelDialog& dialog : AllDialogs())
        if (!dialog.isForTrays || dialog.id == TrayDialogOf(*family.table).id)
            dialogs.push_back(dialog);
    return dialogs;
}

// The row of the list, and the controls as the dialog showed them.
struct Pictured {
    Document row;
    Document controls;
};

Pictured PictureDialog(const FamilyFiles& family, HINSTANCE templates, const ModelDialog& dialog, int dpi,
                       const std::filesystem::path& folder) {
    OemDevmode settings = defaultSettings;
    TrayPapers papers = UnknownPapers(family);
    const PrinterProfiles profiles;
    DialogAreas areas(settings, papers.data(), profiles);
    DialogScript script;
    const std::string name = std::to_string(dialog.id) + "-" + std::to_string(dpi) + ".png";
    const DialogEnd end =
        RunDialog(family, templates, dialog, areas.context, {script, false, (folder / name).u8string()});
    const Document& picture = script.pictures.Elements().front();
    return {{{"dialog", dialog.id},
             {"kind", dialog.isForTrays ? "paper sources" : "colours"},
             {"opens", dialog.isForTrays || dialog.id == ColorDialogOf(*family.table).id},
             {"title", end.view.title},
             {"dpi", dpi},
             {"width", picture["width"]},
             {"height", picture["height"]},
             {"file", name}},
            end.view.controls};
}

} // namespace

Document PictureDialogs(const FamilyFiles& family, const std::string& out) {
    const std::filesystem::path folder = MakeFolder(out, "--out");
    const Library templates = OpenTemplates(family);
    const int dpi = ScreenResolution();
    Document rows = Document::MakeList();
    Document list = Document::MakeList(); // the rows with the controls
    for (const ModelDialog& dialog : DialogsOf(family)) {
        Pictured pictured = PictureDialog(family, templates.get(), dialog, dpi, folder);
        rows.Add(pictured.row);
        pictured.row["controls"] = std::move(pictured.controls);
        list.Add(std::move(pictured.row));
    }
    WriteOutputFile(folder / ("dialogs-" + std::to_string(dpi) + ".json"), JsonForm(list, 1), "--out");
    return {{"files", FamilyDocument(family)}, {"dialogs", rows}};
}
