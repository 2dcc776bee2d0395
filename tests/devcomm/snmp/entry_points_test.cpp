// Host only: binding of the SNMP entry points, by system version and by what its libraries export.
#include "devcomm/snmp/snmp_client.h"
#include "devcomm/snmp/snmp_entry_points.h"
#include "devcomm/snmp/snmp_values.h"
#include "support/raw_bytes.h"
#include "win32_control.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace {

using Address = void (*)();
using Slots = std::array<Address, 9>;
using Words = std::vector<std::string>;

// In the order of the table's slots and of their look-up; the first five are SNMPAPI.DLL's.
constexpr const char* kNames[] = {
    "SnmpUtilMemAlloc", "SnmpUtilMemFree", "SnmpUtilOidFree", "SnmpUtilVarBindFree", "SnmpUtilVarBindListFree",
    "SnmpMgrOpen",      "SnmpMgrClose",    "SnmpMgrRequest",  "SnmpMgrStrToOid",
};
constexpr size_t kStrToOid = 8;

const std::string kMgmt = "C:\\Windows\\system32\\MGMTAPI.DLL";
const std::string kSnmp = "C:\\Windows\\system32\\SNMPAPI.DLL";

template <typename... Functions>
Slots AddressesOf(Functions... functions) {
    return {reinterpret_cast<Address>(functions)...};
}

// Not called, only compared.
const Slots kSystem = AddressesOf(uintptr_t{0x10}, uintptr_t{0x20}, uintptr_t{0x30}, uintptr_t{0x40}, uintptr_t{0x50},
                                  uintptr_t{0x60}, uintptr_t{0x70}, uintptr_t{0x80}, uintptr_t{0x90});
const Slots kClient = AddressesOf(ClientMemAlloc, ClientMemFree, ClientOidFree, ClientVarBindFree,
                                  ClientVarBindListFree, ClientOpen, ClientClose, ClientRequest, ClientStrToOid);

Slots Bound() {
    const SnmpEntryPoints& t = snmpEntryPoints;
    return AddressesOf(t.snmpUtilMemAlloc, t.snmpUtilMemFree, t.snmpUtilOidFree, t.snmpUtilVarBindFree,
                       t.snmpUtilVarBindListFree, t.snmpMgrOpen, t.snmpMgrClose, t.snmpMgrRequest, t.snmpMgrStrToOid);
}

void Register(const std::string& path, size_t first, size_t end, size_t missing = 9) {
    std::vector<win32::Export> exports;
    for (size_t i = first; i < end; ++i)
        if (i != missing)
            exports.emplace_back(kNames[i], kSystem[i]);
    win32::RegisterLibrary(Widened(path).data(), exports);
}

void RegisterBoth(size_t missing = 9) {
    Register(kSnmp, 0, 5, missing);
    Register(kMgmt, 5, 9, missing);
}

// Both libraries loaded, the first so many entry points looked up and, in the end, both freed.
Words Calls(size_t finds, bool withFrees = false) {
    Words calls = {"load " + kMgmt, "load " + kSnmp};
    for (size_t i = 0; i < finds; ++i)
        calls.push_back(std::string("find ") + kNames[i]);
    if (withFrees)
        calls.insert(calls.end(), {"free " + kMgmt, "free " + kSnmp});
    return calls;
}

void ExpectReleased() {
    const SnmpEntryPoints& t = snmpEntryPoints;
    EXPECT_EQ(Bound(), Slots{});
    EXPECT_TRUE(t.mgmtApi == nullptr && t.snmpApi == nullptr && t.bindCount == 0 && !SnmpApiIsBound());
    EXPECT_EQ(win32::Count().libraryReferences, 0);
}

