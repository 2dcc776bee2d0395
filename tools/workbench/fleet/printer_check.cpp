// Queries the printer, reads its trays, and puts what it needs into words.
#include "workbench/fleet/printer_check.h"

#include "workbench/lib/host_address.h"
#include "workbench/lib/option_words.h"
#include "workbench/lib/printer_identity.h"
#include "workbench/lib/snmp_objects.h"
#include "workbench/lib/snmp_probe.h"
#include "workbench/lib/supply_words.h"
#include "workbench/lib/text.h"
#include "workbench/lib/traced_requests.h"

#include <algorithm>
#include <functional>
#include <winsock2.h>

namespace {

constexpr int kTraysWithOption = 5; // the first inputs
constexpr int kLargeTray = 6;       // the large-capacity tray, of which the driver does not ask
constexpr const char* kAskAgain = "ask again; workbench diagnose says why";
constexpr int32_t kManualFeed = 5; // prtInputType: has no stock of paper

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

// Whether the printer may have this tray. The module has asked for it, unless it failed.
bool MayHaveTray(int tray, const OptionAnswers& options) {
    const std::string key = "OpInTray" + std::to_string(tray);
    for (const OptionRequestItem& answer : options)
        if (SameText(answer.key, key.c_str()))
            return answer.value[0] == 0 || IsInstalled(answer);
    return options.empty();
}

// The inputs that may exist.
std::vector<int> Inputs(uint32_t address, const OptionAnswers& options) {
    std::vector<int> inputs;
    for (int tray = 1; tray <= kTraysWithOption; ++tray)
        if (MayHaveTray(tray, options))
            inputs.push_back(tray);
    const ObjectValue large =
        ReadObjects(address, {kInputObjects[kInputType] + std::to_string(kLargeTray)})[0];
    if (large.exists || !large.isAnswered)
        inputs.push_back(kLargeTray);
    return inputs;
}

// By the printer, or by its number. Whether there is a large-capacity tray is unknown without an answer.
std::string TrayName(int input, const ObjectValue* row) {
    if (!row[kInputName].text.empty())
        return row[kInputName].text;
    if (input == kLargeTray && !row[kInputType].isAnswered)
        return "large-capacity tray, if it has one";
    return "Tray " + std::to_string(input);
}

struct TraysRead {
    std::vector<TrayFill> trays;
    ObjectValue errorState;
    bool areLevelsAnswered = true; // otherwise it is unknown whether the printer reports them
};

TraysRead ReadTrays(uint32_t address, const std::vector<int>& inputs) {
    std::vector<std::string> oids;
    for (const int input : inputs)
        for (const char* column : kInputObjects)
            oids.push_back(column + std::to_string(input));
    oids.emplace_back(kErrorStateObject);
    const ObjectValues values = ReadObjects(address, oids);
    TraysRead read = {{}, values.back(), true};
    for (size_t i = 0; i < inputs.size(); ++i) {
        const auto* row = &values[i * kInputColumns];
        const bool isMissing = row[kInputType].isAnswered && !row[kInputType].exists;
        if (isMissing || row[kInputType].number == kManualFeed)
            continue;
        read.trays.push_back(
            {TrayName(inputs[i], row), row[kInputCapacity].number.value_or(-1), row[kInputLevel].number});
        read.areLevelsAnswered = read.areLevelsAnswered && row[kInputLevel].isAnswered;
    }
    return read;
}

// `unanswered` as in UnansweredUses; these are listed elsewhere.
std::string OptionsText(const OptionAnswers& options, const std::vector<std::string>& unanswered) {
    const auto installed = std::count_if(options.begin(), options.end(), IsInstalled);
    std::string missing;
    for (const OptionRequestItem& answer : options)
        if (answer.value[0] == 0 && !IsUnanswered(unanswered, answer))
            AddPart(missing, OptionName(answer.key));
    return std::to_string(installed) + " installed" + (missing.empty() ? "" : "; not reported: " + missing);
}

// An option and a tray can have the same name.
void AddUnread(PrinterState& state, const std::string& name) {
    if ((", " + state.notRead + ", ").find(", " + name + ", ") == std::string::npos)
        AddPart(state.notRead, name);
}

Need NeedOf(const TrayFill& tray) {
    if (!tray.level)
        return Need::kUnknown;
    if (tray.level == 0)
        return Need::kNow;
    const bool isLow = tray.level > 0 && tray.capacity > 0
                       && int64_t{*tray.level} * 100 < int64_t{tray.capacity} * kLowPercent;
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
    state.outcome = outcome;
    state.attention = words.attention;
    state.state = words.state;
    state.advice = words.advice;
}

// Runs a query. One that fails because answers are late or lost is noted, and the others may succeed, unless
// it seems that the printer was turned off.
void Keep(const char* name, PrinterState& state, const std::function<void()>& query) {
    try {
        query();
    } catch (const PrinterFailure& failure) {
        const bool isSecond = !state.hasAnswered;
        if (failure.outcome != Outcome::kSlow && (failure.outcome != Outcome::kInterrupted || isSecond))
            throw;
        state.hasAnswered = false;
        AddPart(state.notRead, name);
    }
}

// Notes options that the module reports nothing about because it had no answer. Supplies that it does not
// report are noted in any case.
void NoteUnanswered(const OptionAnswers& options, const std::vector<std::string>& unanswered,
                    PrinterState& state) {
    for (const OptionRequestItem& option : options)
        if (IsUnanswered(unanswered, option))
            AddPart(state.notRead, OptionName(option.key));
}

void Ask(const Printer& printer, TrafficTrace& trace, PrinterState& state) {
    CheckPrinter(printer, Transport::kSnmp);
    const std::vector<ModuleObject> objects = ModuleObjects(printer.family);
    std::vector<std::string> unanswered;
    OptionAnswers options;
    Supplies supplies;
    state.hasAnswered = true;
    Keep("options", state, [&] {
        options = AskOptions(printer, Transport::kSnmp, OptionKeys(printer.family, Transport::kSnmp));
        unanswered = UnansweredUses(trace.TakeOfThisThread(), objects);
        state.options = OptionsText(options, unanswered);
        NoteUnanswered(options, unanswered, state);
    });
    Keep("supplies", state, [&] {
        supplies = AskSupplies(printer, SupplyNames(printer.family));
        for (std::string& use : UnansweredUses(trace.TakeOfThisThread(), objects))
            unanswered.push_back(std::move(use));
    });
    const PrinterIdentity identity = AskIdentity(printer);
    state.model = identity.name;
    state.isModel = identity.isModel;
    const uint32_t address = AgentAddress(printer);
    const TraysRead read = ReadTrays(address, Inputs(address, options));
    const PrinterAlerts alerts = AskAlerts(address, read.errorState);
    Judge(supplies, identity.otherSupplies, read.trays, alerts, state);
    const auto isOptionUnanswered = [&](const auto& option) { return IsUnanswered(unanswered, option); };
    const auto isSupplyUnanswered = [&](const auto& supply) {
        return IsUnanswered(unanswered, supply) && !SupplyName(supply.name).empty();
    };
    state.isComplete = state.hasAnswered && identity.isNameAnswered && alerts.areAnswered
                       && std::none_of(options.begin(), options.end(), isOptionUnanswered)
                       && std::none_of(supplies.begin(), supplies.end(), isSupplyUnanswered)
                       && read.areLevelsAnswered;
    if (!identity.isModel && identity.isNameAnswered) {
        NoteFailure(Outcome::kOtherModel, state);
        if (state.model.empty())
            state.state = "model not reported";
    } else if (state.attention >= Attention::kIncomplete && !state.hasAnswered) {
        NoteFailure(Outcome::kSlow, state);
    } else if (state.attention >= Attention::kIncomplete && !identity.isModel) {
        state.attention = Attention::kIncomplete;
        state.state = "model not answered";
        state.advice = kAskAgain;
    }
}

// Runs what asks the printer, and notes how it fails.
PrinterState StateAfter(const ListedPrinter& listed, const std::function<void(PrinterState& state)>& ask) {
    const DWORD start = GetTickCount();
    PrinterState state;
    state.address = listed.address;
    state.name = listed.name;
    try {
        ask(state);
    } catch (const PrinterFailure& failure) {
        NoteFailure(failure.outcome, state);
    }
    state.milliseconds = GetTickCount() - start;
    return state;
}

} // namespace

