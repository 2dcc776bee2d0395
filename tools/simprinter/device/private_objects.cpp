// The maker's subtree .1.3.6.1.4.1.47913.1.1.1.1 of the printer:
//
//   .6.12.1.1.COLUMN.1.N   overlays        1 number, 2 kind, 3 name, 4 title, 5 storage
//   .6.13.1.1.COLUMN.1.N   colour profiles 1 number, 2 storage, 3 title, 4 name, 5 class
//   .9...                  equipment that the standard MIBs do not cover; invented for this program
//     .9.1.0               model name
//     .9.2.1.COLUMN.N      options         1 number, 2 type, 3 model
//     .9.3.1.COLUMN.N      finishers       1 number, 2 model, 3 flags of the punch kit
//     .9.4.1.COLUMN.N      memories        1 number, 2 kind (1 memory, 3 hard disk), 3 MB
//     .9.5.1.COLUMN.N      paper loaded    1 number of the input, 2 tray, 3 size, 4 orientation, 5 type,
//                                          6 colour, 7 second side; codes of device.h except for the tray
//
// N counts from 1; for the paper loaded it is the input's number in the Printer MIB.
#include "simprinter/device/object_table.h"
#include "simprinter/device/objects.h"

namespace {

// An element of a list with its number, from 1.
template <typename Thing>
struct Numbered {
    int number;
    Thing thing;
};

template <typename Thing>
std::vector<ConceptualRow<Numbered<Thing>>> NumberedRows(const std::vector<Thing>& things,
                                                         const Oid& before) {
    std::vector<ConceptualRow<Numbered<Thing>>> rows;
    for (const Thing& thing : things) {
        const size_t number = rows.size() + 1;
        Oid index = before;
        index.push_back(static_cast<uint32_t>(number));
        rows.push_back({index, {static_cast<int>(number), thing}});
    }
    return rows;
}

constexpr Column<Numbered<Overlay>> kOverlay[] = {
    {1, Number<&Numbered<Overlay>::number>},
    {2, [](const Numbered<Overlay>& o) { return NumberValue(o.thing.kind); }},
    {3, [](const Numbered<Overlay>& o) { return TextValue(o.thing.name); }},
    {4, [](const Numbered<Overlay>& o) { return TextValue(o.thing.title); }},
    {5, [](const Numbered<Overlay>& o) { return NumberValue(o.thing.storage); }},
};

constexpr Column<Numbered<Profile>> kProfile[] = {
    {1, Number<&Numbered<Profile>::number>},
    {2, [](const Numbered<Profile>& p) { return NumberValue(p.thing.storage); }},
    {3, [](const Numbered<Profile>& p) { return TextValue(p.thing.title); }},
    {4, [](const Numbered<Profile>& p) { return TextValue(p.thing.name); }},
    {5, [](const Numbered<Profile>& p) { return NumberValue(p.thing.colorClass); }},
};

constexpr Column<Device> kEquipment[] = {
    {1, Text<&Device::model>},
};

using NumberedOption = Numbered<const OptionKind*>;
constexpr Column<NumberedOption> kOption[] = {
    {1, Number<&NumberedOption::number>},
    {2, [](const NumberedOption& o) { return NumberValue(o.thing->name.code); }},
    {3, [](const NumberedOption& o) { return TextValue(o.thing->name.word); }},
};

struct Finisher {
    const char* model;
    int punching;
};
constexpr Column<Numbered<Finisher>> kFinisher[] = {
    {1, Number<&Numbered<Finisher>::number>},
    {2, [](const Numbered<Finisher>& f) { return TextValue(f.thing.model); }},
    {3, [](const Numbered<Finisher>& f) { return NumberValue(f.thing.punching); }},
};

std::vector<Finisher> Finishers(const Device& device) {
    std::vector<Finisher> finishers;
    for (const OptionKind* option : device.options) {
        if (option->isFinisher)
            finishers.push_back({option->name.word, device.punching});
    }
    return finishers;
}

struct Memory {
    int kind;
    int size;
};
constexpr Column<Numbered<Memory>> kMemory[] = {
    {1, Number<&Numbered<Memory>::number>},
    {2, [](const Numbered<Memory>& m) { return NumberValue(m.thing.kind); }},
    {3, [](const Numbered<Memory>& m) { return NumberValue(m.thing.size); }},
};

std::vector<Memory> Memories(const Device& device) {
    constexpr int kMain = 1, kDisk = 3;
    std::vector<Memory> memories = {{kMain, device.memory}};
    if (device.hardDisk)
        memories.push_back({kDisk, *device.hardDisk});
    return memories;
}

constexpr Column<Tray> kPaper[] = {
    {1, [](const Tray& t) { return NumberValue(t.kind->name.code); }},
    {2, [](const Tray& t) { return TextValue(t.kind->name.word); }},
    {3, [](const Tray& t) { return NumberValue(t.size->name.code); }},
    {4, Number<&Tray::orientation>},
    {5, [](const Tray& t) { return NumberValue(t.type->name.code); }},
    {6, [](const Tray& t) { return NumberValue(t.type->colorCode); }},
    {7, [](const Tray& t) { return NumberValue(t.type->secondSideCode); }},
};

std::vector<ConceptualRow<Tray>> Papers(const Device& device) {
    std::vector<ConceptualRow<Tray>> rows;
    for (const Tray& tray : device.trays)
        rows.push_back({{static_cast<uint32_t>(tray.kind->name.code)}, tray});
    return rows;
}

} // namespace

void AddPrivateObjects(ObjectMap& to, const Device& device) {
    AddTable(to, "1.3.6.1.4.1.47913.1.1.1.1.6.12.1.1", kOverlay, NumberedRows(device.overlays, {1}));
    AddTable(to, "1.3.6.1.4.1.47913.1.1.1.1.6.13.1.1", kProfile, NumberedRows(device.profiles, {1}));
    AddScalars(to, "1.3.6.1.4.1.47913.1.1.1.1.9", kEquipment, device);
    AddTable(to, "1.3.6.1.4.1.47913.1.1.1.1.9.2.1", kOption, NumberedRows(device.options, {}));
    AddTable(to, "1.3.6.1.4.1.47913.1.1.1.1.9.3.1", kFinisher, NumberedRows(Finishers(device), {}));
    AddTable(to, "1.3.6.1.4.1.47913.1.1.1.1.9.4.1", kMemory, NumberedRows(Memories(device), {}));
    AddTable(to, "1.3.6.1.4.1.47913.1.1.1.1.9.5.1", kPaper, Papers(device));
}
