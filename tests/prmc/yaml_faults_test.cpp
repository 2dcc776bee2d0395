// Every class of fault in a model's YAML: where it is reported and what the message says.
#include "engine_support.h"

#include <gtest/gtest.h>

namespace {

struct Fault {
    std::string yaml;
    std::string findings; // one a line
};

const std::string kKey32(32, 'k');
const std::string kText128(128, 't');
const std::string kName32(32, 'n');
const std::string kName48(48, 'n');

std::string Color(const std::string& item, const std::string& defaultKey = "W") {
    return "MediaColor:\n  default: " + defaultKey + "\n  items:\n    - " + item + "\n";
}

// clang-format off
const Fault kFaults[] = {
    // Names
    {"Mediatyp: {}", "1:1: unknown entry 'Mediatyp'; did you mean 'MediaType'?"},
    {"Qwertyuiop: {}", "1:1: unknown entry 'Qwertyuiop'"},
    {Color("{key: W, name: n, valeu: 1, value: 1}"),
     "4:25: item with text has no field 'valeu'; did you mean 'value'?"},
    {Color("{key: W, name: n}"), "4:7: 'value' is missing: every item with text has one"},
    {Color("{key: W, name: n, value: 1, value: 2}"), "4:35: 'value' is given twice here"},
    {"Country: {value: 1}\ncountry: {value: 1}", "2:1: entry 'country' occurs twice: remove one"},
    {Color("{key: W, name: n, value: 1}\n    - {key: w, name: n, value: 2}"),
     "5:13: key 'w' occurs twice: remove one"},
    {"MediaTypeList_Tray: {itmes: []}", "1:22: a list has no field 'itmes'; did you mean 'items'?\n"
                                        "1:1: 'items' is missing: 'MediaTypeList_Tray' is a list"},
    {"OpInTrayUnit: {items: [{key: A, name: n}]}",
     "1:1: 'OpInTrayUnit' needs 'default: KEY': the settings start from it"},
    {Color("{key: Grey, name: n, value: 1}", "Gray"),
     "2:12: default 'Gray' names no item; did you mean 'Grey'?"},

    // Texts
    {Color("{key: " + kKey32 + ", name: n, value: 1}", kKey32),
     "4:13: key '" + kKey32 + "' has 32 characters, at most 31 fit: shorten it"},
    {Color("{key: \"\", name: n, value: 1}", "\"\""),
     "4:13: the key is empty: readers would end the list here"},
    {Color("{key: W, name: " + kName32 + ", value: 1}"),
     "4:22: name '" + kName32 + "' has 32 characters, at most 31 are shown: shorten it"},
    {"OutputMethod: {items: [{key: W, name: " + kName48 + ", value: 1}]}",
     "1:39: name '" + kName48 + "' has 48 characters, at most 47 are shown: shorten it"},
    {Color("{key: W, name: n, value: 1, text: " + kText128 + "}"),
     "4:41: text '" + kText128 + "' has 128 characters, at most 127 fit: shorten it"},
    {"DevInfo: {PDLType: 6 3 " + kKey32.substr(4) + "}",
     "1:20: value '6 3 " + kKey32.substr(4) + "' has 32 characters, at most 31 fit: shorten it"},
    {Color("{key: W, name: n, value: 1, text: é}"),
     "4:41: text 'é' has a character other than ASCII: only names can have it"},
    {Color("{key: W, name: \"a\\0b\", value: 1}"),
     "4:22: name 'a\\x00b' has a zero character, which would end it"},
    {Color("{key: W, name: , value: 1}"), "4:22: 'name' has no value: write \"\" for an empty text"},
    {Color("{key: W, name: [a], value: 1}"), "4:22: 'name' takes a single value"},

    // Numbers
    {Color("{key: W, name: n, value: 65536}"),
     "4:32: value 65536 does not fit: it may be 0 to 65535"},
    {"Staple: {default: S, items: [{key: S, name: n, value: 256}]}",
     "1:55: value 256 does not fit: it may be 0 to 255"},
    {"Country: {value: 4294967296}", "1:18: value 4294967296 does not fit: it may be 0 to 4294967295"},
    {"Country: {value: 1-}", "1:18: 'value' takes a number, not '1-'"},
    {"Country: {value: 0x1234567890123456}", "1:18: 'value' takes a number, not '0x1234567890123456'"},
    {"ImgShiftMFP_BackH: {min: -833, max: -2, default: -1}",
     "1:26: min -833 does not fit: it may be -832 to 832\n1:50: default -1 is not within -833 to -2"},
    {"Resolution: {default: R, items: [{key: R, name: n, values: [600, 600]}]}",
     "1:60: 'values' takes 3 numbers in brackets"},
    {"Copies: {min: 10, max: 9, default: 9}", "1:15: min 10 is above max 9"},
    {"Copies: {min: 1, max: 9, default: 10}", "1:35: default 10 is not within 1 to 9"},

    // Feature switches and other tables
    {"FeatureSetting:\n  Postr: Enable", "2:3: no feature switch is called 'Postr'; did you mean 'Poster'?"},
    {"FeatureSetting:\n  Poster: Enabled",
     "2:11: value 'Enabled' of 'Poster' enables nothing: write Enable, or Disable to leave the feature off"},
    {"FeatureSetting: {ColorSetting: TYPE0}",
     "1:32: value 'TYPE0' of 'ColorSetting' is no variant: write TYPE1 to TYPE255, or leave the row out"},
    {"FeatureSetting: {Poster: Enable, poster: Disable}", "1:34: row 'poster' occurs twice: remove one"},
    {"DevInfo: {PrintRatePPM: fast, PrintRate: \"\", PrintRateUnit: parsecs, ColorDevice: yes, "
     "PDLType: PCL6}",
     "1:25: value 'fast' of 'PrintRatePPM' says nothing: write a number\n"
     "1:42: value '' of 'PrintRate' says nothing: write a number\n"
     "1:61: value 'parsecs' of 'PrintRateUnit' says nothing: write PPM, CPS, LPM or IPM\n"
     "1:83: value 'yes' of 'ColorDevice' says nothing: write FALSE or TRUE\n"
     "1:97: value 'PCL6' of 'PDLType' says nothing: write a text with 2 numbers"},
    {"PaperSizeFigure: {FigureType: MFPrinter}",
     "1:31: value 'MFPrinter' of 'FigureType' says nothing: write OTHER or MFP"},

    // Items that the driver does not take
    {"Text_RGBGray: {default: Text_4Colour, items: [{key: Text_4Colour, name: n}]}",
     "1:53: 'Text_RGBGray' takes no item 'Text_4Colour'; did you mean 'Text_4Color'?"},
    {"RGBProf: {default: A, items: [{key: A, name: n}, {key: B, name: n}, {key: C, name: n}]}",
     "1:69: 'RGBProf' has 3 items, at most 2 are taken: remove the others"},
    {"InTray: {default: A, items: [{key: A, name: n, value: 1, enabled: 1}, {key: B, name: n, value: 2, "
     "enabled: 0}, {key: C, name: n, value: 3, enabled: 0}, {key: D, name: n, value: 4, enabled: 1}]}",
     "1:71: note: 'B' is not enabled, which hides every tray after it: 'D' too"},

    // Shapes, and the file as such
    {"MediaWeight: []", "1:14: expected a list: {default: KEY, items: [...]}"},
    {"- a", "1:1: expected entries: NAME: ..."},
    {"Country: 1", "1:10: expected fields: {FIELD: VALUE, ...}"},
    {"MediaTypeList_Tray: {items: {}}", "1:29: expected items: one '- {...}' for each"},
    {"? [a]\n: b", "1:3: expected a name"},
    {"# nothing", "1:1: the file holds no entries"},
    {"Country: {value: 1}\n---\nCountry: {value: 2}", "2:1: a second document begins here: a model is one"},
    {"# a stray comma\n,", "2:1: a second document begins here: a model is one"},
    {"Country: value: 1", "1:15: illegal map value"},
    {"Country: {value: 1}\n# \xFF", "2:3: not UTF-8: save the file in that encoding"},
    {"Country: {value: 1}\x04", "1:20: control character: write it as an escape in double quotes"},

    // Several at once
    {"Countri: {value: 1}\nCountry: {valu: 1}\nFeatureSetting: {Trim: On}",
     "1:1: unknown entry 'Countri'; did you mean 'Country'?\n"
     "2:11: country has no field 'valu'; did you mean 'value'?\n"
     "2:10: 'value' is missing: every country has one\n"
     "3:24: value 'On' of 'Trim' enables nothing: write Enable, or Disable to leave the feature off"},
};
// clang-format on

std::string FindingsOf(const std::string& yaml) {
    std::vector<std::string> messages;
    FromYaml(yaml, messages);
    std::string lines;
    for (const std::string& message : messages)
        lines += (lines.empty() ? "" : "\n") + message;
    return lines;
}

TEST(YamlFaults, EachIsReportedAtItsPlace) {
    for (const Fault& fault : kFaults)
        EXPECT_EQ(FindingsOf(fault.yaml), fault.findings) << fault.yaml;
}

// What is just within the limits, or written in another way, is no fault.
TEST(YamlFaults, AcceptsTheLimits) {
    const std::string key31 = kKey32.substr(1), name31 = kName32.substr(1), text127 = kText128.substr(1);
    const std::string models[] = {
        Color("{key: " + key31 + ", name: " + name31 + ", value: 65535, text: " + text127 + "}", key31),
        "OutputMethod: {items: [{key: W, name: " + kName48.substr(1) + ", value: 0xFFFFFFFF}]}",
        "FeatureSetting: {poster: enable, Chapter: Disable, ColorSetting: type255, BindingEdge: 4bind}",
        Color("{key: W, name: n, value: 1}", "w"),
        "DevInfo: {PrintRateUnit: ppm, PDLType: 6/03, MachineEncryption: other}",
        "InTray: {default: A, items: [{key: A, name: n, value: 1, enabled: 1}, {key: B, name: n, value: 2, "
        "enabled: 0}]}",
        "MediaTypeList_Tray: {items: []}",
    };
    for (const std::string& model : models)
        EXPECT_EQ(FindingsOf(model), "") << model;
}

// Cut anywhere, and with characters changed: reported or not, the reader survives it.
TEST(YamlFaults, DamagedFilesAreSurvived) {
    const std::string model = kSmallModel;
    for (size_t length = 0; length < model.size(); ++length) {
        FindingsOf(model.substr(0, length));
        for (size_t i = 0; i < length; i += 7) {
            std::string changed = model.substr(0, length);
            changed[i] = static_cast<char>(changed[i] ^ 0x15);
            FindingsOf(changed);
        }
    }
}

} // namespace
