// Fuzz target: any text as the output of snmpwalk. What is read is served, and is read again from what net-snmp's
// library prints of it.
#include "served_walk.h"

#include "simprinter/recordings/recording.h"

#include <cstdlib>
// net-snmp's headers require this order.
// clang-format off
#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>
// clang-format on

namespace {

// A line as snmpwalk -On prints it.
std::string Printed(const Oid& name, const Value& value) {
    const std::vector<oid> subIds(name.begin(), name.end()), valueIds(value.oid.begin(), value.oid.end());
    const auto number = static_cast<long>(value.number);
    counter64 halves = {static_cast<u_long>(value.number) >> 32, static_cast<u_long>(value.number) & UINT32_MAX};
    const void* contents = value.bytes.data();
    size_t size = value.bytes.size();
    if (value.tag == kObjectId) {
        contents = valueIds.data();
        size = valueIds.size() * sizeof(oid);
    } else if (value.tag == kCounter64) {
        contents = &halves;
        size = sizeof halves;
    } else if (IsNumber(value.tag)) {
        contents = &number;
        size = sizeof number;
    }
    netsnmp_variable_list* variable = nullptr;
    snmp_varlist_add_variable(&variable, subIds.data(), subIds.size(), value.tag, contents, size);
    u_char* text = nullptr;
    size_t room = 0, used = 0;
    sprint_realloc_variable(&text, &room, &used, 1, subIds.data(), subIds.size(), variable);
    std::string line(reinterpret_cast<const char*>(text), used);
    std::free(text);
    snmp_free_varbind(variable);
    return line + '\n';
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* octets, size_t count) {
    netsnmp_ds_set_int(NETSNMP_DS_LIBRARY_ID, NETSNMP_DS_LIB_OID_OUTPUT_FORMAT, NETSNMP_OID_OUTPUT_NUMERIC);
    Findings findings, again;
    ObjectMap objects = ReadRecording(std::string(octets, octets + count), findings);
    Require(objects.empty() == findings.HasErrors(), "nothing is read without an error, or something with one");
    RequireSameWalk(objects);
    // The last two print without their types or in other ones.
    std::string printed = ".1.3.6 = INTEGER: 0\n";
    for (auto object = objects.begin(); object != objects.end();) {
        const Tag tag = object->second.tag;
        const bool isExact = object->first != Oid{1, 3, 6} && tag != kOpaque && tag != kUnsigned;
        printed += isExact ? Printed(object->first, object->second) : "";
        object = isExact ? std::next(object) : objects.erase(object);
    }
    objects[{1, 3, 6}] = NumberValue(0);
    Require(ReadRecording(printed, again) == objects && again.list.empty(), "a walk of it is read differently");
    return 0;
}
