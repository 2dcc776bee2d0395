// A simulated printer: its agent, and the device behind it, which changes with time and by control lines.
#ifndef SIMPRINTER_PRINTER_H
#define SIMPRINTER_PRINTER_H

#include "simprinter/agent/agent.h"
#include "simprinter/device/alerts.h"
#include "simprinter/device/variation.h"

#include <chrono>

struct PrinterOptions {
    AgentOptions agent;
    std::string deviceFile, replayFile; // at most one; with neither it is the plain device
    bool isStrict = false;              // warnings about the file are errors
    std::vector<Fault> faults;
    unsigned seed = 1;
    double varySeconds = 0; // in which the fastest tray is used up; 0: levels don't change
};

using UpTime = std::chrono::duration<int64_t, std::milli>; // since start

struct Printer {
    std::string address;
    PrinterOptions options;
    Agent agent;
    std::optional<Device> start; // as described; nothing when a recording is served
    Device device;               // as it is now
    AlertTable alerts;
    Variation variation;
    std::shared_ptr<ObjectMap> own; // the agent's objects, unless they are a recording
    bool isChanged = true;          // the objects must be built again before the next answer
    std::string place = {};         // where a list has it, "FILE:LINE:COLUMN: "
};

// What was read from files, each of them once. Findings go to the standard error output.
struct PrinterFiles {
    std::map<std::string, std::shared_ptr<const ObjectMap>> recordings;
    std::map<std::string, Device> devices;
};

// Throws std::runtime_error when a file can't be read or has errors.
Printer StartPrinter(const std::string& address, const PrinterOptions& options, PrinterFiles& files);

// The time has come to this: levels change, alerts appear and vanish.
void AdvancePrinter(Printer& printer, UpTime upTime);

// The device has been changed.
void NoteChange(Printer& printer, UpTime upTime);

Outcome AnswerDatagram(Printer& printer, const Bytes& datagram, UpTime upTime);

#endif
