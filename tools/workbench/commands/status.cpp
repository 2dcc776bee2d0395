// `workbench status`: queries a printer through the bidirectional library by the module's exports: its
// options and its input trays.
#include "workbench/commands/commands.h"
#include "workbench/lib/printer_queries.h"
#include "workbench/lib/record_fields.h"

namespace {

// Null where the driver has no key for what the device reports.
template <auto kField>
Document ShowKey(const void* record) {
    const Document key = Show<kField>(record);
    return key.Text().empty() ? Document() : key;
}

constexpr Field kTrayFields[] = {
    {"tray", Show<&InputTrayStatusItem::tray>},
    {"size", ShowKey<&InputTrayStatusItem::mediaSize>},
    {"orientation", ShowKey<&InputTrayStatusItem::orientation>},
    {"type", ShowKey<&InputTrayStatusItem::mediaType>},
    {"level", Show<&InputTrayStatusItem::level>},
    {"weight", ShowKey<&InputTrayStatusItem::weight>},
    {"color", ShowKey<&InputTrayStatusItem::color>},
    {"hole", ShowKey<&InputTrayStatusItem::hole>},
};

} // namespace

Document AskByLibrary(const FamilyFiles& family, const std::string& address) {
    const Printer printer = PrinterAt(family, address);
    CheckPrinter(printer, Transport::kLibrary);
    const auto keys = OptionKeys(family, Transport::kLibrary);
    return {
        {"printer", {{"address", printer.address}}},
        {"options", OptionAnswersDocument(AskOptions(printer, Transport::kLibrary, keys))},
        {"trays", RowsDocument(AskTraysByLibrary(printer), kTrayFields)},
    };
}
