// How printers of this model are recognized and queried on the network.
#ifndef DEVCOMM_MODEL_H
#define DEVCOMM_MODEL_H

constexpr const char* kModelName = "QUORVANE lumora R880";
constexpr const char* kCommunity = "tovask"; // of every SNMP request

#endif
