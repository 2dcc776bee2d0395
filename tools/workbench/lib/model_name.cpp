// Finds the name of the model.
#include "workbench/lib/model_name.h"

#include "workbench/lib/option_features.h"
#include "workbench/lib/text.h"

std::string ModelName(const FamilyFiles& family) {
    const DeviceTable& table = *family.table;
    if (table.machineInfoCount > 1) // the end record is counted
        return FieldText(table.machineInfo[0].name);
    const OptionFeatures options = ReadOptionFeatures(family);
    for (size_t i = 0; i < options.settings.size(); ++i)
        if (SameText(KeyOf(options.features[i]), "OpMachine") && CurrentItem(options, i) != nullptr)
            return FieldText(CurrentItem(options, i)->display);
    return {};
}
