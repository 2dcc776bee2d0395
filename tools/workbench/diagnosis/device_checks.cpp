// Checks of the values that a device answers with, of what it calls itself, and of the driver's own queries.
#include "workbench/diagnosis/checks.h"
#include "workbench/diagnosis/samples.h"
#include "workbench/lib/option_words.h"
#include "workbench/lib/printer_identity.h"
#include "workbench/lib/supply_words.h"
#include "workbench/lib/text.h"

#include <algorithm>

namespace {

std::string FindTypes(const Observations& seen, bool isUsable, const std::string& sentence) {
    std::vector<ObjectId> objects;
    std::string type;
    for (size_t i = 0; seen.areObjectsAsked && i < seen.objects.size(); ++i) {
        const Arrival* answer = AnswerTo(seen, i);
        if (answer == nullptr || !HasValue(answer->message) || seen.objects[i].wanted == Wanted::kObjectId)
            continue;
        const uint8_t found = answer->message.valueType;
        const Wanted wanted = seen.objects[i].wanted;
        const bool fits = wanted == Wanted::kNumber ? IsNumberType(found)
                          : wanted == Wanted::kText ? IsTextType(found)
                                                    : true;
        const bool isOtherNumber = IsNumberType(found) && found != ASN_INTEGER;
        if (isUsable ? !fits || !isOtherNumber : fits)
            continue;
        objects.push_back(seen.objects[i].oid);
        if (type.empty())
            type = TypeText(found);
    }
    return objects.empty() ? "" : sentence + type + " (" + ObjectsText(objects) + ").";
}

// Whether the agent says that an object of the Printer MIB does not exist.
bool LacksPrinterMib(const Observations& seen) {
    bool isAnswered = false;
    const ObjectId printerMib = OidOf(".1.3.6.1.2.1.43");
    for (size_t i = 0; i < seen.objects.size(); ++i) {
        const ObjectId& oid = seen.objects[i].oid;
        const Arrival* answer = AnswerTo(seen, i);
        if (answer == nullptr || !std::equal(printerMib.begin(), printerMib.end(), oid.begin()))
            continue;
        if (HasValue(answer->message) || answer->message.errorStatus > kNoSuchName)
            return false;
        isAnswered = true;
    }
    return isAnswered;
}

bool SupplyIsAsked(const Observations& seen, const MrkSupRequestItem& supply) {
    const std::string use = "supply " + FieldText(supply.name);
    return std::any_of(seen.objects.begin(), seen.objects.end(),
                       [&](const ModuleObject& object) { return object.use == use; });
}

// Empty when the device has sent no text.
std::string ModelText(const Observations& seen, const DescriptionObject& object) {
    const Arrival* answer = object.question != SIZE_MAX ? seen.exchange->AnswerTo(object.question) : nullptr;
    return answer != nullptr && HasValue(answer->message) && IsTextType(answer->message.valueType)
               ? OneLine(PrinterText(answer->message.bytes))
               : "";
}

} // namespace

std::string FindWrongType(const Observations& seen) {
    return FindTypes(seen, false, "Values have a type that the driver can't use: ");
}

std::string FindNumberType(const Observations& seen) {
    return FindTypes(seen, true, "Numbers are not sent as INTEGER, but as ");
}

std::string FindNotAPrinter(const Observations& seen) {
    return LacksPrinterMib(seen) && seen.printerNumber == 0 && AgentObjectError(seen) == 0
               ? "The device is not a printer: it has no object of the Printer MIB that the driver asks for."
               : "";
}

std::string FindOtherDevice(const Observations& seen) {
    return seen.printerNumber > 1
               ? "The printer is device " + std::to_string(seen.printerNumber) + " of its host, not device 1."
               : "";
}

std::string FindOtherModel(const Observations& seen) {
    std::vector<std::string> texts;
    for (const char* oid : kModelObjects)
        for (const DescriptionObject& object : seen.description)
            if (std::string(oid).find(object.oid) == 0)
                texts.push_back(ModelText(seen, object));
    const OwnModel model = ModelIn(texts);
    return model.isModel || model.name.empty()
               ? ""
               : "The device calls itself '" + model.name + "', not '" + kModelName + "'.";
}

std::string FindOtherSupplies(const Observations& seen) {
    std::string list;
    const DriverObservation& driver = seen.driver;
    for (size_t i = 0; i < driver.otherSupplies.size() && i < driver.supplies.size(); ++i)
        if (!driver.otherSupplies[i].empty())
            AddPart(list, SupplyName(driver.supplies[i].name) + " is '" + driver.otherSupplies[i] + "'");
    return !list.empty() ? "The device has other supplies than the driver takes them for: " + list + "." : "";
}

std::string FindNoAnswers(const Observations& seen) {
    std::string names;
    const DriverObservation& driver = seen.driver;
    for (const OptionRequestItem& option : driver.options)
        if (option.value[0] == 0)
            AddPart(names, OptionName(option.key));
    for (const MrkSupRequestItem& supply : driver.supplies)
        if (supply.state == TELMAR_STATE_UNKNOWN && SupplyIsAsked(seen, supply))
            AddPart(names, SupplyName(supply.name));
    return !names.empty() ? "The driver can't use what the printer reports about " + names + "." : "";
}

std::string FindDriverFailed(const Observations& seen) {
    const DriverObservation& driver = seen.driver;
    if (!driver.isAsked)
        return {};
    std::string failed;
    for (const std::string& query : driver.failed)
        AddPart(failed, query);
    if (!driver.isEnded)
        return "The driver's query for " + driver.query + " has not ended within "
               + std::to_string(static_cast<int>(kDriverLimit / 1000)) + " s.";
    if (!driver.isReached && HasDriversCommunity(seen) && HasDriversVersion(seen))
        return "The driver has not reached the printer: it has sent "
               + Times(static_cast<size_t>(driver.reachSends), "request") + " in "
               + Milliseconds(driver.reachTime) + ".";
    return !failed.empty() ? "The driver's queries have failed for " + failed + "." : "";
}
