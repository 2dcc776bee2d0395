// Device descriptions: what is read, what is as in the plain device, and every class of fault with its place.
#include "running_printer.h"

#include "simprinter/device_reader.h"
#include "simprinter/objects.h"

#include <gtest/gtest.h>

namespace {

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

TEST(Description, DetectedErrors) {
    const struct {
        const char* yaml;
        std::string bits; // lowPaper 8000, noPaper 4000, lowToner 2000, noToner 1000, inputTrayEmpty 0004
    } cases[] = {
        {"trays: [{tray: TRAY1, capacity: 100, level: 10}, {tray: TRAY2, level: 0}]", "\x80\x04"},
        {"trays: [{tray: TRAY1, level: 0}]", "\x40\x04"},
        {"supplies: [{supply: cyan, level: 10}, {supply: black, level: 0}]", std::string("\x30\0", 2)},
        {"supplies: [{supply: waste, level: 0}, {supply: cyan, level: 11}]", std::string("\0\0", 2)},
    };
    for (const auto& one : cases) {
        const ObjectMap objects = ObjectsOf(Read(one.yaml));
        EXPECT_EQ(objects.at({1, 3, 6, 1, 2, 1, 25, 3, 5, 1, 2, 1}).octets, one.bits) << one.yaml;
    }
}

TEST(Description, FaultsAndTheirPlaces) {
    const struct {
        std::string yaml;
        std::string findings;
    } cases[] = {
        {"name: " + std::string(256, 't'), "1:7: 'name' has 256 octets, at most 255 fit: shorten it\n"},
        {"memory: -1", "1:9: 'memory' takes a number from 0 to 2147483647, not -1\n"},
        {"punching: 4", "1:11: 'punching' takes 2, 2-3 or 2-4, not '4'\n"},
        {"options: FAX", "1:10: 'options' takes a list: one '- ' for each, or []\n"},
        {"overlays: [{title: t}]", "1:12: 'name' is missing: tell it of an overlay\n"},
        {"trays:\n  - {tray: TRAY1}\n  - {tray: tray1}", "3:5: 'TRAY1' is described twice: remove one\n"},
        {"trays: [{tray: TRAY1, level: much}]",
         "1:30: 'level' takes unknown or some or a number, not 'much'\n"},
        {"profiles: [{name: n, storage: tape}]",
         "1:31: 'storage' takes ROM, own-disk, memory, HDD or flash or a number, not 'tape'\n"},
    };
    for (const auto& one : cases) {
        Findings findings;
        ReadDevice(one.yaml, findings);
        EXPECT_EQ(Listed(findings), one.findings) << one.yaml;
    }
}

} // namespace