TEST(SnmpBind, TheSystemsEntryPointsAreUsedByPlatformAndVersion) {
    // clang-format off
    const struct { DWORD platformId, major; size_t systemSlots; } cases[] = { // 8: all but the text conversion
        {2, 5, 9}, {2, 10, 9}, {2, 4, 8}, {2, 0, 8}, {0, 6, 0}, {1, 6, 0}, {3, 6, 0}};
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        win32::Reset();
        win32::SetVersion(c.platformId, c.major);
        RegisterBoth(c.systemSlots); // what is not looked up may be missing
        Slots expected = c.systemSlots > 0 ? kSystem : kClient;
        if (c.systemSlots < 9)
            expected[kStrToOid] = kClient[kStrToOid];
        EXPECT_EQ(SnmpApiBind(), TRUE);
        EXPECT_EQ(Bound(), expected);
        EXPECT_TRUE(SnmpApiIsBound() && snmpEntryPoints.bindCount == 1);
        EXPECT_EQ(win32::LibraryCalls(), c.systemSlots > 0 ? Calls(c.systemSlots) : Words());
        for (int i = 0; i < 2; ++i) {
            SnmpApiRelease();
            EXPECT_EQ(win32::LibraryCalls(), c.systemSlots > 0 ? Calls(c.systemSlots, true) : Words());
            ExpectReleased();
        }
    }
}

TEST(SnmpBind, WithoutBothLibrariesTheBuiltInClientIsBoundUntilTheRelease) {
    const std::pair<bool, bool> cases[] = {{false, false}, {true, false}, {false, true}};
    for (const auto& [withMgmt, withSnmp] : cases) {
        win32::Reset();
        if (withMgmt)
            Register(kMgmt, 5, 9);
        if (withSnmp)
            Register(kSnmp, 0, 5);
        EXPECT_EQ(SnmpApiBind(), TRUE);
        RegisterBoth(); // would be found now
        EXPECT_EQ(SnmpApiBind(), TRUE);
        EXPECT_EQ(Bound(), kClient);
        EXPECT_EQ(win32::LibraryCalls(), Calls(0)) << "the second is tried also after the first has failed";
        EXPECT_TRUE((snmpEntryPoints.mgmtApi != nullptr) == withMgmt
                    && (snmpEntryPoints.snmpApi != nullptr) == withSnmp);
        SnmpApiRelease();
        ExpectReleased();
        EXPECT_EQ(SnmpApiBind(), TRUE);
        EXPECT_EQ(Bound(), kSystem);
        SnmpApiRelease();
    }
}

TEST(SnmpBind, AMissingEntryPointFailsTheBindAndFreesBothLibraries) {
    for (size_t missing = 0; missing < 9; ++missing) {
        SCOPED_TRACE(kNames[missing]);
        win32::Reset();
        RegisterBoth(missing);
        EXPECT_EQ(SnmpApiBind(), FALSE);
        EXPECT_EQ(win32::LibraryCalls(), Calls(missing + 1, true));
        ExpectReleased();
        EXPECT_EQ(SnmpApiBind(), FALSE) << "tried again, and not with the built-in client";
        SnmpApiRelease();
        EXPECT_EQ(win32::LibraryCalls().size(), 2 * Calls(missing + 1, true).size()) << "nothing is freed twice";
    }
}

// A path of 259 characters is the longest that fits; one that doesn't is not cut. Without a directory a bare
// path could lead to another library.
TEST(SnmpBind, LibrariesAreLoadedOnlyByAWholePathThatFits) {
    for (const size_t length : {size_t{0}, size_t{247}, size_t{248}, size_t{260}, size_t{1000}}) {
        SCOPED_TRACE(length);
        win32::Reset();
        const std::string directory = std::string("C:\\" + std::string(length, 's')).substr(0, length);
        win32::SetSystemDirectory(Widened(directory).data());
        Register(directory + "\\SNMPAPI.DLL", 0, 5);
        Register(directory + "\\MGMTAPI.DLL", 5, 9);
        EXPECT_EQ(SnmpApiBind(), TRUE);
        EXPECT_EQ(Bound(), length == 247 ? kSystem : kClient);
        EXPECT_EQ(win32::LibraryCalls().empty(), length != 247);
        SnmpApiRelease();
        ExpectReleased();
    }
}

} // namespace
