// Queries a printer through the module's exports, and finds out why a query has failed.
#include "workbench/lib/printer_queries.h"

#include "workbench/lib/host_address.h"
#include "workbench/lib/printer_place.h"
#include "workbench/lib/record_fields.h"
#include "workbench/lib/snmp_probe.h"

#include <algorithm>

namespace {

constexpr const char* kLibraryName = "TELMAR_B.DLL";

// The options that the module can request through the library. No export lists them.
constexpr const char* kLibraryOptions[] = {
    "OpMachine",    "OpInTrayUnit", "OpOutTrayUnit", "OpPunchKit",
    "OpMailBinKit", "OpSaddleKit",  "OpFAXUnit",     "OpHDD",
};

constexpr Field kAnswerFields[] = {
    {"option", Show<&OptionRequestItem::key>},
    {"answer", Show<&OptionRequestItem::value>},
};

[[noreturn]] void Fail(Outcome outcome, const Printer& printer, const std::string& detail = {}) {
    throw PrinterFailure(outcome, printer.address, detail);
}

} // namespace

uint32_t AgentAddress(const Printer& printer) {
    uint32_t address = 0;
    switch (FindHost(printer.agent, address)) {
    case HostKind::kUnknown:
        Fail(Outcome::kUnknownHost, printer);
    case HostKind::kNoNameService:
        Fail(Outcome::kNoNameService, printer);
    case HostKind::kIpv6:
        Fail(Outcome::kIpv6Address, printer);
    case HostKind::kIpv4:
        break;
    }
    return address;
}

namespace {

// Fails when the device answers with an error, or is no printer. The module accepts any answer to its check,
// and takes an option that is answered by an error as not installed.
void CheckKind(const Printer& printer, uint32_t address) {
    const ProbeAnswer agent = ProbeObject(address, kAgentObject);
    if (agent.end == ProbeEnd::kAnswered && agent.reply.errorStatus != 0)
        Fail(Outcome::kErrorStatus, printer, std::to_string(agent.reply.errorStatus));
    const ProbeAnswer tray = ProbeObject(address, kPrinterObject);
    if (tray.end != ProbeEnd::kAnswered || tray.reply.errorStatus == 0)
        return;
    const PrinterPlace place = FindPrinterPlace(NextObjectsAt(address));
    if (place.device > 1)
        Fail(Outcome::kOtherNumber, printer, std::to_string(place.device));
    if (place.isAnswered && place.device == 0)
        Fail(Outcome::kNotAPrinter, printer);
}

// Fails with the reason why the module has reached no printer. It does not say: its last errors are those of
// its built-in client, or of the system's libraries, or of the bidirectional library.
[[noreturn]] void FailToReach(const Printer& printer, uint32_t address) {
    const ProbeEnd end = ProbeObject(address, kAgentObject).end;
    if (end != ProbeEnd::kAnswered)
        FailAsProbed(printer, end);
    CheckKind(printer, address);
    Fail(Outcome::kSlow, printer);
}

// Fails with the reason why a query has failed of a printer that was reached. It has answered before, so it
// gets as many requests as the module sends.
[[noreturn]] void FailToQuery(const Printer& printer) {
    const ProbeEnd end = ProbeObject(AgentAddress(printer), kAgentObject, kPatientSends).end;
    Fail(end == ProbeEnd::kAnswered ? Outcome::kSlow : Outcome::kInterrupted, printer);
}

void CheckByLibrary(const Printer& printer, uint32_t address) {
    if (TransportOf(printer.family) != Transport::kLibrary)
        Fail(Outcome::kNoLibrary, printer,
             (printer.family.modulePath.parent_path() / kLibraryName).u8string());
    int32_t isThisModel = 0;
    if (EXPORT(printer.family, DDProc_IsCommunicateDevice)(printer.agent.c_str(), &isThisModel) == FALSE)
        FailToReach(printer, address);
    if (isThisModel == 0)
        Fail(Outcome::kOtherModel, printer, kModelName);
}

void CheckBySnmp(const Printer& printer, uint32_t address) {
    if (!EXPORT(printer.family, MIB_IsAccessOK)(printer.agent.c_str()))
        FailToReach(printer, address);
    if (!EXPORT(printer.family, MIB_IsModelOK)(printer.agent.c_str()))
        Fail(Outcome::kOtherModel, printer, kModelName);
    CheckKind(printer, address);
}

// Items with these keys.
template <typename Item>
std::vector<Item> ItemsFor(const std::vector<std::string>& keys, QueryKey Item::*key) {
    std::vector<Item> items(keys.size());
    for (size_t i = 0; i < keys.size(); ++i)
        CopyText(items[i].*key, keys[i].c_str());
    return items;
}

// Fills the items by one of the exports.
template <typename Item>
void Ask(BOOL(WINAPI* ask)(const char*, DWORD, Item*), const Printer& printer, std::vector<Item>& items) {
    if (!ask(printer.agent.c_str(), static_cast<DWORD>(items.size()), items.data()))
        FailToQuery(printer);
}

StoredResources Copied(const StoredResourceList& list) {
    return {list.entries, list.entries + list.count};
}

} // namespace

