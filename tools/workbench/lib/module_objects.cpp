// Collects the objects of the module's tables.
#include "workbench/lib/module_objects.h"

#include "workbench/lib/option_words.h"
#include "workbench/lib/snmp_probe.h"
#include "workbench/lib/supply_words.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

constexpr const char* kFirstRow = ".1";

void AddObject(std::vector<ModuleObject>& objects, const std::string& text, Wanted wanted,
               const std::string& use, const std::string& usedFor) {
    const ObjectId oid = OidOf(text);
    const bool isKnown = std::any_of(objects.begin(), objects.end(),
                                     [&](const ModuleObject& object) { return object.oid == oid; });
    if (!oid.empty() && !isKnown)
        objects.push_back({oid, wanted, use, usedFor});
}

Wanted WantedFor(int32_t comparison) {
    return comparison == TELMAR_COMPARE_NUMBER ? Wanted::kNumber
           : comparison == TELMAR_COMPARE_TEXT ? Wanted::kText
           : comparison == TELMAR_COMPARE_OID  ? Wanted::kObjectId
                                               : Wanted::kExistence;
}

void AddOptions(const OptionReqInfo& table, std::vector<ModuleObject>& objects) {
    for (int32_t i = 0; i < table.count; ++i)
        for (int32_t j = 0; j < table.options[i].valueCount; ++j) {
            const OptionValueRecord& value = table.options[i].values[j];
            if (value.oid[0] != 0)
                AddObject(objects, FieldText(value.oid) + FieldText(value.suffix),
                          WantedFor(value.comparison), "option " + FieldText(table.options[i].key),
                          OptionName(table.options[i].key));
        }
}

void AddSupplies(const MrkSupReqInfo& table, std::vector<ModuleObject>& objects) {
    for (int32_t i = 0; i < table.count; ++i) {
        const MrkSupItem& item = table.items[i];
        if (item.suffix[0] == 0)
            continue;
        const std::string name = SupplyName(item.name);
        for (const std::string& column : {FieldText(table.capacityOid), FieldText(table.levelOid)})
            AddObject(objects, column + FieldText(item.suffix), Wanted::kNumber,
                      "supply " + FieldText(item.name), name.empty() ? FieldText(item.name) : name);
    }
}

template <typename Table>
void AddStored(const Table& table, const char* use, const char* usedFor, std::vector<ModuleObject>& objects) {
    AddObject(objects, FieldText(table.firstOid) + kFirstRow, Wanted::kText, use, usedFor);
    AddObject(objects, FieldText(table.secondOid) + kFirstRow, Wanted::kText, use, usedFor);
    AddObject(objects, FieldText(table.storageCodeOid) + kFirstRow, Wanted::kNumber, use, usedFor);
    for (const SelectorRecord& selector : table.selectors)
        AddObject(objects, FieldText(selector.oid) + kFirstRow, Wanted::kNumber, use, usedFor);
}

} // namespace

std::vector<ModuleObject> ModuleObjects(const FamilyFiles& family) {
    std::vector<ModuleObject> objects;
    AddObject(objects, kAgentObject, Wanted::kExistence, "access", "reaching the printer");
    const ModelCheckInfo& check = *EXPORT(family, MIB_ModelCheckInfo)();
    if (check.enabled != 0)
        AddObject(objects, FieldText(check.oid), WantedFor(check.comparison), "model",
                  "recognising the model");
    AddOptions(*EXPORT(family, MIB_OptionReqInfo)(), objects);
    AddSupplies(*EXPORT(family, MIB_MrkSupReqInfo)(), objects);
    AddStored(*EXPORT(family, MIB_OvlReqInfo)(), "overlays", "overlays", objects);
    AddStored(*EXPORT(family, MIB_CMProfReqInfo)(), "profiles", "colour profiles", objects);
    return objects;
}
