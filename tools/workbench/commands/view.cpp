// `workbench view`: the module's picture of the printer, with the options as assigned or as a printer on the
// network reports them.
#include "common/choices.h"
#include "workbench/commands/commands.h"
#include "workbench/lib/picture.h"
#include "workbench/lib/printer_queries.h"
#include "workbench/lib/printer_scene.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

constexpr LONG kMaxSide = 4096; // pixels

// "WIDTHxHEIGHT".
SIZE ParseSize(const std::string& text) {
    constexpr size_t kMaxDigits = 4;
    const size_t x = text.find('x');
    const LONG width = ParseNumber(text.substr(0, x), kMaxDigits);
    const LONG height = x == std::string::npos ? -1 : ParseNumber(text.substr(x + 1), kMaxDigits);
    if (width < 1 || width > kMaxSide || height < 1 || height > kMaxSide)
        throw Failure(kExitUsage, "--size: '" + text
                                      + "' is not a size; possible: WxH, such as 200x200, each from 1 to "
                                      + std::to_string(kMaxSide) + " pixels");
    return {width, height};
}

// The paper sources of the model, and those that only the picture knows.
std::vector<std::string> TrayKeys(const DeviceTable& table) {
    std::vector<std::string> keys;
    for (const InputSlotRecord& source : Listed(table.inputTrays))
        keys.push_back(FieldText(source.head.key));
    for (const char* key : kTrayKeys)
        if (std::find(keys.begin(), keys.end(), key) == keys.end())
            keys.emplace_back(key);
    return keys;
}

// The key as the driver spells it.
std::string FindTray(const DeviceTable& table, const std::string& wanted) {
    const std::vector<std::string> keys = TrayKeys(table);
    for (const std::string& key : keys)
        if (SameText(key.c_str(), wanted.c_str()))
            return key;
    throw Failure(kExitUsage, "--tray: no paper source '" + wanted + "'; " + Choices(keys));
}

// Applies the options that the printer reports. Returns its address and the transport.
Document ApplyOptionsFrom(const FamilyFiles& family, const std::string& address, OptionFeatures& options) {
    const DeviceOptions device = AskDeviceOptions(family, address);
    for (const OptionRequestItem& answer : device.answers)
        ApplyReportedOption(options, answer.key, answer.value);
    return {{"address", address}, {"transport", TransportName(device.transport)}};
}

} // namespace

Document DrawView(const FamilyFiles& family, const ViewOptions& options) {
    const SIZE size = ParseSize(options.size);
    PrinterScene scene = {ReadOptionFeatures(family), !options.machineOnly, {}, options.outputFlags};
    if (options.tray)
        scene.tray = FindTray(*family.table, *options.tray);
    Document printer;
    if (options.from)
        printer = ApplyOptionsFrom(family, *options.from, scene.options);
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
