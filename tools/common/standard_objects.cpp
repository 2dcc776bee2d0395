// Looks up standard objects by name and by identifier. All rows are in the two tables that this file
// includes.
#include "common/standard_objects.h"

#include "common/standard_objects_host.h"
#include "common/standard_objects_printer.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

namespace {

using namespace standard_objects;

template <size_t kCount>
constexpr ObjectGroup Group(const char* module, const char* parent, const StandardObject (&objects)[kCount]) {
    return {module, parent, objects, kCount};
}

constexpr ObjectGroup kGroups[] = {
    Group("SNMPv2-SMI", "", kRoots),
    Group("SNMPv2-SMI", "0", kNull),
    Group("SNMPv2-SMI", "1", kIso),
    Group("SNMPv2-SMI", "1.3", kOrg),
    Group("SNMPv2-SMI", "1.3.6", kDod),
    Group("SNMPv2-SMI", "1.3.6.1", kInternet),
    Group("SNMPv2-SMI", "1.3.6.1.4", kPrivate),
    Group("SNMPv2-SMI", "1.3.6.1.2", kMgmt),
    Group("SNMPv2-SMI", "1.3.6.1.2.1", kMib2),
    Group("SNMPv2-MIB", "1.3.6.1.2.1.1", kSystem),
    Group("SNMPv2-MIB", "1.3.6.1.6.3", kSnmpModules),
    Group("SNMP-FRAMEWORK-MIB", "1.3.6.1.6.3.10.3.1", kFrameworkCompliances),
    Group("SNMP-MPD-MIB", "1.3.6.1.6.3.11.3.1", kMessageCompliances),
    Group("SNMP-NOTIFICATION-MIB", "1.3.6.1.6.3.13.3.1", kNotifyCompliances),
    Group("SNMP-USER-BASED-SM-MIB", "1.3.6.1.6.3.15.2.1", kUserCompliances),
    Group("SNMP-VIEW-BASED-ACM-MIB", "1.3.6.1.6.3.16.2.2", kViewGroups),
    Group("NET-SNMP-MIB", "1.3.6.1.4.1.8072.3", kNetSnmp),
    Group("DISMAN-EVENT-MIB", "1.3.6.1.2.1.1.3", kSystemUpTime),
    Group("SNMPv2-MIB", "1.3.6.1.2.1.1.9.1", kObjectResources),
    Group("SNMPv2-MIB", "1.3.6.1.2.1.11", kSnmp),
    Group("IF-MIB", "1.3.6.1.2.1.2", kInterfaces),
    Group("IF-MIB", "1.3.6.1.2.1.2.2.1", kInterface),
    Group("IF-MIB", "1.3.6.1.2.1.31.1.1.1", kInterfaceExtension),
    Group("IF-MIB", "1.3.6.1.2.1.31.1", kInterfaceChanges),
    Group("RFC1213-MIB", "1.3.6.1.2.1.3.1.1", kAddressTranslation),
    Group("IP-MIB", "1.3.6.1.2.1.4", kIp),
    Group("IP-MIB", "1.3.6.1.2.1.4.20.1", kIpAddresses),
    Group("IP-MIB", "1.3.6.1.2.1.4.22.1", kIpNeighbours),
    Group("TCP-MIB", "1.3.6.1.2.1.6", kTcp),
    Group("UDP-MIB", "1.3.6.1.2.1.7", kUdp),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.1", kHostSystem),
    Group("HOST-RESOURCES-TYPES", "1.3.6.1.2.1.25.2.1", kStorageTypes),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.2", kHostMemory),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.2.3.1", kStorage),
    Group("HOST-RESOURCES-TYPES", "1.3.6.1.2.1.25.3.1", kDeviceTypes),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.3.2.1", kDevice),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.3.3.1", kProcessor),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.3.4.1", kNetwork),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.3.5.1", kHostPrinter),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.3.6.1", kDiskStorage),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.3.7.1", kPartition),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.3.8.1", kFileSystem),
    Group("HOST-RESOURCES-TYPES", "1.3.6.1.2.1.25.3.9", kFileSystemTypes),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.4", kRunning),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.4.2.1", kRunningSoftware),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.5.1.1", kRunningLoad),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.6", kInstalled),
    Group("HOST-RESOURCES-MIB", "1.3.6.1.2.1.25.6.3.1", kInstalledSoftware),
    Group("Printer-MIB", "1.3.6.1.2.1.43.5.1.1", kGeneral),
    Group("Printer-MIB", "1.3.6.1.2.1.43.5.2.1", kStorageRef),
    Group("Printer-MIB", "1.3.6.1.2.1.43.5.3.1", kDeviceRef),
    Group("Printer-MIB", "1.3.6.1.2.1.43.6.1.1", kCover),
    Group("Printer-MIB", "1.3.6.1.2.1.43.7.1.1", kLocalization),
    Group("Printer-MIB", "1.3.6.1.2.1.43.8.2.1", kInput),
    Group("Printer-MIB", "1.3.6.1.2.1.43.9.2.1", kOutput),
    Group("Printer-MIB", "1.3.6.1.2.1.43.10.2.1", kMarker),
    Group("Printer-MIB", "1.3.6.1.2.1.43.11.1.1", kSupplies),
    Group("Printer-MIB", "1.3.6.1.2.1.43.12.1.1", kColorant),
    Group("Printer-MIB", "1.3.6.1.2.1.43.13", kMediaPathCount),
    Group("Printer-MIB", "1.3.6.1.2.1.43.13.4.1", kMediaPath),
    Group("Printer-MIB", "1.3.6.1.2.1.43.14.1.1", kChannel),
    Group("Printer-MIB", "1.3.6.1.2.1.43.15.1.1", kInterpreter),
    Group("Printer-MIB", "1.3.6.1.2.1.43.16.5.1", kDisplay),
    Group("Printer-MIB", "1.3.6.1.2.1.43.17.6.1", kLight),
    Group("Printer-MIB", "1.3.6.1.2.1.43.18.1.1", kAlert),
    Group("Finisher-MIB", "1.3.6.1.2.1.43.30.1.1", kFinisher),
    Group("Finisher-MIB", "1.3.6.1.2.1.43.31.1.1", kFinisherSupply),
    Group("Finisher-MIB", "1.3.6.1.2.1.43.32.1.1", kFinisherInput),
    Group("Finisher-MIB", "1.3.6.1.2.1.43.33.1.1", kFinisherAttribute),
    Group("PRINTER-PORT-MONITOR-MIB", "1.3.6.1.4.1.2699.1.2.1.1", kMonitor),
    Group("PRINTER-PORT-MONITOR-MIB", "1.3.6.1.4.1.2699.1.2.1.2.1.1", kMonitoredPrinter),
    Group("PRINTER-PORT-MONITOR-MIB", "1.3.6.1.4.1.2699.1.2.1.3.1.1", kMonitoredPort),
};

