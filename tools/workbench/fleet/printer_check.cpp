// Queries the printer, reads its trays, and puts what it needs into words.
#include "workbench/fleet/printer_check.h"

#include "workbench/lib/option_words.h"
#include "workbench/lib/printer_identity.h"
#include "workbench/lib/snmp_objects.h"
#include "workbench/lib/snmp_probe.h"
#include "workbench/lib/supply_words.h"
#include "workbench/lib/text.h"

#include <algorithm>
#include <functional>

namespace {

constexpr int kTraysWithOption = 5; // the first inputs
constexpr int kLargeTray = 6;       // the large-capacity tray
constexpr int32_t kManualFeed = 5;  // prtInputType: has no stock of paper

// Columns of prtInputTable.
enum InputColumn : size_t { kInputType, kInputCapacity, kInputLevel, kInputName, kInputColumns };
constexpr const char* kInputObjects[kInputColumns] = {
    ".1.3.6.1.2.1.43.8.2.1.2.1.",  // prtInputType
    ".1.3.6.1.2.1.43.8.2.1.9.1.",  // prtInputMaxCapacity
    ".1.3.6.1.2.1.43.8.2.1.10.1.", // prtInputCurrentLevel
    ".1.3.6.1.2.1.43.8.2.1.13.1.", // prtInputName
};

bool IsInstalled(const OptionRequestItem& answer) {
    return FieldText(answer.value).rfind("Ena", 0) == 0;
}

// The inputs that exist: trays 1 to 5 by the options, for which the module has asked the same objects.
std::vector<int> Inputs(uint32_t address, const OptionAnswers& options) {
    std::vector<int> inputs;
    for (int tray = 1; tray <= kTraysWithOption; ++tray)
        for (const OptionRequestItem& answer : options)
            if (SameText(answer.key, ("OpInTray" + std::to_string(tray)).c_str()) && IsInstalled(answer))
                inputs.push_back(tray);
    if (ReadObjects(address, {kInputObjects[kInputType] + std::to_string(kLargeTray)})[0])
        inputs.push_back(kLargeTray);
    return inputs;
}

std::vector<TrayFill> ReadTrays(uint32_t address, const std::vector<int>& inputs) {
    std::vector<std::string> oids;
    for (const int input : inputs)
        for (const char* column : kInputObjects)
            oids.push_back(column + std::to_string(input));
    const ObjectValues values = ReadObjects(address, oids);
    std::vector<TrayFill> trays;
    for (size_t i = 0; i < inputs.size(); ++i) {
        const auto* row = &values[i * kInputColumns];
        const auto number = [&](InputColumn column) {
            return row[column] && row[column]->number ? *row[column]->number : -1;
        };
        if (!row[kInputType] || number(kInputType) == kManualFeed)
            continue;
        const std::string name = row[kInputName] ? row[kInputName]->text : "";
        trays.push_back({name.empty() ? "Tray " + std::to_string(inputs[i]) : name, number(kInputCapacity),
                         number(kInputLevel)});
    }
    return trays;
}

std::string OptionsText(const OptionAnswers& options) {
    const auto installed = std::count_if(options.begin(), options.end(), IsInstalled);
    std::string missing;
    for (const OptionRequestItem& answer : options)
        if (answer.value[0] == 0)
            missing += (missing.empty() ? "" : ", ") + OptionName(answer.key);
    return std::to_string(installed) + " installed" + (missing.empty() ? "" : "; not reported: " + missing);
}

void AddPart(std::string& text, const std::string& part) {
    text += (text.empty() ? "" : ", ") + part;
}

Need NeedOf(const TrayFill& tray) {
    if (tray.level == 0)
        return Need::kNow;
    const bool isLow = tray.level > 0 && tray.capacity > 0
                       && int64_t{tray.level} * 100 < int64_t{tray.capacity} * kLowPercent;
    return isLow ? Need::kSoon : Need::kLater;
}

Attention AttentionFor(Need need) {
    return need == Need::kNow ? Attention::kEmpty : need == Need::kSoon ? Attention::kLow : Attention::kFine;
}

// The most urgent need, and what to do about it; what can wait is not mentioned.
struct Needs {
    Need most = Need::kLater;
    std::string advice;

