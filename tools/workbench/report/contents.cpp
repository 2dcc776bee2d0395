// Gathers what the commands show, without the paths of this machine.
#include "workbench/report/contents.h"

#include "workbench/commands/commands.h"
#include "workbench/lib/capability_questions.h"
#include "workbench/lib/files.h"
#include "workbench/lib/json_form.h"
#include "workbench/lib/model_dialogs.h"
#include "workbench/lib/model_name.h"
#include "workbench/lib/option_words.h"
#include "workbench/lib/text.h"
#include "workbench/report/printer_looks.h"
#include "workbench/report/snmp_questions.h"

#include <algorithm>

namespace {

constexpr const char* kFilesSection = "files"; // the section with paths

Document WithoutFiles(const Document& document) {
    Document rest;
    for (const Document::Field& field : document.Fields())
        if (field.name != kFilesSection)
            rest[field.name] = field.value;
    return rest;
}

std::string Joined(const Document& rows, const char* field) {
    std::string text;
    for (const Document& row : rows.Elements())
        AddPart(text, row[field].Text());
    return text;
}

// The answers of the module to this one change of the options.
Document CapabilityRow(const FamilyFiles& family, const char* feature, const ItemRecord& item) {
    const Document document =
        AskCapabilities(family, {std::string(feature) + "=" + FieldText(item.head.key)});
    Document row = {{"choice", OptionName(feature) + ": " + FieldText(item.display)}};
    for (const Document& answer : document["answers"].Elements())
        row[answer["question"].Text()] = answer["answer"];
    row["paperSources"] = Joined(document["paperSources"], "name");
    return row;
}

// A row for each item of an option that alone changes the answers to the default options.
Document CapabilityChanges(const FamilyFiles& family) {
    const OptionFeatures options = ReadOptionFeatures(family);
    Document rows = Document::MakeList();
    for (size_t i = 0; i < options.settings.size(); ++i) {
        const ItemRecord* usual = CurrentItem(options, i);
        if (usual == nullptr)
            continue;
        const char* feature = KeyOf(options.features[i]);
        const Document before = CapabilityRow(family, feature, *usual);
        for (const ItemRecord& item : Listed(options.features[i].items)) {
            Document row = CapabilityRow(family, feature, item);
            Document same = row;
            same["choice"] = before["choice"];
            if (JsonForm(same) != JsonForm(before))
                rows.Add(std::move(row));
        }
    }
    return rows;
}

// The items of all options.
Document OptionItems(const FamilyFiles& family) {
    const OptionFeatures options = ReadOptionFeatures(family);
    Document rows = Document::MakeList();
    for (size_t i = 0; i < options.settings.size(); ++i)
        for (const ItemRecord& item : Listed(options.features[i].items)) {
            std::string choice = KeyOf(options.features[i]);
            choice += "=" + FieldText(item.head.key);
            rows.Add({{"choice", choice},
                      {"option", OptionName(KeyOf(options.features[i]))},
                      {"item", FieldText(item.display)},
                      {"default", &item == CurrentItem(options, i) ? Document(true) : Document()}});
        }
    return rows;
}

Document Capabilities(const FamilyFiles& family) {
    Document document = WithoutFiles(AskCapabilities(family, {}));
    document["optionItems"] = OptionItems(family);
    document["changesByOneOption"] = CapabilityChanges(family);
    return document;
}

// "DIALOG (SWITCH: TYPEn)"
std::string DialogFact(const FamilyFiles& family, const ModelDialog& dialog, FeatureSwitch feature) {
    const uint32_t type = SwitchValue(family.table.get(), feature);
    return (dialog.id != 0 ? std::to_string(dialog.id) : "none") + " (" + kFeatureSwitches[feature].name
           + ": " + (type != 0 ? "TYPE" + std::to_string(type) : "off") + ")";
}

// "2026-11-26 09:45 UTC".
std::string FileDate(const std::filesystem::path& path) {
    WIN32_FILE_ATTRIBUTE_DATA facts = {};
    SYSTEMTIME time = {};
    GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &facts);
    FileTimeToSystemTime(&facts.ftLastWriteTime, &time);
    char text[32];
    snprintf(text, sizeof(text), "%04u-%02u-%02u %02u:%02u UTC", time.wYear, time.wMonth, time.wDay,
             time.wHour, time.wMinute);
    return text;
}