void Judge(const Supplies& supplies, const std::vector<std::string>& otherSupplies,
           const std::vector<TrayFill>& trays, const PrinterAlerts& alerts, PrinterState& state) {
    Needs needs;
    for (const TrayFill& tray : trays) {
        const Need need = NeedOf(tray);
        if (need == Need::kUnknown) {
            AddUnread(state, tray.name);
            continue;
        }
        needs.Add(need, need == Need::kNow ? "load " + tray.name : "order paper for " + tray.name);
        if (need < Need::kLater)
            AddPart(state.trays, tray.name + (need == Need::kNow ? " empty" : " low"));
    }
    for (const ShownSupply& supply : ShownSupplies(supplies, {}, kEnglish)) {
        const std::string name = OwnName(supply, supplies, otherSupplies);
        if (supply.answer.state == TELMAR_STATE_UNKNOWN)
            AddPart(state.notRead, name);
        if (supply.need == Need::kUnknown)
            continue;
        needs.Add(supply.need, (supply.need == Need::kNow ? "replace " : "order ") + name);
        if (state.lowestSupply.empty())
            state.lowestSupply = name + " " + supply.level;
    }
    if (!alerts.areAnswered)
        AddPart(state.notRead, "alerts");
    state.alerts = CriticalAlerts(alerts);
    state.attention = AttentionFor(needs.most);
    state.state = AttentionWord(state.attention);
    state.advice = needs.advice;
    if (!state.alerts.empty()) {
        state.attention = Attention::kStopped;
        state.state = state.alerts;
        if (needs.most != Need::kNow)
            state.advice = "see its display";
    } else if (state.attention == Attention::kFine && !state.notRead.empty()) {
        state.attention = Attention::kIncomplete;
        state.state = AttentionWord(state.attention);
        state.advice = kAskAgain;
    }
}

