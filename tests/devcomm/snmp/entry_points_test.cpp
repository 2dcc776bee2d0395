// Host only: binding of the SNMP entry points, by system version and by what its libraries hold.
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
constexpr size_t kNone = 9;
constexpr size_t kStrToOid = 8;

const std::string kMgmt = "C:\\Windows\\system32\\MGMTAPI.DLL";
const std::string kSnmp = "C:\\Windows\\system32\\SNMPAPI.DLL";

template <size_t slot>
size_t SystemFunction() {
    return slot;
}

template <size_t... slots>
Slots SystemSlots(std::index_sequence<slots...>) {
    return {reinterpret_cast<Address>(SystemFunction<slots>)...};
}
const Slots kSystem = SystemSlots(std::make_index_sequence<9>());

template <typename... Functions>
Slots AddressesOf(Functions... functions) {
    return {reinterpret_cast<Address>(functions)...};
}
const Slots kClient = AddressesOf(ClientMemAlloc, ClientMemFree, ClientOidFree, ClientVarBindFree,
                                  ClientVarBindListFree, ClientOpen, ClientClose, ClientRequest, ClientStrToOid);

Slots Bound() {
    const SnmpEntryPoints& t = snmpEntryPoints;
    return AddressesOf(t.snmpUtilMemAlloc, t.snmpUtilMemFree, t.snmpUtilOidFree, t.snmpUtilVarBindFree,
                       t.snmpUtilVarBindListFree, t.snmpMgrOpen, t.snmpMgrClose, t.snmpMgrRequest, t.snmpMgrStrToOid);
}

void Register(const std::string& path, size_t first, size_t end, size_t missing = kNone) {
    std::vector<win32::Export> exports;
    for (size_t i = first; i < end; ++i)
        if (i != missing) {
            exports.emplace_back(kNames[i], SystemFunction<0>);
            exports.back().function = reinterpret_cast<FARPROC>(kSystem[i]);
        }
    win32::RegisterLibrary(Widened(path).data(), exports);
}

void RegisterBoth(size_t missing = kNone) {
    Register(kSnmp, 0, 5, missing);
    Register(kMgmt, 5, 9, missing);
}

Words Loads() {
    return {"load " + kMgmt, "load " + kSnmp};
}

Words Finds(size_t count) {
    Words calls = Loads();
    for (size_t i = 0; i < count; ++i)
        calls.push_back(std::string("find ") + kNames[i]);
    return calls;
}

Words WithFrees(Words calls) {
    calls.push_back("free " + kMgmt);
    calls.push_back("free " + kSnmp);
    return calls;
}

void ExpectReleased() {
    EXPECT_EQ(Bound(), Slots{});
    EXPECT_EQ(snmpEntryPoints.mgmtApi, nullptr);
    EXPECT_EQ(snmpEntryPoints.snmpApi, nullptr);
    EXPECT_EQ(snmpEntryPoints.bindCount, 0u);
    EXPECT_FALSE(SnmpApiIsBound());
    EXPECT_EQ(win32::Count().libraryReferences, 0);
}

TEST(SnmpBind, SystemVersions) {
    const struct {
        DWORD platformId;
        DWORD major;
        size_t systemSlots; // 8: all but the text conversion
    } cases[] = {
        {2, 5, 9}, {2, 10, 9}, {2, 4, 8}, {2, 0, 8}, {0, 6, 0}, {1, 6, 0}, {3, 6, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.platformId) + " " + std::to_string(c.major));
        win32::Reset();
        win32::SetVersion(c.platformId, c.major);
        RegisterBoth(c.systemSlots); // it is not looked up, so it may be missing
        Slots expected = kSystem;
        if (c.systemSlots < 9)
            expected[kStrToOid] = kClient[kStrToOid];
        EXPECT_EQ(SnmpApiBind(), TRUE);
        EXPECT_EQ(Bound(), c.systemSlots > 0 ? expected : kClient);
        EXPECT_TRUE(SnmpApiIsBound());
        EXPECT_EQ(snmpEntryPoints.bindCount, 1u);
        EXPECT_EQ(win32::LibraryCalls(), c.systemSlots > 0 ? Finds(c.systemSlots) : Words());
        SnmpApiRelease();
        EXPECT_EQ(win32::LibraryCalls(), c.systemSlots > 0 ? WithFrees(Finds(c.systemSlots)) : Words());
        ExpectReleased();
        SnmpApiRelease();
        ExpectReleased();
    }
}

