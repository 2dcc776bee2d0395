// Applies, keeps and forgets reports.
#include "workbench/property_sheet/reported_state.h"

#include "workbench/lib/text.h"

#include <algorithm>

namespace {

constexpr size_t kMaxAddresses = 10; // that are offered again

void KeepAddress(SheetState& state, const std::string& address) {
    std::vector<std::string>& kept = state.addresses;
    kept.erase(std::remove(kept.begin(), kept.end(), address), kept.end());
    kept.insert(kept.begin(), address);
    kept.resize(std::min(kept.size(), kMaxAddresses));
}

std::vector<std::string> KeysOf(const OptionFeatures& options) {
    std::vector<std::string> keys;
    for (size_t i = 0; i < options.settings.size(); ++i)
        keys.push_back(FieldText(options.features[i].feature.head.key));
    return keys;
}

// Of the options and papers, before a printer has reported them.
void UseDefaults(SheetState& state) {
    state.options = ReadOptionFeatures(state.family);
    state.papers = UnknownPapers(state.family);
    state.reportedBy.clear();
    state.reportedOn.clear();
    state.notReported = KeysOf(state.options);
    state.report = {};
}

// No option that can be queried says which trays are installed.
void AddTrayOptions(DeviceReport& report) {
    for (const InputTrayStatusItem& tray : report.trays) {
        if (!IsTrayReported(tray))
            continue;
        const std::string key = std::string("Op") + tray.tray;
        OptionRequestItem option = {};
        CopyText(option.key, key.c_str());
        CopyText(option.value, ("Ena" + key).c_str());
        report.options.push_back(option);
    }
}

// Whether both answer the same question, and in the same way.
bool IsOfSame(const OptionRequestItem& a, const OptionRequestItem& b) {
    return SameText(a.key, b.key);
}
bool IsOfSame(const MrkSupRequestItem& a, const MrkSupRequestItem& b) {
    return SameText(a.name, b.name);
}
bool IsEqual(const OptionRequestItem& a, const OptionRequestItem& b) {
    return SameText(a.value, b.value);
}
bool IsEqual(const MrkSupRequestItem& a, const MrkSupRequestItem& b) {
    return a.state == b.state && a.value == b.value;
}

// What the answers were before their last change: in the last report, or before it if they are the same.
template <typename Answer>
std::vector<Answer> BeforeChanges(const std::vector<Answer>& before, const std::vector<Answer>& last,
                                  const std::vector<Answer>& now) {
    std::vector<Answer> changed;
    for (const Answer& answer : now) {
        const auto isOfSame = [&](const Answer& other) { return IsOfSame(answer, other); };
        auto found = std::find_if(last.begin(), last.end(), isOfSame);
        if (found == last.end())
            continue;
        if (IsEqual(*found, answer)) {
            found = std::find_if(before.begin(), before.end(), isOfSame);
            if (found == before.end())
                continue;
        }
        changed.push_back(*found);
    }
    return changed;
}

Document ListOf(const std::vector<std::string>& texts) {
    Document list = Document::MakeList();
    for (const std::string& text : texts)
        list.Add(text);
    return list;
}

bool LoadList(const Document& from, std::vector<std::string>& texts) {
    texts.clear();
    for (const Document& element : from.Elements()) {
        if (!element.IsText())
            return false;
        texts.push_back(element.Text());
    }
    return from.IsList() || from.IsNull();
}

} // namespace

bool ParseTime(const std::string& text, SYSTEMTIME& time) {
    time = {};
    FILETIME checked = {};
    int end = 0;
    return sscanf(text.c_str(), "%4hu-%2hu-%2hu %2hu:%2hu%n", &time.wYear, &time.wMonth, &time.wDay,
                  &time.wHour, &time.wMinute, &end)
               == 5
           && text.size() == static_cast<size_t>(end) && SystemTimeToFileTime(&time, &checked);
}

void ApplyReport(SheetState& state, DeviceReport report) {
    if (state.reportedBy != report.address)
        UseDefaults(state);
    OptionAnswers& answers = report.options;
    answers.erase(std::remove_if(answers.begin(), answers.end(),
                                 [](const OptionRequestItem& answer) { return answer.value[0] == 0; }),
                  answers.end());
    AddTrayOptions(report);
    if (state.report.address == report.address) {
        report.optionsBefore =
            BeforeChanges(state.report.optionsBefore, state.report.options, report.options);
        report.suppliesBefore =
            BeforeChanges(state.report.suppliesBefore, state.report.supplies, report.supplies);
    }
    for (const OptionRequestItem& answer : answers) {
        ApplyReportedOption(state.options, answer.key, answer.value);
        std::vector<std::string>& keys = state.notReported;
        keys.erase(std::remove(keys.begin(), keys.end(), FieldText(answer.key)), keys.end());
    }
    if (!report.trays.empty())
        state.papers = PapersOf(state.family, report.trays);
    state.reportedBy = report.address;
    state.reportedOn = LocalTimeText();
    KeepAddress(state, report.address);
    state.report = std::move(report);
    OfferedSources(state);
}

void ForgetOtherReport(SheetState& state, const std::string& address) {
    if (!state.reportedBy.empty() && state.reportedBy != address)
        UseDefaults(state);
}

Document ReportedDocument(const SheetState& state) {
    return {{"reportedOn", state.reportedOn},
            {"notReported", ListOf(state.notReported)},
            {"addresses", ListOf(state.addresses)},
            {"refresh", state.isRefreshed}};
}

bool LoadReported(const Document& kept, SheetState& state) {
    const Document& date = kept["reportedOn"];
    const Document& refresh = kept["refresh"];
    if ((!date.IsText() && !date.IsNull()) || (!refresh.IsBool() && !refresh.IsNull()))
        return false;
    state.reportedOn = date.IsText() ? date.Text() : "";
    SYSTEMTIME time;
    if (!state.reportedOn.empty() && !ParseTime(state.reportedOn, time))
        return false;
    state.isRefreshed = refresh.IsNull() || refresh.Bool();
    return (kept.IsObject() || kept.IsNull()) && LoadList(kept["notReported"], state.notReported)
           && LoadList(kept["addresses"], state.addresses);
}
