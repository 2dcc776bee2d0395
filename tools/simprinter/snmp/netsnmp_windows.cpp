// What net-snmp's files that encode and decode messages need of its other files, which the Windows build does
// without.
#include <cstdlib>
// net-snmp's headers require this order.
// clang-format off
#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>
// clang-format on

// Gives a block more room; 0 when there is no memory.
int snmp_realloc(u_char** block, size_t* size) {
    const size_t larger = 2 * *size + 256;
    auto* const moved = static_cast<u_char*>(std::realloc(*block, larger));
    if (!moved)
        return 0;
    *block = moved;
    *size = larger;
    return 1;
}

// Descriptions of errors, which the agent's log has in its own words.
void snmp_set_detail(const char*) {}

int snmp_log(int, const char*, ...) {
    return 0;
}

int netsnmp_get_debug_log_level() {
    return 0;
}
