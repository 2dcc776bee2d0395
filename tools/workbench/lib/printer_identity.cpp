// Asks a device what it is, and compares that with what the driver takes it for.
#include "workbench/lib/printer_identity.h"

#include "workbench/lib/printer_text_ids.h"
#include "workbench/lib/snmp_objects.h"
#include "workbench/lib/snmp_probe.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr size_t kTextCount = std::size(kModelObjects);

constexpr const char* kSupplyDescription = ".1.3.6.1.2.1.43.11.1.1.6"; // prtMarkerSuppliesDescription

// Words of supplies in lower case, and the key of the supply; none for those of which the module has no
// level.
constexpr struct {
    const char* word;
    const char* key;
} kSupplyWords[] = {
    {"cyan", "Consumable2"},
    {"magenta", "Consumable3"},
    {"yellow", "Consumable4"},
    {"gelb", "Consumable4"},
    {"black", "Consumable5"},
    {"schwarz", "Consumable5"},
    {"waste", "Consumable11"},
    {"resttoner", "Consumable11"},
    {"drum", ""},
    {"photoconductor", ""},
    {"trommel", ""},
    {"fuser", ""},
    {"transfer", ""},
    {"staple", ""},
    {"maintenance", ""},
};

std::string LowerCase(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// Whether the text has the model's name, not as part of a longer one such as R8800.
bool NamesModel(const std::string& text) {
    const std::string name = kModelName;
    for (size_t at = text.find(name); at != std::string::npos; at = text.find(name, at + 1))
        if (const size_t end = at + name.size();
            end == text.size() || std::isalnum(static_cast<unsigned char>(text[end])) == 0)
            return true;
    return false;
}

struct DescribedSupply {
    size_t position; // in the module's list
    std::string oid;
};

// The supplies whose level the module reads.
std::vector<DescribedSupply> DescribedSupplies(const FamilyFiles& family) {
    std::vector<DescribedSupply> described;
    const MrkSupItem* items = EXPORT(family, GET_MrkSupItemList)();
    for (size_t i = 0; items[i].name[0] != 0; ++i)
        if (items[i].suffix[0] != 0)
            described.push_back({i, kSupplyDescription + FieldText(items[i].suffix)});
    return described;
}

} // namespace

bool IsOtherSupply(const char* key, const std::string& description) {
    const std::string text = LowerCase(description);
    bool isOther = false;
    for (const auto& row : kSupplyWords) {
        const bool isNamed = text.find(row.word) != std::string::npos;
        if (isNamed && SameText(row.key, key))
            return false;
        isOther = isOther || isNamed;
    }
    return isOther;
}

OwnModel ModelIn(const std::vector<std::string>& texts) {
    OwnModel model;
    for (const std::string& text : texts) {
        model.isModel = model.isModel || NamesModel(text);
        if (model.name.empty())
            model.name = text;
    }
    return model;
}

PrinterIdentity AskIdentity(const Printer& printer) {
    std::vector<std::string> oids(std::begin(kModelObjects), std::end(kModelObjects));
    const std::vector<DescribedSupply> described = DescribedSupplies(printer.family);
    for (const DescribedSupply& supply : described)
        oids.push_back(supply.oid);
    uint32_t address = 0;
    FindHost(printer.agent, address);
    const ObjectValues values = ReadObjects(address, oids);

    std::vector<std::string> texts;
    bool areAnswered = true;
    for (size_t i = 0; i < kTextCount; ++i) {
        texts.push_back(values[i].text);
        areAnswered = areAnswered && values[i].isAnswered;
    }
    PrinterIdentity identity;
    static_cast<OwnModel&>(identity) = ModelIn(texts);
    identity.isNameAnswered = areAnswered || identity.isModel;
    const std::vector<std::string> keys = SupplyNames(printer.family);
    identity.otherSupplies.resize(keys.size());
    for (size_t i = 0; i < described.size(); ++i) {
        const std::string& text = values[kTextCount + i].text;
        const size_t at = described[i].position;
        if (IsOtherSupply(keys[at].c_str(), text))
            identity.otherSupplies[at] = text;
    }
    return identity;
}

std::string IdentityWarning(const PrinterIdentity& identity, LANGID language) {
    if (identity.isModel)
        return {};
    return TextIn(language,
                  !identity.isNameAnswered ? PRINTER_TEXT_NAME_NOT_ANSWERED
                  : identity.name.empty()  ? PRINTER_TEXT_NO_OWN_NAME
                                           : PRINTER_TEXT_CALLS_ITSELF,
                  {identity.name, kModelName});
}