TEST(SnmpBind, LibraryThatDoesNotLoad) {
    for (const bool withMgmt : {false, true})
        for (const bool withSnmp : {false, true}) {
            if (withMgmt && withSnmp)
                continue;
            win32::Reset();
            if (withMgmt)
                Register(kMgmt, 5, 9);
            if (withSnmp)
                Register(kSnmp, 0, 5);
            EXPECT_EQ(SnmpApiBind(), TRUE);
            EXPECT_EQ(Bound(), kClient);
            EXPECT_TRUE(SnmpApiIsBound());
            EXPECT_EQ(win32::LibraryCalls(), Loads()) << "the second is tried also after the first has failed";
            EXPECT_EQ(snmpEntryPoints.mgmtApi != nullptr, withMgmt) << "stays loaded";
            EXPECT_EQ(snmpEntryPoints.snmpApi != nullptr, withSnmp);
            EXPECT_EQ(win32::Count().libraryReferences, withMgmt + withSnmp);
            SnmpApiRelease();
            ExpectReleased();
        }
}

TEST(SnmpBind, EntryPointThatIsMissing) {
    for (size_t missing = 0; missing < 9; ++missing) {
        SCOPED_TRACE(kNames[missing]);
        win32::Reset();
        RegisterBoth(missing);
        EXPECT_EQ(SnmpApiBind(), FALSE);
        EXPECT_EQ(win32::LibraryCalls(), WithFrees(Finds(missing + 1)));
        ExpectReleased();
        EXPECT_EQ(SnmpApiBind(), FALSE) << "tried again, and not with the built-in client";
        SnmpApiRelease();
        EXPECT_EQ(win32::LibraryCalls().size(), 2 * WithFrees(Finds(missing + 1)).size()) << "nothing is freed twice";
    }
}

TEST(SnmpBind, OnceBoundASecondBindChangesNothing) {
    EXPECT_EQ(SnmpApiBind(), TRUE);
    RegisterBoth(); // would be found now
    EXPECT_EQ(SnmpApiBind(), TRUE);
    EXPECT_EQ(Bound(), kClient);
    EXPECT_EQ(win32::LibraryCalls(), Loads());
    SnmpApiRelease();
    EXPECT_EQ(SnmpApiBind(), TRUE);
    EXPECT_EQ(Bound(), kSystem);
    SnmpApiRelease();
    ExpectReleased();
}

// A path of 259 characters is the longest that fits; one that doesn't is not cut. Without a directory a bare
// path could lead to another library.
TEST(SnmpBind, SystemDirectories) {
    for (const size_t length : {size_t{0}, size_t{247}, size_t{248}, size_t{260}, size_t{1000}}) {
        SCOPED_TRACE(length);
        win32::Reset();
        const std::string directory = std::string("C:\\" + std::string(length, 's')).substr(0, length);
        win32::SetSystemDirectory(Widened(directory).data());
        Register(directory + "\\SNMPAPI.DLL", 0, 5);
        Register(directory + "\\MGMTAPI.DLL", 5, 9);
        EXPECT_EQ(SnmpApiBind(), TRUE);
        EXPECT_EQ(Bound(), length == 247 ? kSystem : kClient);
        EXPECT_EQ(win32::Count().libraryReferences, length == 247 ? 2 : 0);
        EXPECT_EQ(win32::LibraryCalls().empty(), length != 247);
        SnmpApiRelease();
        ExpectReleased();
    }
}

} // namespace
