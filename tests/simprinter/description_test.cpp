// Device descriptions: what is read, what is as in the plain device, and every class of fault with its place.
#include "hosttools/files.h"
#include "simprinter/device_reader.h"
#include "simprinter/objects.h"

#include <gtest/gtest.h>

namespace {

std::string Listed(const Findings& findings) {
    std::string list;
    for (const Finding& finding : findings.list)
        list += std::to_string(finding.place.line) + ':' + std::to_string(finding.place.column) + ": "
                + finding.message + '\n';
    return list;
}

Device Read(const std::string& yaml) {
    Findings findings;
    const Device device = ReadDevice(yaml, findings);
    EXPECT_EQ(Listed(findings), "") << yaml;
    return device;
}

TEST(Description, WhatIsLeftOutIsAsInThePlainDevice) {
    EXPECT_EQ(ObjectsOf(Read("name: lumora")), ObjectsOf(PlainDevice()));
    EXPECT_TRUE(Read("trays: []").trays.empty());
    EXPECT_EQ(Read("trays: []").supplies.size(), PlainDevice().supplies.size());

    const Device device =
        Read("{trays: [{tray: lct}, {level: 3, capacity: 9, tray: Tray5}, {capacity: 9, tray: TRAY1}],"
             " supplies: [{supply: BLACK, capacity: 70}, {supply: waste, capacity: 70}],"
             " overlays: [{name: \"\"}], profiles: [{name: p, storage: 6, class: -1}]}");
    EXPECT_STREQ(device.trays[0].kind->text, "Large-capacity tray");
    EXPECT_EQ(device.trays[0].name, "Large-capacity tray");
    EXPECT_STREQ(device.trays[0].size->name.word, "A4");
    EXPECT_EQ(device.trays[0].level, device.trays[0].capacity); // full
    EXPECT_EQ(device.trays[1].level, 3);                        // whatever the order of the fields
    EXPECT_EQ(device.trays[2].level, 9);
    EXPECT_EQ(device.supplies[0].level, 70);
    EXPECT_EQ(device.supplies[1].level, -3); // some room
    EXPECT_EQ(device.overlays[0].storage, 4);
    EXPECT_EQ(device.profiles[0].storage, 6); // no known one, but a device may say so
    EXPECT_EQ(device.profiles[0].colorClass, -1);
}

TEST(Description, TheExamplesAreSound) {
    const Device full = Read(ReadFile(EXAMPLE_DEVICES "/well_equipped.yaml"));
    EXPECT_EQ(full.trays.size(), 7u);
    EXPECT_EQ(full.options.size(), 7u - 1u);
    EXPECT_TRUE(full.hasDuplex && full.hardDisk);
    const Device modest = Read(ReadFile(EXAMPLE_DEVICES "/modest.yaml"));
    EXPECT_TRUE(modest.options.empty() && !modest.hasDuplex && !modest.hardDisk);
}

TEST(Description, DetectedErrors) {
    const struct {
        const char* yaml;
        std::string bits; // lowPaper 8000, noPaper 4000, lowToner 2000, noToner 1000, inputTrayEmpty 0004
    } cases[] = {
        {"memory: 1", std::string("\0\0", 2)},
        {"trays: [{tray: TRAY1, capacity: 100, level: 10}, {tray: TRAY2, level: 0}]", "\x80\x04"},
        {"trays: [{tray: TRAY1, level: 0}]", "\x40\x04"},
        {"trays: [{tray: TRAY1, level: unknown}]", std::string("\0\0", 2)},
        {"supplies: [{supply: cyan, level: 10}, {supply: black, level: 0}]", std::string("\x30\0", 2)},
        {"supplies: [{supply: waste, level: 0}, {supply: cyan, level: 11}]", std::string("\0\0", 2)},
    };
    for (const auto& one : cases) {
        const ObjectMap objects = ObjectsOf(Read(one.yaml));
        EXPECT_EQ(objects.at({1, 3, 6, 1, 2, 1, 25, 3, 5, 1, 2, 1}).octets, one.bits) << one.yaml;
    }
}

TEST(Description, FaultsAndTheirPlaces) {
    const std::string text256(256, 't');
    const struct {
        std::string yaml;
        std::string findings;
    } cases[] = {
        {"", "1:1: the file holds no entries\n"},
        {"- a", "1:1: expected a device: {FIELD: VALUE, ...}\n"},
        {"name: a\n---\nname: b", "2:1: a second document begins here: a device is one\n"},
        {"name: a: b", "1:8: illegal map value\n"},
        {"name: \xFF", "1:7: not UTF-8: save the file in that encoding\n"},
        {"memroy: 5",
         "1:1: a device has no field 'memroy'; did you mean 'memory'?; its fields are name, model, serial, "
         "location, contact, memory, hardDisk, duplex, pages, options, punching, trays, supplies, overlays "
         "and profiles\n"},
        {"name: a\nname: b", "2:1: 'name' is given twice here\n"},
        {"name: " + text256, "1:7: 'name' has 256 octets, at most 255 fit: shorten it\n"},
        {"name: {}", "1:7: 'name' takes a single value\n"},
        {"memory: much", "1:9: 'memory' takes a number, not 'much'\n"},
        {"memory: -1", "1:9: 'memory' takes a number from 0 to 2147483647, not -1\n"},
        {"hardDisk: 2147483648", "1:11: 'hardDisk' takes a number from 0 to 2147483647, not 2147483648\n"},
        {"duplex: both", "1:9: 'duplex' takes yes or no, not 'both'\n"},
        {"punching: 4", "1:11: 'punching' takes 2, 2-3 or 2-4, not '4'\n"},
        {"options: FAX", "1:10: 'options' takes a list: one '- ' for each, or []\n"},
        {"options: [FAX, QA-111]",
         "1:16: 'options' takes QA-110, QB-220, QC-330, QD-440, QE-550, QF-660 or FAX, not "
         "'QA-111'\n"},
        {"trays: [{size: A4}]", "1:9: 'tray' is missing: tell it of a tray\n"},
        {"trays: [{tray: 1}]",
         "1:16: 'tray' takes TRAY1, TRAY2, TRAY3, TRAY4, TRAY5, LCT or MANUAL, not '1'\n"},
        {"trays: [TRAY1]", "1:9: expected a tray: {FIELD: VALUE, ...}\n"},
        {"trays:\n  - {tray: TRAY1}\n  - {tray: tray1}", "3:5: 'TRAY1' is described twice: remove one\n"},
        {"trays: [{tray: TRAY1, orientation: upright}]",
         "1:36: 'orientation' takes portrait or landscape, not 'upright'\n"},
        {"trays: [{tray: TRAY1, level: much}]",
         "1:30: 'level' takes unknown or some or a number, not 'much'\n"},
        {"trays: [{tray: TRAY1, capacity: -5}]",
         "1:33: 'capacity' takes a number from 0 to 2147483647, not -5\n"},
        {"supplies: [{supply: ink}]",
         "1:21: 'supply' takes cyan, magenta, yellow, black, drum, transfer, fuser, waste "
         "or staples, not 'ink'\n"},
        {"overlays: [{title: t}]", "1:12: 'name' is missing: tell it of an overlay\n"},
        {"overlays: [{name: n, storage: tape}]",
         "1:31: 'storage' takes memory, HDD or flash or a number, not 'tape'\n"},
        {"profiles: [{name: n, storage: tape}]",
         "1:31: 'storage' takes ROM, own-disk, memory, HDD or flash or a number, not 'tape'\n"},
        {"profiles: [{name: n, class: source}]", "1:29: 'class' takes a number, not 'source'\n"},
    };
    for (const auto& one : cases) {
        Findings findings;
        ReadDevice(one.yaml, findings);
        EXPECT_EQ(Listed(findings), one.findings) << one.yaml;
    }
    Findings findings;
    ReadDevice("trays: [{tray: TRAY1, size: A44}]", findings);
    EXPECT_EQ(Listed(findings).rfind("1:29: 'size' takes A3, A4, A5, ", 0), 0u) << Listed(findings);
}

} // namespace