Printer PrinterAt(const FamilyFiles& family, const std::string& address) {
    Printer printer = {family, Trimmed(address), {}};
    if (printer.address.empty())
        Fail(Outcome::kNoAddress, printer);
    size_t at = 0;
    // The failure of an IPv6 address is that of its name's look-up.
    if (!IsIpv6Text(printer.address) && !AddressFault(printer.address, at).empty())
        Fail(Outcome::kBadAddress, printer);
    const std::optional<std::string> agent = ToCodePage(printer.address);
    if (!agent)
        Fail(Outcome::kUnfitAddress, printer);
    printer.agent = *agent;
    return printer;
}

Transport TransportOf(const FamilyFiles& family) {
    return EXPORT(family, DDProc_IsEnableBdcLib)() != FALSE ? Transport::kLibrary : Transport::kSnmp;
}

const char* TransportName(Transport transport) {
    return transport == Transport::kLibrary ? "bidirectional library" : "SNMP";
}

void FailAsProbed(const Printer& printer, ProbeEnd end) {
    switch (end) {
    case ProbeEnd::kNoAnswer:
        Fail(Outcome::kNoAnswer, printer, kCommunity);
    case ProbeEnd::kRefused:
        Fail(Outcome::kRefused, printer);
    case ProbeEnd::kNotSent:
        Fail(Outcome::kNotSent, printer);
    case ProbeEnd::kMalformed:
        Fail(Outcome::kMalformedAnswer, printer);
    case ProbeEnd::kOtherRequests:
        Fail(Outcome::kOtherRequests, printer);
    case ProbeEnd::kAnswered:
        break;
    }
    Fail(Outcome::kInterrupted, printer); // it answers the probe only
}

void CheckPrinter(const Printer& printer, Transport transport) {
    const uint32_t address = AgentAddress(printer);
    transport == Transport::kLibrary ? CheckByLibrary(printer, address) : CheckBySnmp(printer, address);
}

std::vector<std::string> OptionKeys(const FamilyFiles& family, Transport transport) {
    if (transport == Transport::kLibrary)
        return {std::begin(kLibraryOptions), std::end(kLibraryOptions)};
    const OptionReqInfo& table = *EXPORT(family, MIB_OptionReqInfo)();
    std::vector<std::string> keys(static_cast<size_t>(table.count));
    for (size_t i = 0; i < keys.size(); ++i)
        keys[i] = FieldText(table.options[i].key);
    return keys;
}

OptionAnswers AskOptions(const Printer& printer, Transport transport, const std::vector<std::string>& keys) {
    OptionAnswers items = ItemsFor(keys, &OptionRequestItem::key);
    Ask(transport == Transport::kLibrary ? EXPORT(printer.family, DDProc_OptionRequest)
                                         : EXPORT(printer.family, MIB_OptionRequest),
        printer, items);
    return items;
}

DeviceOptions AskDeviceOptions(const FamilyFiles& family, const std::string& address) {
    const Printer printer = PrinterAt(family, address);
    const Transport transport = TransportOf(family);
    CheckPrinter(printer, transport);
    return {transport, AskOptions(printer, transport, OptionKeys(family, transport))};
}

Document OptionAnswersDocument(const OptionAnswers& answers) {
    return RowsDocument(answers, kAnswerFields);
}

TrayAnswers AskTraysByLibrary(const Printer& printer) {
    TrayAnswers items = ItemsFor({std::begin(kTrayKeys), std::end(kTrayKeys)}, &InputTrayStatusItem::tray);
    Ask(EXPORT(printer.family, DDProc_InputTrayStatus), printer, items);
    return items;
}

std::vector<std::string> SupplyNames(const FamilyFiles& family) {
    std::vector<std::string> names;
    for (const MrkSupItem* supply = EXPORT(family, GET_MrkSupItemList)(); supply->name[0] != 0; ++supply)
        names.push_back(FieldText(supply->name));
    return names;
}

Supplies AskSupplies(const Printer& printer, const std::vector<std::string>& names) {
    Supplies supplies = ItemsFor(names, &MrkSupRequestItem::name);
    Ask(EXPORT(printer.family, MIB_MrkSupRequest), printer, supplies);
    return supplies;
}

StoredResources AskOverlays(const Printer& printer, int32_t storage) {
    OverlayInfo* info = EXPORT(printer.family, MIB_OverlayRequest)(printer.agent.c_str(), storage);
    if (info == nullptr)
        FailToQuery(printer);
    const StoredResources overlays = Copied(info->list);
    EXPORT(printer.family, MIB_FreeOverlayInfo)(info);
    return overlays;
}

StoredProfiles AskProfiles(const Printer& printer) {
    ProfileInfo* info = EXPORT(printer.family, MIB_ProfileRequest)(printer.agent.c_str());
    if (info == nullptr)
        FailToQuery(printer);
    StoredProfiles profiles;
    for (size_t i = 0; i < profiles.size(); ++i)
        profiles[i] = Copied(info->lists[i]);
    ModuleExport<decltype(&MIB_FreeOverlayInfo)>(printer.family, "MIB_FreeProfileInfo")(info);
    return profiles;
}
