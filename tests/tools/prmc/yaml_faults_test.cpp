// Errors in a model's YAML: each is reported at its place with a message that says what to do.
#include "engine_support.h"

#include "common/files.h"
#include "prmc/checks/rules.h"
#include "prmc/checks/warnings.h"
#include "prmc/forms/yaml_reader.h"

#include <gtest/gtest.h>

namespace {

const std::string kKey32(32, 'k');
const std::string kText128(128, 't');
const std::string kName48(48, 'n');

std::string Color(const std::string& item, const std::string& defaultKey = "W") {
    return "MediaColor:\n  default: " + defaultKey + "\n  items:\n    - " + item + "\n";
}

// clang-format off
const std::pair<std::string, std::string> kFaults[] = { // the findings, one a line
    // Names
    {"Mediatyp: {}", "1:1: unknown entry 'Mediatyp'; did you mean 'MediaType'?"},
    {"Qwertyuiop: {}", "1:1: unknown entry 'Qwertyuiop'"},
    {Color("{key: W, name: n, valeu: 1, value: 1}"),
     "4:25: an item of 'MediaColor' has no field 'valeu'; did you mean 'value'?"},
    {Color("{key: W, name: n}"), "4:7: 'value' is missing: an item of 'MediaColor' needs it"},
    {Color("{key: W, name: n, value: 1, value: 2}"), "4:35: 'value' occurs twice: remove one"},
    {"Country: {value: 1}\ncountry: {value: 1}", "2:1: entry 'country' occurs twice: remove one"},
    {Color("{key: W, name: n, value: 1}\n    - {key: w, name: n, value: 2}"), "5:13: key 'w' occurs twice: remove one"},
    {"MediaTypeList_Tray: {itmes: []}", "1:22: a list has no field 'itmes'; did you mean 'items'?"},
    {"MediaColor: {Default: W, items: []}", "1:14: a list has no field 'Default'; did you mean 'default'?"},
    {Color("{key: Grey, name: n, value: 1}", "Gray"),
     "2:12: default 'Gray' is not the key of any item; did you mean 'Grey'?"},

    // Texts
    {Color("{key: " + kKey32 + ", name: n, value: 1}", kKey32),
     "4:13: key '" + kKey32 + "' has 32 characters, but at most 31 fit: shorten it"},
    {Color("{key: \"\", name: n, value: 1}", "\"\""), "4:13: the key is empty, which would end the list here"},
    {"OutputMethod: {items: [{key: W, name: " + kName48 + ", value: 1}]}",
     "1:39: name '" + kName48 + "' has 48 characters, but at most 47 are shown: shorten it"},
    {"MediaTypeList_Tray: {items: [{key: K, name: 𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞}]}", // two UTF-16 units each
     "1:45: name '𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞𝄞' has 32 characters, but at most 31 are shown: shorten it"},
    {Color("{key: W, name: n, value: 1, text: " + kText128 + "}"),
     "4:41: text '" + kText128 + "' has 128 characters, but at most 127 fit: shorten it"},
    {"DevInfo: {PDLType: 6 3 " + kKey32.substr(4) + "}",
     "1:20: value '6 3 " + kKey32.substr(4) + "' has 32 characters, but at most 31 fit: shorten it"},
    {Color("{key: W, name: n, value: 1, text: é}"),
     "4:41: text 'é' has a non-ASCII character, which only names may have"},
    {Color("{key: W, name: \"a\\0b\", value: 1}"), "4:22: name 'a\\x00b' has a NUL character, which would end it"},
    {"FeatureSetting:\n  Poster:\n\n# a comment\nCountry: {value: 1}",
     "2:3: 'Poster' has no value; write \"\" for an empty text"},
    {"Country:\nMachineInfo: {items: [{name: M}]}", "1:1: 'Country' has no contents, and no base has it"},
    {Color("{key: W, name: , value: 1}"), "4:16: 'name' has no value; write \"\" for an empty text"},
    {Color("{key: W, name: [a], value: 1}"), "4:22: 'name' must be a single value; a text in brackets needs quotes"},

    // Numbers
    {Color("{key: W, name: n, value: 65536}"), "4:32: value 65536 is out of range: write 0 to 65535"},
    {"Country: {value: 4294967296}", "1:18: value 4294967296 is out of range: write 0 to 4294967295"},
    {"Country: {value: 1-}", "1:18: 'value' must be a whole number such as 42, -42 or 0x2A, not '1-'"},
    {"Country: {value: 0x1234567890123456}",
     "1:18: 'value' must be a whole number such as 42, -42 or 0x2A, not '0x1234567890123456'"},
    {"Copies: {min: 1, max: 9,5, default: 1}", "1:25: a number has no ',' in it: write a whole number"},
    {"Copies: {min: 1, max: 9.5, default: 1}",
     "1:23: 'max' must be a whole number such as 42, -42 or 0x2A, not '9.5'"},
    {"Copies: {min: , max: 9, default: 1}", "1:10: 'min' has no value: write a whole number such as 42, -42 or 0x2A"},
    {"InTray: {default: InTray1, items: [{key: InTray1, name: n, value: 1, enabled: yes}]}",
     "1:79: 'enabled' must be 1 or 0, or true or false, not 'yes'"},
    {"ImgShiftMFP_BackH: {min: -833, max: -2, default: -1}",
     "1:26: min -833 is out of range: write -832 to 832\n1:50: default -1 is not within -833 to -2"},
    {"Resolution: {default: Reso_1, items: [{key: Reso_1, name: n, values: [600, 600]}]}",
     "1:70: 'values' must be 3 numbers in brackets"},
    {"Copies: {min: 10, max: 9, default: 9}", "1:15: min 10 is above max 9"},

    // Feature switches and facts
    {"FeatureSetting: {Postr: Enable}", "1:18: unknown feature switch 'Postr'; did you mean 'Poster'?"},
    {"FeatureSetting: {Poster: Enabled}",
     "1:26: value 'Enabled' of 'Poster' is unknown: write Enable to enable the feature, or Disable to leave it off"},
    {"FeatureSetting: {ColorSetting: TYPE0}",
     "1:32: value 'TYPE0' of 'ColorSetting' is not a variant: write TYPE1 to TYPE255, or omit the row"},
    {"FeatureSetting: {Poster: Enable, poster: Disable}", "1:34: row 'poster' occurs twice: remove one"},
    {"DevInfo: {PrintRatePPM: fast, PrintRate: \"\", PrintRateUnit: parsecs, PDLType: PCL6}",
     "1:25: value 'fast' of 'PrintRatePPM' must be a number\n"
     "1:42: value '' of 'PrintRate' must be a number\n"
     "1:61: value 'parsecs' of 'PrintRateUnit' is unknown; possible: PPM, CPS, LPM, IPM\n"
     "1:79: value 'PCL6' of 'PDLType' must contain 2 numbers"},

    // Items that the driver does not use
    {"Text_RGBGray: {default: Text_4Colour, items: [{key: Text_4Colour, name: n}]}",
     "1:53: 'Text_4Colour' is not an item of 'Text_RGBGray'; possible: Text_4Color, Text_BandG, Text_BlackOnly; "
     "did you mean 'Text_4Color'?"},
    {"MediaTypeList_Size: {items: [{key: A4, name: n}]}",
     "1:36: 'A4' is not an item of 'MediaTypeList_Size'; possible: MediaTypeList_Size_Unknown"},
    {"RGBProf: {default: A, items: [{key: A, name: n}, {key: B, name: n}, {key: C, name: n}]}",
     "1:69: 'RGBProf' has 3 items, but the driver takes at most 2: remove the others"},

    // Structure, and the file as a whole
    {"Copies: 5", "1:9: expected fields: {min: VALUE, max: VALUE, default: VALUE}"},
    {"MediaColor: {default: W, items: [W]}", "1:34: expected fields: {key: VALUE, name: VALUE, value: VALUE}"},
    {"MediaColor: {default: W, items: }", "1:1: 'items' is missing or empty: 'MediaColor' is a list"},
    {"MediaWeight: []", "1:14: 'items:' is missing before the items of 'MediaWeight'"},
    {"MediaTypeList_Tray: {items: {}}", "1:29: expected a list of items, each '- {...}'"},
    {"? [a]\n: b", "1:3: expected a name"},
    {"# nothing", "1:1: the file has no entries"},
    {"{}", "1:1: the file has no entries"},
    {"Country: {value: 1}\n---\nCountry: {value: 2}",
     "2:1: a second document starts here, but a model file has only one"},
    {"  Country: {value: 1}\nCopies: {min: 1, max: 2, default: 1}",
     "2:1: this does not continue the lines before it: start all entries in the same column"},
    {"Country: {value: 1}\n# \xFF", "2:3: not valid UTF-8: save the file as UTF-8"},
    {"Country: {value: 1}\x04", "1:20: control character: write it as an escape in double quotes"},
    {std::string("C\0o\0", 4), "1:1: this file is UTF-16; save it as UTF-8"},
    {std::string("\xFE\xFF\0C", 4), "1:1: this file is UTF-16; save it as UTF-8"},
    {std::string("C\0\0\0o\0\0\0", 8), "1:1: this file is UTF-32; save it as UTF-8"},
    {std::string("\0\0\xFE\xFF\0\0\0C", 8), "1:1: this file is UTF-32; save it as UTF-8"},
    {"Country: {value: 1}\rCopies: {max: 1}",
     "1:20: the line ends with CR alone: save the file with the line ends LF or CR LF"},

    // Brackets and quotes
    {Color("{key: W, name: n, value: 1\n    - {key: B, name: n, value: 2}"), "4:7: '{' is not closed: end it with '}'"},
    {Color("{key: W, name: Grey #2, value: 1}\n    - {key: B, name: n, value: 2}"),
     "4:7: '{' is not closed: end it with '}'; the '#' after it starts a comment, unless its text is in quotes"},
    {"MediaColor:\n  items: [\n    {key: W},\nCountry: {value: 1}", "2:10: '[' is not closed: end it with ']'"},
    {Color("{key: W, name: n, values: [1, 2}"), "4:33: '[' is not closed: end it with ']'"},
    {Color("{key: W, name: n, value: 1]"), "4:33: ']' does not close the '{' of line 4: write '}'"},
    {Color("{key: W, name: n, value: 1}}"), "4:34: '}' closes nothing: remove it"},
    {"\xEF\xBB\xBF" "Country: {value: 1", "1:10: '{' is not closed: end it with '}'"},
    {"Country: {value: 1} Copies: {min: 1}", "1:21: the value ends with the bracket before this: start a new line"},
    {Color("{key: W, name: \"n, value: 1}\n    - {key: B, name: \"n\", value: 2}"),
     "4:22: the quote \" is not closed: end the text with \" on the same line"},
    {"Country: 'x\n", "1:10: the quote ' is not closed: end the text with ' on the same line"},
    {Color("{key: W, name: 'It's', value: 1}"),
     "4:26: the text in quotes ends before this: write '' for a quote inside it, or ',' if another value follows"},
    {Color("{key: W, name: \"C:\\p\", value: 1}"),
     "4:25: unknown escape after '\\': write \\\\ for a backslash, or use single quotes"},
    {Color("{key: W, name: @1, value: 1}"), "4:22: a text that starts with '@' needs quotes"},
    {Color("{key: W, name: *1, value: 1}"), "4:22: a text that starts with '*' needs quotes"},
    {Color("{key: W, name: &1, value: 1}"), "4:22: a text that starts with '&' needs quotes"},
    {Color("{key: W, name: !1, value: 1}"), "4:22: a text that starts with '!' needs quotes"},

    // Faults in several entries
    {"MediaColor: {\nCountry: value: 1\nCopies: {min: 1, max: 9.5, default: 1}\nMediaTyp: {}\nInTray:\n\tdefault: A",
     "1:13: '{' is not closed: end it with '}'\n"
     "2:15: a second ':' in the line: put a text with ':' in quotes, or a map in {}\n"
     "3:23: 'max' must be a whole number such as 42, -42 or 0x2A, not '9.5'\n"
     "4:1: unknown entry 'MediaTyp'; did you mean 'MediaType'?\n"
     "6:1: the line is indented with a tab: use spaces"},

    // Characters that look like others
    {"Country:\u00A0{value: 1}", "1:1: unknown entry 'Country:\u00A0{value'; it has a no-break space: type an ordinary space"},
    {"MediaColor:\u3000\n  items: []", "1:12: a full-width space is here: type an ordinary space, or put the text in quotes"},
    {Color("{key: “W”, name: “White, x”, value: 1}", "“W”"),
     "4:13: key '“W”' has a non-ASCII character, which only names may have; it has a typographic quote: type \" or '\n"
     "4:38: an item of 'MediaColor' has no field 'x”'; it has a typographic quote: type \" or '"},
    {Color("{key: W, name: “a: b”, value: 1}"),
     "4:22: a typographic quote is here: type \" or ', or put the text in quotes"},
    {Color("{key: W, name: a – b: c, value: 1}"), // this one is part of the text
     "4:29: a second ':' in the value: put a text with ':' in quotes, or write ',' before the next name"},
    {"Country: {value: −5}", "1:18: 'value' must be a whole number such as 42, -42 or 0x2A, not '−5'; it has a minus sign: type '-'"},
    {"DevInfo:\n  PrintRate： 5", "2:3: expected rows: NAME: VALUE; it has a full-width colon: type ':'"},

    // Colons, commas, dashes and indentation
    {"Country: value: 1", "1:15: a second ':' in the line: put a text with ':' in quotes, or a map in {}"},
    {Color("{key: W, name: a: b, value: 1}"),
     "4:23: a second ':' in the value: put a text with ':' in quotes, or write ',' before the next name"},
    {Color("{key: W, name: White, or grey, value: 1}"),
     "4:29: ':' is missing in 'or grey', or a text with ',' needs quotes"},
    {"Country: {value = 1}", "1:11: write NAME: VALUE, not 'value = 1'"},
    {"Country: {value:1}", "1:11: a space is missing after ':' in 'value:1'"},
    {"FeatureSetting: {Poster:Enable}", "1:18: a space is missing after ':' in 'Poster:Enable'"},
    {"MediaColor:\n  default:W\n  items: []", "2:11: a space is missing after ':'"},
    {"MediaColor\n  items: []", "1:11: ':' is missing after the name"},
    {"MediaColor:\n  default: W\n  items:\n  -{key: W}", "4:3: a space is missing after '-'"},
    {"MediaColor:\n  items: - {key: W}",
     "2:10: '-' cannot be here: start a line with it, indented as the other items of the list"},
    {"MediaColor:\n  items:\n    {key: W, name: n, value: 1}\n    # a comment\n    - {key: B, name: n, value: 2}",
     "3:5: '- ' is missing before the item"},
    {Color("{key: W, name: n, value: 1}\n    {key: B, name: n, value: 2}"), "5:5: '- ' is missing before the item"},
    {"MediaColor:\n  - default: W\n  items: []",
     "3:3: the line does not fit those before it: indent it as its neighbours are"},
    {"MediaColor:\n  default: W\n   items: []",
     "3:4: the line does not fit those before it: indent it as its neighbours are"},
    {"MediaColor:\n  items:\n    - key: W\n      name: |\n        \"6 [\n      value: 1\n   - key: B", // no quote
     "7:4: the line does not fit those before it: indent it as its neighbours are"},
    {"MediaColor:\n\tdefault: W", "2:1: the line is indented with a tab: use spaces"},
};
// clang-format on

std::string FindingsOf(const std::string& yaml) {
    Findings findings;
    const Model model = ReadYaml(yaml, findings);
    CheckRules(model, findings);
    FindWarnings(model, findings);
    findings.Sort();
    std::string lines;
    for (const Finding& finding : findings.list)
        lines += (lines.empty() ? "" : "\n") + FindingText(finding);
    return lines;
}

TEST(YamlFaults, EveryErrorIsReportedAtItsPlace) {
    for (const auto& [yaml, findings] : kFaults)
        EXPECT_EQ(FindingsOf(yaml), findings) << yaml;
}

// In a file with hundreds of other brackets that pair.
TEST(YamlFaults, UnclosedBracketIsReportedWhereItOpens) {
    const std::string shipped = ReadFile(MODEL_FILE);
    size_t line = 1, start = 0, checked = 0;
    for (size_t end; (end = shipped.find('\n', start)) != std::string::npos; start = end + 1, ++line) {
        const std::string text = shipped.substr(start, end - start);
        const size_t open = text.find("- {");
        if (line % 16 != 0 || open == std::string::npos || text.back() != '}')
            continue;
        ++checked;
        const std::string place = std::to_string(line) + ":" + std::to_string(open + 3);
        EXPECT_EQ(FindingsOf(std::string(shipped).erase(end - 1, 1)), place + ": '{' is not closed: end it with '}'");
    }
    EXPECT_GT(checked, 10u);
}

// Values at the limits, and other spellings, are accepted.
TEST(YamlFaults, LimitsAreAccepted) {
    const std::string key31 = kKey32.substr(1), name31(31, 'n'), text127 = kText128.substr(1);
    const std::string models[] = {
        Color("{key: " + key31 + ", name: " + name31 + ", value: 65535, text: " + text127 + "}", key31),
        "OutputMethod: {items: [{key: W, name: " + kName48.substr(1) + ", value: 0xFFFFFFFF}]}",
        "FeatureSetting: {poster: enable, Chapter: Disable, ColorSetting: type255, BindingEdge: 4bind}",
        Color("{key: W, name: n, value: 1}", "w"),
        "DevInfo: {PrintRateUnit: ppm, PDLType: 6/03, MachineEncryption: other}",
        "InTray: {default: InTray1, items: [{key: InTray1, name: n, value: 1, enabled: 1}, {key: InTray2, name: n, "
        "value: 2, enabled: 0}]}",
        "MediaTypeList_Tray: {items: []}",
        "InTray: {default: InTray1, items: [{key: InTray1, name: n, value: 1, enabled: true}]}",
        "\xEF\xBB\xBF"
        "Country: {value: 1}\r\n",
    };
    for (const std::string& model : models) {
        Lines messages;
        FromYaml(model, messages);
        EXPECT_EQ(messages, Lines{}) << model;
    }
}

} // namespace
