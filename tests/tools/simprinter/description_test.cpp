// Device descriptions: fields and their defaults, detected errors, and every kind of error with its place.
#include "running_printer.h"

#include "simprinter/device/device_reader.h"
#include "simprinter/device/objects.h"

#include <gtest/gtest.h>

namespace {

Device Read(const std::string& yaml) {
    Findings findings;
    const Device device = ReadDevice(yaml, findings);
    EXPECT_EQ(Listed(findings), "") << yaml;
    return device;
}

TEST(Description, OmittedFieldsHaveTheirDefaults) {
    EXPECT_EQ(ObjectsOf(Read("name: lumora")), ObjectsOf(PlainDevice()));
    EXPECT_TRUE(Read("trays: []").trays.empty());

    EXPECT_EQ(ObjectsOf(Read("{trays: [{tray: lct}, {level: 3, capacity: 9, tray: Tray5}, {capacity: 9, tray: TRAY1}],"
                             " supplies: [{supply: BLACK, capacity: 70}, {supply: waste, capacity: 70}],"
                             " overlays: [{name: \"\"}], profiles: [{name: p, storage: 6, class: -1}]}")),
              ObjectsOf(Read("{trays: [{tray: LCT, name: Large-capacity tray, size: A4, orientation: landscape,"
                             "          type: PLAIN, capacity: 2500, level: 2500},"
                             "         {tray: TRAY5, capacity: 9, level: 3}, {tray: TRAY1, capacity: 9, level: 9}],"
                             " supplies: [{supply: black, name: Black toner, capacity: 70, level: 70},"
                             "            {supply: waste, capacity: 70, level: -3}],"
                             " overlays: [{name: \"\", title: \"\", kind: 1, storage: HDD}],"
                             " profiles: [{name: p, title: \"\", storage: 6, class: -1}]}")));
}

TEST(Description, LevelsSetTheDetectedErrors) {
    // lowPaper 8000, noPaper 4000, lowToner 2000, noToner 1000, doorOpen 0800, offline 0200, serviceRequested 0100,
    // inputTrayEmpty 0004
    const std::pair<const char*, std::string> cases[] = {
        {"trays: [{tray: TRAY1, capacity: 100, level: 10}, {tray: TRAY2, level: 0}]", "\x80\x04"},
        {"trays: [{tray: TRAY1, level: 0}]", "\x40\x04"},
        {"supplies: [{supply: cyan, level: 10}, {supply: black, level: 0}]", std::string("\x30\0", 2)},
        {"supplies: [{supply: waste, level: 1}, {supply: cyan, level: 11}]", std::string("\0\0", 2)},
        {"supplies: [{supply: waste, level: 0}]", std::string("\x01\0", 2)},
        {"{cover: open, online: no}", std::string("\x0A\0", 2)},
    };
    for (const auto& [yaml, bits] : cases)
        EXPECT_EQ(ObjectsOf(Read(yaml)).at({1, 3, 6, 1, 2, 1, 25, 3, 5, 1, 2, 1}).bytes, bits) << yaml;
}

TEST(Description, EveryErrorIsReportedAtItsPlace) {
    const std::pair<std::string, const char*> cases[] = {
        {"name: " + std::string(256, 't'), "1:7: 'name' has 256 bytes, but at most 255 fit: shorten it\n"},
        {"memory: 5\nname:\nduplex: yes", "2:1: 'name' has no value; write \"\" for an empty text\n"},
        {"memory: -1", "1:9: 'memory' is -1, which is out of range: write 0 to 2147483647\n"},
        {"punching: 4", "1:11: 'punching' can't be '4'; possible: 2, 2-3, 2-4\n"},
        {"options: FAX", "1:10: 'options' must be a list of '- ' elements, or []\n"},
        {"overlays: [{title: t}]", "1:12: 'name' is missing: an overlay needs it\n"},
        {"trays:\n  - {tray: TRAY1}\n  - {tray: tray1}", "3:5: 'TRAY1' occurs twice: remove one\n"},
        {"options: [FAX, fax, QA-110, FAX]", "1:29: 'FAX' occurs more than twice: remove one\n"},
        {"trays: [{tray: TRAY1, level: 600, capacity: 500}]",
         "1:30: 'level' is 600, but the capacity is 500: write at most that\n"},
        {"supplies: [{supply: cyan, level: -7}]",
         "1:34: 'level' is -7, which is out of range: write -3 to 2147483647\n"},
        {"trays: [{tray: TRAY1, level: much}]",
         "1:30: 'level' can't be 'much'; possible: unknown, some, or a number\n"},
    };
    for (const auto& [yaml, wanted] : cases) {
        Findings findings;
        ReadDevice(yaml, findings);
        EXPECT_EQ(Listed(findings), wanted) << yaml;
    }
}

} // namespace
