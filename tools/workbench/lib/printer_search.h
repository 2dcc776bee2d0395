// Looks for printers on the local network: one SNMP broadcast, then two requests to each device that answers.
#ifndef WORKBENCH_LIB_PRINTER_SEARCH_H
#define WORKBENCH_LIB_PRINTER_SEARCH_H

#include "workbench/lib/snmp_probe.h"

#include <vector>
#include <windows.h>

struct FoundPrinter {
    std::string address;
    std::string name;
    std::string model;
};

// A search, until the object is destroyed. It neither waits nor has a thread: when answers have arrived, the
// system posts `message` to the window, which then calls Receive.
//
// Where the environment variable LUMORA_SEARCH has addresses, separated by spaces, these are asked instead of
// the network.
class PrinterSearch {
public:
    PrinterSearch(HWND window, UINT message);
    ~PrinterSearch();
    PrinterSearch(const PrinterSearch&) = delete;
    PrinterSearch& operator=(const PrinterSearch&) = delete;

    // Reads the answers. Returns the printers that are known since the last call.
    std::vector<FoundPrinter> Receive();

    bool IsSent() const { return isSent; } // false: there is no network

private:
    struct Device {
        uint32_t address; // in network order
        FoundPrinter printer;
        bool hasName;
        bool isPrinter;
        bool isReturned;
    };

    bool Send(uint32_t address, size_t question) const;
    Device& DeviceAt(uint32_t address);
    void TakeReply(uint32_t address, const SnmpReplyText& reply);

    const SocketsStart sockets;
    const uintptr_t handle; // of the socket
    bool isSent = false;
    std::vector<Device> devices;
};

#endif
