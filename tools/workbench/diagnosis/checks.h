// What a diagnosis can find: each function looks into the observations for one thing that can be wrong, and
// returns a sentence about it, which is empty when this is in order. findings.cpp has what the driver makes
// of each.
#ifndef WORKBENCH_DIAGNOSIS_CHECKS_H
#define WORKBENCH_DIAGNOSIS_CHECKS_H

#include "workbench/diagnosis/observations.h"

// The name, and whether and how the device is addressed.
std::string FindUnknownHost(const Observations& seen);
std::string FindNoNameService(const Observations& seen);
std::string FindIpv6Only(const Observations& seen);
std::string FindNoRoute(const Observations& seen);
std::string FindClosed(const Observations& seen);
std::string FindOtherMessages(const Observations& seen);
std::string FindSilent(const Observations& seen);
std::string FindOtherVersion(const Observations& seen);
std::string FindOtherCommunity(const Observations& seen);

// The datagrams that arrive.
std::string FindOtherAddress(const Observations& seen);
std::string FindOtherPort(const Observations& seen);
std::string FindCut(const Observations& seen);
std::string FindMalformed(const Observations& seen);
std::string FindErrorStatus(const Observations& seen);
std::string FindStale(const Observations& seen);
std::string FindSilentObjects(const Observations& seen);
std::string FindLoss(const Observations& seen);
std::string FindLateStart(const Observations& seen);
std::string FindSlow(const Observations& seen);
std::string FindDuplicates(const Observations& seen);
std::string FindChangedCommunity(const Observations& seen);

// The values of the objects, the device and the driver's own queries.
std::string FindWrongType(const Observations& seen);
std::string FindNumberType(const Observations& seen);
std::string FindNotAPrinter(const Observations& seen);
std::string FindStopped(const Observations& seen);
std::string FindOtherDevice(const Observations& seen);
std::string FindOtherModel(const Observations& seen);
std::string FindUnknownModel(const Observations& seen);
std::string FindUnreadAlerts(const Observations& seen);
std::string FindOtherSupplies(const Observations& seen);
std::string FindUnusableValues(const Observations& seen);
std::string FindMissingValues(const Observations& seen);
std::string FindDriverFailed(const Observations& seen);

// Whether the agent answers the version, or the community, that the driver uses, or even the driver itself.
bool HasDriversVersion(const Observations& seen);
bool HasDriversCommunity(const Observations& seen);

constexpr int32_t kNoSuchName = 2; // error-status: the object does not exist

// "1 request", "2 requests".
std::string Times(size_t count, const char* thing);

// "12 ms".
std::string Milliseconds(double time);

#endif