PrinterState CheckListed(const FamilyFiles& family, const ListedPrinter& listed, const std::string& address,
                         TrafficTrace& trace) {
    const PrinterState state =
        StateAfter(listed, [&](PrinterState& asked) { Ask(PrinterAt(family, address), trace, asked); });
    trace.TakeOfThisThread();
    return state;
}

PrinterState FindListed(const FamilyFiles& family, const ListedPrinter& listed, std::string& address) {
    return StateAfter(listed, [&](PrinterState&) {
        const Printer printer = PrinterAt(family, listed.address);
        const uint32_t found = AgentAddress(printer);
        const ProbeEnd end = ProbeObject(found, kAgentObject).end;
        if (end != ProbeEnd::kAnswered)
            FailAsProbed(printer, end);
        address = AddressText(ntohl(found));
    });
}

PrinterState UnreachedState(const FamilyFiles& family, const ListedPrinter& listed, ProbeEnd end) {
    return StateAfter(listed, [&](PrinterState& state) {
        state.isPresent = end == ProbeEnd::kMalformed || end == ProbeEnd::kOtherRequests;
        FailAsProbed(PrinterAt(family, listed.address), end);
    });
}

PrinterState FailedState(const ListedPrinter& listed, Outcome outcome) {
    return StateAfter(listed, [&](PrinterState& state) { NoteFailure(outcome, state); });
}