std::vector<uint32_t> ParentOf(const ObjectGroup& group) {
    std::vector<uint32_t> oid;
    const std::string_view text = group.parent;
    for (size_t at = 0; at < text.size(); at = std::min(text.find('.', at), text.size() - 1) + 1) {
        uint32_t subId = 0;
        std::from_chars(text.data() + at, text.data() + text.size(), subId);
        oid.push_back(subId);
    }
    return oid;
}

// The parents of all groups, read once.
const std::vector<std::vector<uint32_t>>& Parents() {
    static const std::vector<std::vector<uint32_t>> parents = [] {
        std::vector<std::vector<uint32_t>> all;
        for (const ObjectGroup& group : kGroups)
            all.push_back(ParentOf(group));
        return all;
    }();
    return parents;
}

// The group and the row of each name.
const std::map<std::string_view, std::pair<size_t, size_t>>& Rows() {
    static const std::map<std::string_view, std::pair<size_t, size_t>> rows = [] {
        std::map<std::string_view, std::pair<size_t, size_t>> all;
        for (size_t group = 0; group < std::size(kGroups); ++group) {
            for (size_t row = 0; row < kGroups[group].count; ++row)
                all[kGroups[group].objects[row].name] = {group, row};
        }
        return all;
    }();
    return rows;
}

std::vector<uint32_t> WithNumber(std::vector<uint32_t> parent, const StandardObject& object) {
    parent.push_back(object.number);
    return parent;
}

// Calls `use` with each number and word until it returns true.
template <typename Use>
void ForEachWord(const StandardObject& object, const Use& use) {
    std::string_view left = object.words ? object.words : "";
    int32_t number = 0;
    while (!left.empty()) {
        std::string_view word = left.substr(0, left.find(' '));
        left.remove_prefix(std::min(word.size() + 1, left.size()));
        if (const size_t colon = word.find(':'); colon != std::string_view::npos) {
            std::from_chars(word.data(), word.data() + colon, number);
            word.remove_prefix(colon + 1);
        }
        if (use(number, word))
            return;
        ++number;
    }
}

} // namespace

std::optional<FoundObject> FindObject(std::string_view name) {
    const auto found = Rows().find(name);
    if (found == Rows().end())
        return std::nullopt;
    const auto [group, row] = found->second;
    const StandardObject& object = kGroups[group].objects[row];
    return FoundObject{&kGroups[group], &object, WithNumber(Parents()[group], object), {}};
}

std::optional<FoundObject> FindObjectAt(const std::vector<uint32_t>& oid) {
    std::optional<FoundObject> found;
    for (size_t i = 0; i < std::size(kGroups); ++i) {
        const std::vector<uint32_t>& parent = Parents()[i];
        const size_t size = parent.size();
        if (oid.size() <= size || (found && found->oid.size() > size)
            || !std::equal(parent.begin(), parent.end(), oid.begin()))
            continue;
        for (size_t row = 0; row < kGroups[i].count; ++row) {
            const StandardObject& object = kGroups[i].objects[row];
            if (object.number == oid[size])
                found = FoundObject{
                    &kGroups[i], &object, WithNumber(parent, object),
                    std::vector<uint32_t>(oid.begin() + static_cast<ptrdiff_t>(size) + 1, oid.end())};
        }
    }
    return found;
}

std::string_view WordOfNumber(const StandardObject& object, int64_t number) {
    std::string_view found;
    ForEachWord(object, [&](int32_t next, std::string_view word) {
        found = next == number ? word : found;
        return next == number;
    });
    return found;
}

std::optional<int32_t> NumberOfWord(const StandardObject& object, std::string_view word) {
    std::optional<int32_t> found;
    ForEachWord(object, [&](int32_t number, std::string_view next) {
        if (next == word)
            found = number;
        return next == word;
    });
    return found;
}

std::vector<std::string> WordsOf(const StandardObject& object) {
    std::vector<std::string> words;
    ForEachWord(object, [&](int32_t, std::string_view word) {
        words.emplace_back(word);
        return false;
    });
    return words;
}