    void Add(Need need, const std::string& toDo) {
        if (need < most)
            advice.clear();
        most = std::min(most, need);
        if (need == most && need < Need::kLater)
            AddPart(advice, toDo);
    }
};

// The printer's name of a supply where it is another one than the driver takes it for.
std::string OwnName(const ShownSupply& supply, const Supplies& supplies,
                    const std::vector<std::string>& otherSupplies) {
    for (size_t i = 0; i < otherSupplies.size(); ++i)
        if (!otherSupplies[i].empty() && SameText(supplies[i].name, supply.answer.name))
            return otherSupplies[i];
    return supply.name;
}

void NoteFailure(Outcome outcome, PrinterState& state) {
    const FailureWords words = WordsOf(outcome);
    state.attention = words.attention;
    state.state = words.state;
    state.advice = words.advice;
}

void Ask(const Printer& printer, PrinterState& state) {
    CheckPrinter(printer, Transport::kSnmp);
    const OptionAnswers options =
        AskOptions(printer, Transport::kSnmp, OptionKeys(printer.family, Transport::kSnmp));
    const Supplies supplies = AskSupplies(printer, SupplyNames(printer.family));
    const PrinterIdentity identity = AskIdentity(printer);
    uint32_t address = 0;
    FindHost(printer.agent, address);
    state.model = identity.name;
    state.isModel = identity.isModel;
    state.options = OptionsText(options);
    state.hasAnswered = true;
    Judge(supplies, identity.otherSupplies, ReadTrays(address, Inputs(address, options)), state);
    if (identity.isModel)
        return;
    NoteFailure(Outcome::kOtherModel, state);
    if (state.model.empty())
        state.state = "model not reported";
}

// Runs what asks the printer, and notes how it fails.
PrinterState StateAfter(const FamilyFiles& family, const ListedPrinter& listed,
                        const std::function<void(const Printer& printer, PrinterState& state)>& ask) {
    const DWORD start = GetTickCount();
    PrinterState state;
    state.address = listed.address;
    state.name = listed.name;
    try {
        ask(PrinterAt(family, listed.address), state);
    } catch (const PrinterFailure& failure) {
        NoteFailure(failure.outcome, state);
    }
    state.milliseconds = GetTickCount() - start;
    return state;
}

} // namespace

void Judge(const Supplies& supplies, const std::vector<std::string>& otherSupplies,
           const std::vector<TrayFill>& trays, PrinterState& state) {
    Needs needs;
    for (const TrayFill& tray : trays) {
        const Need need = NeedOf(tray);
        needs.Add(need, need == Need::kNow ? "load " + tray.name : "order paper for " + tray.name);
        if (need < Need::kLater)
            AddPart(state.trays, tray.name + (need == Need::kNow ? " empty" : " low"));
    }
    for (const ShownSupply& supply : ShownSupplies(supplies, {}, kEnglish)) {
        if (supply.need == Need::kUnknown)
            continue;
        const std::string name = OwnName(supply, supplies, otherSupplies);
        needs.Add(supply.need, (supply.need == Need::kNow ? "replace " : "order ") + name);
        if (state.lowestSupply.empty())
            state.lowestSupply = name + " " + supply.level;
    }
    state.attention = AttentionFor(needs.most);
    state.state = AttentionWord(state.attention);
    state.advice = needs.advice;
}

PrinterState CheckListed(const FamilyFiles& family, const ListedPrinter& listed, bool isKnownToAnswer) {
    return StateAfter(family, listed, [&](const Printer& printer, PrinterState& state) {
        if (!isKnownToAnswer)
            CheckAnswer(printer);
        Ask(printer, state);
    });
}

PrinterState UnreachedState(const FamilyFiles& family, const ListedPrinter& listed, ProbeEnd end) {
    return StateAfter(family, listed, [&](const Printer& printer, PrinterState& state) {
        state.isPresent = end == ProbeEnd::kMalformed || end == ProbeEnd::kOtherRequests;
        FailAsProbed(printer, end);
    });
}
