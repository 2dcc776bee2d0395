// Rows of the table of standard objects: names of the tree, System, Interfaces, IP and Host Resources.
#ifndef COMMON_STANDARD_OBJECTS_HOST_H
#define COMMON_STANDARD_OBJECTS_HOST_H

#include "common/standard_objects.h"

namespace standard_objects {

constexpr const char* kTruth = "1:true false";
constexpr const char* kMedia =
    "1:other unknown hardDisk floppyDisk opticalDiskROM opticalDiskWORM opticalDiskRW ramDisk";
constexpr const char* kSoftware = "1:unknown operatingSystem deviceDriver application";

// SNMPv2-SMI, the roots
constexpr StandardObject kRoots[] = {
    {"ccitt", 0, Syntax::kNode},
    {"iso", 1, Syntax::kNode},
    {"joint-iso-ccitt", 2, Syntax::kNode},
};

// SNMPv2-SMI 0
constexpr StandardObject kNull[] = {
    {"zeroDotZero", 0, Syntax::kNode},
};

// SNMPv2-SMI 1
constexpr StandardObject kIso[] = {
    {"org", 3, Syntax::kNode},
};

// SNMPv2-SMI 1.3
constexpr StandardObject kOrg[] = {
    {"dod", 6, Syntax::kNode},
};

// SNMPv2-SMI 1.3.6
constexpr StandardObject kDod[] = {
    {"internet", 1, Syntax::kNode},
};

// SNMPv2-SMI 1.3.6.1
constexpr StandardObject kInternet[] = {
    {"directory", 1, Syntax::kNode}, {"mgmt", 2, Syntax::kNode},     {"experimental", 3, Syntax::kNode},
    {"private", 4, Syntax::kNode},   {"security", 5, Syntax::kNode}, {"snmpV2", 6, Syntax::kNode},
};

// SNMPv2-SMI 1.3.6.1.4
constexpr StandardObject kPrivate[] = {
    {"enterprises", 1, Syntax::kNode},
};

// SNMPv2-SMI 1.3.6.1.2
constexpr StandardObject kMgmt[] = {
    {"mib-2", 1, Syntax::kNode},
};

// SNMPv2-SMI 1.3.6.1.2.1
constexpr StandardObject kMib2[] = {
    {"system", 1, Syntax::kNode},  {"interfaces", 2, Syntax::kNode},
    {"at", 3, Syntax::kNode},      {"ip", 4, Syntax::kNode},
    {"icmp", 5, Syntax::kNode},    {"tcp", 6, Syntax::kNode},
    {"udp", 7, Syntax::kNode},     {"transmission", 10, Syntax::kNode},
    {"snmp", 11, Syntax::kNode},   {"host", 25, Syntax::kNode},
    {"ifMIB", 31, Syntax::kNode},  {"printmib", 43, Syntax::kNode},
    {"ipMIB", 48, Syntax::kNode},  {"tcpMIB", 49, Syntax::kNode},
    {"udpMIB", 50, Syntax::kNode}, {"notificationLogMIB", 92, Syntax::kNode},
};

// What sysORID and sysObjectID name, each below a module of 1.3.6.1.6.3
constexpr StandardObject kSnmpModules[] = {
    {"snmpMIB", 1, Syntax::kNode},
};
constexpr StandardObject kFrameworkCompliances[] = {
    {"snmpFrameworkMIBCompliance", 1, Syntax::kNode},
};
constexpr StandardObject kMessageCompliances[] = {
    {"snmpMPDCompliance", 1, Syntax::kNode},
};
constexpr StandardObject kNotifyCompliances[] = {
    {"snmpNotifyBasicCompliance", 1, Syntax::kNode},
    {"snmpNotifyBasicFiltersCompliance", 2, Syntax::kNode},
    {"snmpNotifyFullCompliance", 3, Syntax::kNode},
};
constexpr StandardObject kUserCompliances[] = {
    {"usmMIBCompliance", 1, Syntax::kNode},
};
constexpr StandardObject kViewGroups[] = {
    {"vacmBasicGroup", 1, Syntax::kNode},
};
constexpr StandardObject kNetSnmp[] = {
    {"netSnmpAgentOIDs", 2, Syntax::kNode},
};

// SNMPv2-MIB 1.3.6.1.2.1.1
constexpr StandardObject kSystem[] = {
    {"sysDescr", 1, Syntax::kText},       {"sysObjectID", 2, Syntax::kOid},
    {"sysUpTime", 3, Syntax::kTimeTicks}, {"sysContact", 4, Syntax::kText},
    {"sysName", 5, Syntax::kText},        {"sysLocation", 6, Syntax::kText},
    {"sysServices", 7, Syntax::kInteger}, {"sysORLastChange", 8, Syntax::kTimeTicks},
};

// DISMAN-EVENT-MIB 1.3.6.1.2.1.1.3
constexpr StandardObject kSystemUpTime[] = {
    {"sysUpTimeInstance", 0, Syntax::kTimeTicks},
};

// SNMPv2-MIB 1.3.6.1.2.1.1.9.1
constexpr StandardObject kObjectResources[] = {
    {"sysORIndex", 1, Syntax::kInteger},
    {"sysORID", 2, Syntax::kOid},
    {"sysORDescr", 3, Syntax::kText},
    {"sysORUpTime", 4, Syntax::kTimeTicks},
};

// SNMPv2-MIB 1.3.6.1.2.1.11
constexpr StandardObject kSnmp[] = {
    {"snmpInPkts", 1, Syntax::kCounter32},
    {"snmpOutPkts", 2, Syntax::kCounter32},
    {"snmpInBadVersions", 3, Syntax::kCounter32},
    {"snmpInBadCommunityNames", 4, Syntax::kCounter32},
    {"snmpInBadCommunityUses", 5, Syntax::kCounter32},
    {"snmpInASNParseErrs", 6, Syntax::kCounter32},
    {"snmpInTooBigs", 8, Syntax::kCounter32},
    {"snmpInNoSuchNames", 9, Syntax::kCounter32},
    {"snmpInBadValues", 10, Syntax::kCounter32},
    {"snmpInReadOnlys", 11, Syntax::kCounter32},
    {"snmpInGenErrs", 12, Syntax::kCounter32},
    {"snmpInTotalReqVars", 13, Syntax::kCounter32},
    {"snmpInTotalSetVars", 14, Syntax::kCounter32},
    {"snmpInGetRequests", 15, Syntax::kCounter32},
    {"snmpInGetNexts", 16, Syntax::kCounter32},
    {"snmpInSetRequests", 17, Syntax::kCounter32},
    {"snmpInGetResponses", 18, Syntax::kCounter32},
    {"snmpInTraps", 19, Syntax::kCounter32},
    {"snmpOutTooBigs", 20, Syntax::kCounter32},
    {"snmpOutNoSuchNames", 21, Syntax::kCounter32},
    {"snmpOutBadValues", 22, Syntax::kCounter32},
    {"snmpOutGenErrs", 24, Syntax::kCounter32},
    {"snmpOutGetRequests", 25, Syntax::kCounter32},
    {"snmpOutGetNexts", 26, Syntax::kCounter32},
    {"snmpOutSetRequests", 27, Syntax::kCounter32},
    {"snmpOutGetResponses", 28, Syntax::kCounter32},
    {"snmpOutTraps", 29, Syntax::kCounter32},
    {"snmpEnableAuthenTraps", 30, Syntax::kInteger, "1:enabled disabled"},
    {"snmpSilentDrops", 31, Syntax::kCounter32},
    {"snmpProxyDrops", 32, Syntax::kCounter32},
};

// IF-MIB 1.3.6.1.2.1.2
constexpr StandardObject kInterfaces[] = {
    {"ifNumber", 1, Syntax::kInteger},
};

// IF-MIB 1.3.6.1.2.1.2.2.1
constexpr StandardObject kInterface[] = {
    {"ifIndex", 1, Syntax::kInteger},
    {"ifDescr", 2, Syntax::kText},
    {"ifType", 3, Syntax::kInteger, "1:other 6:ethernetCsmacd 24:softwareLoopback 71:ieee80211 160:usb"},
    {"ifMtu", 4, Syntax::kInteger},
    {"ifSpeed", 5, Syntax::kGauge32},
    {"ifPhysAddress", 6, Syntax::kPhysAddress},
    {"ifAdminStatus", 7, Syntax::kInteger, "1:up down testing"},
    {"ifOperStatus", 8, Syntax::kInteger, "1:up down testing unknown dormant notPresent lowerLayerDown"},
    {"ifLastChange", 9, Syntax::kTimeTicks},
    {"ifInOctets", 10, Syntax::kCounter32},
    {"ifInUcastPkts", 11, Syntax::kCounter32},
    {"ifInNUcastPkts", 12, Syntax::kCounter32},
    {"ifInDiscards", 13, Syntax::kCounter32},
    {"ifInErrors", 14, Syntax::kCounter32},
    {"ifInUnknownProtos", 15, Syntax::kCounter32},
    {"ifOutOctets", 16, Syntax::kCounter32},
    {"ifOutUcastPkts", 17, Syntax::kCounter32},
    {"ifOutNUcastPkts", 18, Syntax::kCounter32},
    {"ifOutDiscards", 19, Syntax::kCounter32},
    {"ifOutErrors", 20, Syntax::kCounter32},
    {"ifOutQLen", 21, Syntax::kGauge32},
    {"ifSpecific", 22, Syntax::kOid},
};

// IF-MIB 1.3.6.1.2.1.31.1.1.1
constexpr StandardObject kInterfaceExtension[] = {
    {"ifName", 1, Syntax::kText},
    {"ifInMulticastPkts", 2, Syntax::kCounter32},
    {"ifInBroadcastPkts", 3, Syntax::kCounter32},
    {"ifOutMulticastPkts", 4, Syntax::kCounter32},
    {"ifOutBroadcastPkts", 5, Syntax::kCounter32},
    {"ifHCInOctets", 6, Syntax::kCounter64},
    {"ifHCInUcastPkts", 7, Syntax::kCounter64},
    {"ifHCInMulticastPkts", 8, Syntax::kCounter64},
    {"ifHCInBroadcastPkts", 9, Syntax::kCounter64},
    {"ifHCOutOctets", 10, Syntax::kCounter64},
    {"ifHCOutUcastPkts", 11, Syntax::kCounter64},
    {"ifHCOutMulticastPkts", 12, Syntax::kCounter64},
    {"ifHCOutBroadcastPkts", 13, Syntax::kCounter64},
    {"ifLinkUpDownTrapEnable", 14, Syntax::kInteger, "1:enabled disabled"},
    {"ifHighSpeed", 15, Syntax::kGauge32},
    {"ifPromiscuousMode", 16, Syntax::kInteger, kTruth},
    {"ifConnectorPresent", 17, Syntax::kInteger, kTruth},
    {"ifAlias", 18, Syntax::kText},
    {"ifCounterDiscontinuityTime", 19, Syntax::kTimeTicks},
};

// IF-MIB 1.3.6.1.2.1.31.1
constexpr StandardObject kInterfaceChanges[] = {
    {"ifTableLastChange", 5, Syntax::kTimeTicks},
    {"ifStackLastChange", 6, Syntax::kTimeTicks},
};

// RFC1213-MIB 1.3.6.1.2.1.3.1.1
constexpr StandardObject kAddressTranslation[] = {
    {"atIfIndex", 1, Syntax::kInteger},
    {"atPhysAddress", 2, Syntax::kPhysAddress},
    {"atNetAddress", 3, Syntax::kIpAddress},
};

// IP-MIB 1.3.6.1.2.1.4
constexpr StandardObject kIp[] = {
    {"ipForwarding", 1, Syntax::kInteger, "1:forwarding notForwarding"},
    {"ipDefaultTTL", 2, Syntax::kInteger},
    {"ipInReceives", 3, Syntax::kCounter32},
    {"ipInHdrErrors", 4, Syntax::kCounter32},
    {"ipInAddrErrors", 5, Syntax::kCounter32},
    {"ipForwDatagrams", 6, Syntax::kCounter32},
    {"ipInUnknownProtos", 7, Syntax::kCounter32},
    {"ipInDiscards", 8, Syntax::kCounter32},
    {"ipInDelivers", 9, Syntax::kCounter32},
    {"ipOutRequests", 10, Syntax::kCounter32},
    {"ipOutDiscards", 11, Syntax::kCounter32},
    {"ipOutNoRoutes", 12, Syntax::kCounter32},
    {"ipReasmTimeout", 13, Syntax::kInteger},
    {"ipReasmReqds", 14, Syntax::kCounter32},
    {"ipReasmOKs", 15, Syntax::kCounter32},
    {"ipReasmFails", 16, Syntax::kCounter32},
    {"ipFragOKs", 17, Syntax::kCounter32},
    {"ipFragFails", 18, Syntax::kCounter32},
    {"ipFragCreates", 19, Syntax::kCounter32},
};

// IP-MIB 1.3.6.1.2.1.4.20.1
constexpr StandardObject kIpAddresses[] = {
    {"ipAdEntAddr", 1, Syntax::kIpAddress},       {"ipAdEntIfIndex", 2, Syntax::kInteger},
    {"ipAdEntNetMask", 3, Syntax::kIpAddress},    {"ipAdEntBcastAddr", 4, Syntax::kInteger},
    {"ipAdEntReasmMaxSize", 5, Syntax::kInteger},
};

// IP-MIB 1.3.6.1.2.1.4.22.1
constexpr StandardObject kIpNeighbours[] = {
    {"ipNetToMediaIfIndex", 1, Syntax::kInteger},
    {"ipNetToMediaPhysAddress", 2, Syntax::kPhysAddress},
    {"ipNetToMediaNetAddress", 3, Syntax::kIpAddress},
    {"ipNetToMediaType", 4, Syntax::kInteger, "1:other invalid dynamic static"},
};

// TCP-MIB 1.3.6.1.2.1.6
constexpr StandardObject kTcp[] = {
    {"tcpRtoAlgorithm", 1, Syntax::kInteger, "1:other constant rsre vanj"},
    {"tcpRtoMin", 2, Syntax::kInteger},
    {"tcpRtoMax", 3, Syntax::kInteger},
    {"tcpMaxConn", 4, Syntax::kInteger},
    {"tcpActiveOpens", 5, Syntax::kCounter32},
    {"tcpPassiveOpens", 6, Syntax::kCounter32},
    {"tcpAttemptFails", 7, Syntax::kCounter32},
    {"tcpEstabResets", 8, Syntax::kCounter32},
    {"tcpCurrEstab", 9, Syntax::kGauge32},
    {"tcpInSegs", 10, Syntax::kCounter32},
    {"tcpOutSegs", 11, Syntax::kCounter32},
    {"tcpRetransSegs", 12, Syntax::kCounter32},
    {"tcpInErrs", 14, Syntax::kCounter32},
    {"tcpOutRsts", 15, Syntax::kCounter32},
};

// UDP-MIB 1.3.6.1.2.1.7
constexpr StandardObject kUdp[] = {
    {"udpInDatagrams", 1, Syntax::kCounter32},
    {"udpNoPorts", 2, Syntax::kCounter32},
    {"udpInErrors", 3, Syntax::kCounter32},
    {"udpOutDatagrams", 4, Syntax::kCounter32},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.1
constexpr StandardObject kHostSystem[] = {
    {"hrSystemUptime", 1, Syntax::kTimeTicks},          {"hrSystemDate", 2, Syntax::kDateAndTime},
    {"hrSystemInitialLoadDevice", 3, Syntax::kInteger}, {"hrSystemInitialLoadParameters", 4, Syntax::kText},
    {"hrSystemNumUsers", 5, Syntax::kGauge32},          {"hrSystemProcesses", 6, Syntax::kGauge32},
    {"hrSystemMaxProcesses", 7, Syntax::kInteger},
};

// HOST-RESOURCES-TYPES 1.3.6.1.2.1.25.2.1
constexpr StandardObject kStorageTypes[] = {
    {"hrStorageOther", 1, Syntax::kNode},         {"hrStorageRam", 2, Syntax::kNode},
    {"hrStorageVirtualMemory", 3, Syntax::kNode}, {"hrStorageFixedDisk", 4, Syntax::kNode},
    {"hrStorageRemovableDisk", 5, Syntax::kNode}, {"hrStorageFloppyDisk", 6, Syntax::kNode},
    {"hrStorageCompactDisc", 7, Syntax::kNode},   {"hrStorageRamDisk", 8, Syntax::kNode},
    {"hrStorageFlashMemory", 9, Syntax::kNode},   {"hrStorageNetworkDisk", 10, Syntax::kNode},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.2
constexpr StandardObject kHostMemory[] = {
    {"hrMemorySize", 2, Syntax::kInteger},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.2.3.1
constexpr StandardObject kStorage[] = {
    {"hrStorageIndex", 1, Syntax::kInteger},
    {"hrStorageType", 2, Syntax::kOid},
    {"hrStorageDescr", 3, Syntax::kText},
    {"hrStorageAllocationUnits", 4, Syntax::kInteger},
    {"hrStorageSize", 5, Syntax::kInteger},
    {"hrStorageUsed", 6, Syntax::kInteger},
    {"hrStorageAllocationFailures", 7, Syntax::kCounter32},
};

// HOST-RESOURCES-TYPES 1.3.6.1.2.1.25.3.1
constexpr StandardObject kDeviceTypes[] = {
    {"hrDeviceOther", 1, Syntax::kNode},           {"hrDeviceUnknown", 2, Syntax::kNode},
    {"hrDeviceProcessor", 3, Syntax::kNode},       {"hrDeviceNetwork", 4, Syntax::kNode},
    {"hrDevicePrinter", 5, Syntax::kNode},         {"hrDeviceDiskStorage", 6, Syntax::kNode},
    {"hrDeviceVideo", 10, Syntax::kNode},          {"hrDeviceAudio", 11, Syntax::kNode},
    {"hrDeviceCoprocessor", 12, Syntax::kNode},    {"hrDeviceKeyboard", 13, Syntax::kNode},
    {"hrDeviceModem", 14, Syntax::kNode},          {"hrDeviceParallelPort", 15, Syntax::kNode},
    {"hrDevicePointing", 16, Syntax::kNode},       {"hrDeviceSerialPort", 17, Syntax::kNode},
    {"hrDeviceTape", 18, Syntax::kNode},           {"hrDeviceClock", 19, Syntax::kNode},
    {"hrDeviceVolatileMemory", 20, Syntax::kNode}, {"hrDeviceNonVolatileMemory", 21, Syntax::kNode},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.3.2.1
constexpr StandardObject kDevice[] = {
    {"hrDeviceIndex", 1, Syntax::kInteger},
    {"hrDeviceType", 2, Syntax::kOid},
    {"hrDeviceDescr", 3, Syntax::kText},
    {"hrDeviceID", 4, Syntax::kOid},
    {"hrDeviceStatus", 5, Syntax::kInteger, "1:unknown running warning testing down"},
    {"hrDeviceErrors", 6, Syntax::kCounter32},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.3.3.1
constexpr StandardObject kProcessor[] = {
    {"hrProcessorFrwID", 1, Syntax::kOid},
    {"hrProcessorLoad", 2, Syntax::kInteger},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.3.4.1
constexpr StandardObject kNetwork[] = {
    {"hrNetworkIfIndex", 1, Syntax::kInteger},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.3.5.1
constexpr StandardObject kHostPrinter[] = {
    {"hrPrinterStatus", 1, Syntax::kInteger, "1:other unknown idle printing warmup"},
    {"hrPrinterDetectedErrorState", 2, Syntax::kText},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.3.6.1
constexpr StandardObject kDiskStorage[] = {
    {"hrDiskStorageAccess", 1, Syntax::kInteger, "1:readWrite readOnly"},
    {"hrDiskStorageMedia", 2, Syntax::kInteger, kMedia},
    {"hrDiskStorageRemoveble", 3, Syntax::kInteger, kTruth},
    {"hrDiskStorageCapacity", 4, Syntax::kInteger},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.3.7.1
constexpr StandardObject kPartition[] = {
    {"hrPartitionIndex", 1, Syntax::kInteger},   {"hrPartitionLabel", 2, Syntax::kText},
    {"hrPartitionID", 3, Syntax::kText},         {"hrPartitionSize", 4, Syntax::kInteger},
    {"hrPartitionFSIndex", 5, Syntax::kInteger},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.3.8.1
constexpr StandardObject kFileSystem[] = {
    {"hrFSIndex", 1, Syntax::kInteger},
    {"hrFSMountPoint", 2, Syntax::kText},
    {"hrFSRemoteMountPoint", 3, Syntax::kText},
    {"hrFSType", 4, Syntax::kOid},
    {"hrFSAccess", 5, Syntax::kInteger, "1:readWrite readOnly"},
    {"hrFSBootable", 6, Syntax::kInteger, kTruth},
    {"hrFSStorageIndex", 7, Syntax::kInteger},
    {"hrFSLastFullBackupDate", 8, Syntax::kDateAndTime},
    {"hrFSLastPartialBackupDate", 9, Syntax::kDateAndTime},
};

// HOST-RESOURCES-TYPES 1.3.6.1.2.1.25.3.9
constexpr StandardObject kFileSystemTypes[] = {
    {"hrFSOther", 1, Syntax::kNode},       {"hrFSUnknown", 2, Syntax::kNode},
    {"hrFSBerkeleyFFS", 3, Syntax::kNode}, {"hrFSFat", 5, Syntax::kNode},
    {"hrFSiso9660", 12, Syntax::kNode},    {"hrFSNFS", 14, Syntax::kNode},
    {"hrFSFAT32", 22, Syntax::kNode},      {"hrFSLinuxExt2", 23, Syntax::kNode},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.4
constexpr StandardObject kRunning[] = {
    {"hrSWOSIndex", 1, Syntax::kInteger},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.4.2.1
constexpr StandardObject kRunningSoftware[] = {
    {"hrSWRunIndex", 1, Syntax::kInteger},
    {"hrSWRunName", 2, Syntax::kText},
    {"hrSWRunID", 3, Syntax::kOid},
    {"hrSWRunPath", 4, Syntax::kText},
    {"hrSWRunParameters", 5, Syntax::kText},
    {"hrSWRunType", 6, Syntax::kInteger, kSoftware},
    {"hrSWRunStatus", 7, Syntax::kInteger, "1:running runnable notRunnable invalid"},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.5.1.1
constexpr StandardObject kRunningLoad[] = {
    {"hrSWRunPerfCPU", 1, Syntax::kInteger},
    {"hrSWRunPerfMem", 2, Syntax::kInteger},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.6
constexpr StandardObject kInstalled[] = {
    {"hrSWInstalledLastChange", 1, Syntax::kTimeTicks},
    {"hrSWInstalledLastUpdateTime", 2, Syntax::kTimeTicks},
};

// HOST-RESOURCES-MIB 1.3.6.1.2.1.25.6.3.1
constexpr StandardObject kInstalledSoftware[] = {
    {"hrSWInstalledIndex", 1, Syntax::kInteger},    {"hrSWInstalledName", 2, Syntax::kText},
    {"hrSWInstalledID", 3, Syntax::kOid},           {"hrSWInstalledType", 4, Syntax::kInteger, kSoftware},
    {"hrSWInstalledDate", 5, Syntax::kDateAndTime},
};

} // namespace standard_objects

#endif
