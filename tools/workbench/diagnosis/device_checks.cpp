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

// What the printer has answered for the objects that a query of the driver uses.
enum class Reported { kNotAsked, kValue, kNothing };
Reported ReportedFor(const Observations& seen, const std::string& use) {
    Reported reported = Reported::kNotAsked;
    for (size_t i = 0; i < seen.objects.size(); ++i) {
        const Arrival* answer = seen.objects[i].use == use ? AnswerTo(seen, i) : nullptr;
        if (answer == nullptr)
            continue;
        if (HasValue(answer->message))
            return Reported::kValue;
        reported = Reported::kNothing;
    }
    return reported;
}

// The options and supplies that the driver shows as not reported, and for which the printer answers this.
std::string NotReported(const Observations& seen, Reported reported) {
    std::string names;
    for (const OptionRequestItem& option : seen.driver.options)
        if (option.value[0] == 0 && ReportedFor(seen, "option " + FieldText(option.key)) == reported)
            AddPart(names, OptionName(option.key));
    for (const MrkSupRequestItem& supply : seen.driver.supplies)
        if (supply.state == TELMAR_STATE_UNKNOWN
            && ReportedFor(seen, "supply " + FieldText(supply.name)) == reported)
            AddPart(names, SupplyName(supply.name));
    return names;
}

// Empty when the device has sent no text.
std::string ModelText(const Observations& seen, const DescriptionObject& object) {
    const Arrival* answer = AnswerTo(seen, object);
    return answer != nullptr && IsTextType(answer->message.valueType) ? DescriptionText(seen, object) : "";
}

// What the device says that it is. `isAnswered` is false when another text may name the model.
OwnModel ModelOf(const Observations& seen, bool& isAnswered) {
    std::vector<std::string> texts;
    isAnswered = true;
    for (const char* oid : kModelObjects)
        for (const DescriptionObject& object : seen.description)
            if (std::string(oid).find(object.oid) == 0) {
                texts.push_back(ModelText(seen, object));
                isAnswered = isAnswered && AnswerTo(seen, object) != nullptr;
            }
    return ModelIn(texts);
}

} // namespace

std::string FindWrongType(const Observations& seen) {
    return FindTypes(seen, false, "Values have a type that the driver can't use: ");
}

std::string FindNumberType(const Observations& seen) {
    return FindTypes(seen, true, "Numbers are not sent as INTEGER, but as ");
}

std::string FindNotAPrinter(const Observations& seen) {
    return seen.place.isAnswered && seen.place.device == 0 && AgentObjectError(seen) == 0
               ? "The device is not a printer: it has no paper input and no supply, and lists no printer."
               : "";
}

std::string FindStopped(const Observations& seen) {
    const std::string alerts = CriticalAlerts(seen.alerts);
    return !alerts.empty() ? "The printer has stopped: " + alerts + "." : "";
}

std::string FindOtherDevice(const Observations& seen) {
    return seen.place.device > 1
               ? "The printer is device " + std::to_string(seen.place.device) + " of its host, not device 1."
               : "";
}

std::string FindOtherModel(const Observations& seen) {
    bool isAnswered = false;
    const OwnModel model = ModelOf(seen, isAnswered);
    return model.isModel || model.name.empty() || !isAnswered
               ? ""
               : "The device calls itself '" + model.name + "', not '" + kModelName + "'.";
}

std::string FindUnknownModel(const Observations& seen) {
    bool isAnswered = false;
    const OwnModel model = ModelOf(seen, isAnswered);
    if (!seen.isAddressed || model.isModel)
        return {};
    return !isAnswered          ? "The device has not answered what model it is."
           : model.name.empty() ? "The device does not say what model it is."
                                : "";
}

std::string FindUnreadAlerts(const Observations& seen) {
    return seen.isAddressed && !seen.alerts.areAnswered ? "The device's alerts were not read completely."
                                                        : "";
}

std::string FindOtherSupplies(const Observations& seen) {
    std::string list;
    const DriverObservation& driver = seen.driver;
    for (size_t i = 0; i < driver.otherSupplies.size() && i < driver.supplies.size(); ++i)
        if (!driver.otherSupplies[i].empty())
            AddPart(list, SupplyName(driver.supplies[i].name) + " is '" + driver.otherSupplies[i] + "'");
    return !list.empty() ? "The device has other supplies than the driver takes them for: " + list + "." : "";
}

std::string FindUnusableValues(const Observations& seen) {
    const std::string names = NotReported(seen, Reported::kValue);
    return !names.empty() ? "The driver can't use what the printer reports about " + names + "." : "";
}

// A printer that is not device 1 has these objects under another number.
std::string FindMissingValues(const Observations& seen) {
    const std::string names = seen.place.device <= 1 ? NotReported(seen, Reported::kNothing) : "";
    return !names.empty() ? "The printer reports nothing about " + names + ": it does not have these objects."
                          : "";
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