Document Facts(const FamilyFiles& family, const Document& model) {
    const Document::List& switches = model["switches"].Elements();
    const auto isOn = [](const Document& row) {
        const Document& value = row["value"];
        return value.IsText() ? value.Text() == "on" : value.Integer() != 0; // a number is that of a variant
    };
    size_t lists = 0;
    size_t items = 0;
    for (const Document::Field& list : model["lists"].Fields()) {
        lists += list.value.IsNull() ? 0 : 1;
        items += list.value.Elements().size();
    }
    const Document& device = model["device"];
    return {
        {"module", "TELMAR_D.DLL " + FileVersion(family.modulePath)},
        {"parameterFile", "TELMAR_D.PRM, " + std::to_string(family.parameters->size) + " bytes"},
        {"built", FileDate(family.parameterPath)},
        {"folder", family.modulePath.parent_path().filename().u8string()},
        {"colour", device["colorDevice"]},
        {"pagesPerMinute", device["pagesPerMinute"]},
        {"features", std::to_string(std::count_if(switches.begin(), switches.end(), isOn)) + " of "
                         + std::to_string(switches.size()) + " on"},
        {"lists", std::to_string(lists) + " with " + std::to_string(items) + " items"},
        {"colourDialog", DialogFact(family, ColorDialogOf(*family.table), kSwitchColorSetting)},
        {"trayDialog", DialogFact(family, TrayDialogOf(*family.table), kSwitchDlgMediaType)},
    };
}

// By their names: the lists of the lower resolutions first.
std::vector<std::filesystem::path> DialogLists(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> lists;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error))
        if (entry.path().extension() == ".json")
            lists.push_back(entry.path());
    if (error)
        throw Failure(kExitFailed, folder.u8string() + ": cannot be read ("
                                       + ErrorText(static_cast<DWORD>(error.value()))
                                       + "); specify a folder that 'workbench dialogs' has filled");
    const auto isLess = [](const auto& a, const auto& b) {
        const std::wstring nameA = a.filename().wstring();
        const std::wstring nameB = b.filename().wstring();
        return nameA.size() != nameB.size() ? nameA.size() < nameB.size() : nameA < nameB;
    };
    std::sort(lists.begin(), lists.end(), isLess);
    return lists;
}

// Whether the row has all that the page shows. Other fields are ignored.
bool IsDialogRow(const Document& row) {
    const auto isText = [&](const char* field) { return row[field].IsText(); };
    const auto isSize = [&](const char* field) { return row[field].IsInteger() && row[field].Integer() > 0; };
    const std::initializer_list<const char*> texts = {"kind", "title", "file"};
    const std::initializer_list<const char*> sizes = {"dialog", "dpi", "width", "height"};
    return row["opens"].IsBool() && std::all_of(texts.begin(), texts.end(), isText)
           && std::all_of(sizes.begin(), sizes.end(), isSize);
}

} // namespace

Document ReadDialogs(const std::string& folderName) {
    const auto folder = std::filesystem::u8path(folderName);
    constexpr const char* kDialogsOption = "--dialogs";
    Document rows = Document::MakeList();
    for (const std::filesystem::path& path : DialogLists(folder)) {
        const Document list = ParseJson(ReadTextFile(path.u8string(), kDialogsOption), path.u8string());
        for (Document row : list.Elements()) {
            if (!IsDialogRow(row))
                throw Failure(kExitFailed,
                              path.u8string() + ": not a list of 'workbench dialogs'; write it again");
            const auto picture = folder / std::filesystem::u8path(row["file"].Text()).filename();
            row["picture"] = Base64(ReadInputFile(picture.u8string(), kDialogsOption));
            rows.Add(std::move(row));
        }
    }
    return rows;
}

Document GatherContents(const FamilyFiles& family, const Document& dialogs) {
    const Document model = WithoutFiles(Describe(family));
    const std::string name = ModelName(family);
    return {
        {"name", name.empty() ? "Model without a name" : name},
        {"facts", Facts(family, model)},
        {"groups",
         {{"Features and lists", model},
          {"Default settings", WithoutFiles(ShowDefaults(family))},
          {"Capabilities", Capabilities(family)},
          {"Texts and colours", WithoutFiles(ShowTexts(family))},
          {"SNMP questions", SnmpQuestions(family)}}},
        {"printer", PrinterLooks(family)},
        {"dialogs", dialogs},
    };
}
