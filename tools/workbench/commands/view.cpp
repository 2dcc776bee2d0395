// `workbench view`: has the module draw the printer with the options as wanted, or as a printer on the
// network reports them, and writes the picture.
#include "base/text.h"
#include "workbench/commands/commands.h"
#include "workbench/lib/device_options.h"
#include "workbench/lib/output.h"
#include "workbench/lib/picture_file.h"
#include "workbench/lib/printer_scene.h"

#include <algorithm>

namespace {

constexpr LONG kLargestSide = 4096; // pixels

// The number of pixels that the text starts with; what is behind it stays. 0 when there is none.
LONG TakeSide(std::string& text) {
    const size_t digits = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::string number = text.substr(0, digits);
    text.erase(0, digits);
    return number.empty() || number.size() > 4 ? 0 : std::stol(number);
}

// "WIDTHxHEIGHT".
SIZE ParseSize(const std::string& text) {
    std::string rest = text;
    const LONG width = TakeSide(rest);
    const bool isPair = rest.substr(0, 1) == "x";
    rest.erase(0, 1);
    const LONG height = TakeSide(rest);
    if (!isPair || !rest.empty() || width < 1 || width > kLargestSide || height < 1 || height > kLargestSide)
        throw Failure(kExitUsage, "--size: '" + text
                                      + "' is no size; possible: WxH, such as 200x200, each from 1 to "
                                      + std::to_string(kLargestSide) + " pixels");
    return {width, height};
}

// Those that the model lists, and those of the picture, listed or not.
std::vector<std::string> TrayKeys(const DeviceTable& table) {
    std::vector<std::string> keys;
    for (const InputSlotRecord& slot : Listed(table.inputTrays))
        keys.emplace_back(Utf8(slot.head.key));
    for (const char* key : kTrayKeys)
        if (std::find(keys.begin(), keys.end(), key) == keys.end())
            keys.emplace_back(key);
    return keys;
}

// The key as the driver writes it.
std::string FindTray(const DeviceTable& table, const std::string& wanted) {
    std::string choices;
    for (const std::string& key : TrayKeys(table)) {
        if (SameText(key.c_str(), wanted.c_str()))
            return key;
        choices += (choices.empty() ? "" : ", ") + key;
    }
    throw Failure(kExitUsage, "--tray: no paper source '" + wanted + "'; possible: " + choices);
}

// Puts in force what the printer reports; tells which printer it was and how it was asked.
Document TakeOptionsFrom(const FamilyFiles& family, const std::string& agent, OptionFeatures& options) {
    const DeviceOptions device = AskDeviceOptions(family, agent);
    for (const OptionRequestItem& answer : device.answers)
        TakeReportedOption(options, answer.key, answer.value);
    return {{"address", agent}, {"road", device.road}};
}

} // namespace

Document DrawView(const FamilyFiles& family, const ViewOptions& options) {
    const SIZE size = ParseSize(options.size);
    PrinterScene scene = {ReadOptionFeatures(family), !options.machineOnly, {}, options.outputFlags};
    if (options.tray)
        scene.tray = FindTray(*family.table, *options.tray);
    Document printer;
    if (options.from)
        printer = TakeOptionsFrom(family, *options.from, scene.options);
    if (options.machine)
        AddMachine(scene.options, *options.machine);
    for (const std::string& assignment : options.assignments)
        SetOption(scene.options, assignment);

    const Canvas canvas(size);
    DrawScene(family, scene, canvas.context, size);
    Document picture = WritePicture(canvas, options.out);
    picture["paperPath"] = scene.showsPaperPath;
    picture["tray"] = scene.tray.empty() ? Document() : Document(scene.tray);
    Document& flags = picture["outputFlags"] = Document::MakeList();
    for (const int flag : scene.outputFlags)
        flags.Add(flag);
    return {
        {"files", FamilyDocument(family)},
        {"printer", printer},
        {"options", OptionsDocument(scene.options)},
        {"picture", picture},
    };
}
