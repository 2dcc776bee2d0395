// The standard objects that printers serve: System, Interfaces, IP, Host Resources, Printer MIB, finisher
// extensions and the port monitor's objects, each with its name, object identifier, syntax and words.
// Depends on the standard library only.
#ifndef COMMON_STANDARD_OBJECTS_H
#define COMMON_STANDARD_OBJECTS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// How a value is transported; the numbers are the tags of SNMP messages. The last ones are OCTET STRINGs that
// programs print in a form of their own.
enum class Syntax : uint8_t {
    kNode = 0, // no value: a name for a point of the tree
    kInteger = 0x02,
    kText = 0x04,
    kOid = 0x06,
    kIpAddress = 0x40,
    kCounter32 = 0x41,
    kGauge32 = 0x42,
    kTimeTicks = 0x43,
    kCounter64 = 0x46,
    kDateAndTime = 0x84, // 8 or 11 bytes; "2026-5-1,12:0:0.0,+1:0"
    kPhysAddress = 0x85, // "0:1b:2c:3d:4e:5f"
};

struct StandardObject {
    const char* name;
    uint32_t number; // the last sub-identifier
    Syntax syntax;
    const char* words = nullptr; // of an enumeration: "1:other unknown 5:ready" has the numbers 1, 2 and 5
};

// The objects below one parent: the columns of a table, or the scalars and nodes of a group.
struct ObjectGroup {
    const char* module;
    const char* parent; // object identifier, without a leading dot
    const StandardObject* objects;
    size_t count;
};

struct FoundObject {
    const ObjectGroup* group;
    const StandardObject* object;
    std::vector<uint32_t> oid;   // of the object
    std::vector<uint32_t> index; // what follows it
};

// The name is without its module; upper and lower case count.
std::optional<FoundObject> FindObject(std::string_view name);

// The object whose identifier is the longest prefix of `oid`.
std::optional<FoundObject> FindObjectAt(const std::vector<uint32_t>& oid);

// The word of an enumeration's number; empty when it has none.
std::string_view WordOfNumber(const StandardObject& object, int64_t number);
std::optional<int32_t> NumberOfWord(const StandardObject& object, std::string_view word);
std::vector<std::string> WordsOf(const StandardObject& object);

#endif
