// `workbench run`: the property sheet as a user of the driver sees it. Its settings are kept between runs.
#include "workbench/commands/commands.h"
#include "workbench/lib/model_name.h"
#include "workbench/lib/output.h"
#include "workbench/property_sheet/sheet_window.h"

Document RunSheet(const FamilyFiles& family, const std::string& file) {
    const Library templates = OpenTemplates(family);
    SheetState state(family, templates.get());
    state.file = file.empty() ? StateFile() : std::filesystem::u8path(file);
    if (const std::string warning = LoadState(state); !warning.empty())
        ShowWarning(warning, ModelName(family));
    SheetWindow sheet(state);
    while (sheet.HandleMessages()) {}
    SavePlace(state, sheet.Place());
    return {{"settings", SavingDocument(state)}};
}
