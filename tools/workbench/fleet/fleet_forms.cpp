// Lays out the states of the printers.
#include "workbench/fleet/fleet_forms.h"

#include "workbench/lib/table_text.h"
#include "workbench/lib/text_form.h"

#include <algorithm>

namespace {

Document StateText(const PrinterState& state, std::string PrinterState::*text) {
    return (state.*text).empty() ? Document() : Document(state.*text);
}

// The columns of JSON and CSV.
constexpr struct {
    const char* name;
    std::string PrinterState::*text; // null: the level of attention
} kColumns[] = {
    {"address", &PrinterState::address},
    {"name", &PrinterState::name},
    {"model", &PrinterState::model},
    {"attention", nullptr},
    {"state", &PrinterState::state},
    {"trays", &PrinterState::trays},
    {"lowestSupply", &PrinterState::lowestSupply},
    {"options", &PrinterState::options},
    {"whatToDo", &PrinterState::advice},
    {"alerts", &PrinterState::alerts},
    {"notRead", &PrinterState::notRead},
};

Document RowOf(const PrinterState& state) {
    Document row;
    for (const auto& column : kColumns)
        row[column.name] =
            column.text != nullptr ? StateText(state, column.text) : Document(AttentionWord(state.attention));
    row["milliseconds"] = state.milliseconds;
    return row;
}

// Some devices describe themselves in several lines.
std::string Shortened(const std::string& text) {
    constexpr size_t kMaxBytes = 40;
    size_t size = std::min(text.size(), kMaxBytes);
    while (size < text.size() && (text[size] & 0xC0) == 0x80) // inside a character
        --size;
    return size < text.size() ? text.substr(0, size) + "..." : text;
}

// For people. The model is left out where it is the driver's, and the state where the section says it.
Document PageRow(const PrinterState& state) {
    const bool isSaid = state.state == AttentionWord(state.attention);
    return {{"address", state.address},
            {"name", state.name},
            {"model", state.isModel ? "" : Shortened(state.model)},
            {"state", isSaid ? "" : state.state},
            {"emptyOrLowTrays", state.trays},
            {"lowestSupply", state.lowestSupply},
            {"options", state.attention == Attention::kFine ? state.options : ""},
            {"notRead", state.notRead},
            {"whatToDo", state.advice}};
}

size_t CountAnswered(const FleetAnswers& answers) {
    return static_cast<size_t>(std::count_if(answers.states.begin(), answers.states.end(),
                                             [](const PrinterState& state) { return state.hasAnswered; }));
}

Document SummaryOf(const FleetAnswers& answers) {
    size_t needAttention = 0;
    for (const PrinterState& state : answers.states)
        needAttention += state.attention != Attention::kFine ? 1 : 0;
    Document summary = {{"list", answers.list},
                        {"printers", answers.states.size()},
                        {"answered", CountAnswered(answers)},
                        {"needAttention", needAttention}};
    if (answers.isScan)
        for (const auto& [name, count] : {std::pair("unusedAddresses", answers.unused.silent),
                                          {"refused", answers.unused.refused},
                                          {"notReachable", answers.unused.notSent}})
            summary[name] = count;
    summary["notAsked"] = answers.listed - answers.states.size() - answers.unused.Count();
    summary["seconds"] = answers.milliseconds / 1000.0;
    if (answers.unused.notSent == answers.listed)
        summary["warning"] = "No request could be sent: check the network of this computer.";
    return summary;
}

} // namespace

void SortByAttention(std::vector<PrinterState>& states) {
    std::stable_sort(states.begin(), states.end(),
                     [](const PrinterState& a, const PrinterState& b) { return a.attention < b.attention; });
}

void DropUnused(FleetAnswers& answers) {
    const auto isUnused = [&](const PrinterState& state) { return answers.isScan && !state.isPresent; };
    for (const PrinterState& state : answers.states)
        if (isUnused(state))
            ++(state.outcome == Outcome::kRefused   ? answers.unused.refused
               : state.outcome == Outcome::kNotSent ? answers.unused.notSent
                                                    : answers.unused.silent);
    answers.states.erase(std::remove_if(answers.states.begin(), answers.states.end(), isUnused),
                         answers.states.end());
}

Document FleetDocument(const FleetAnswers& answers) {
    Document rows = Document::MakeList();
    for (const PrinterState& state : answers.states)
        rows.Add(RowOf(state));
    return {{"summary", SummaryOf(answers)}, {"printers", rows}};
}

std::string FleetPage(const FleetAnswers& answers) {
    Document page = {{"fleet", SummaryOf(answers)}};
    for (const Attention attention : kAttentions) {
        Document rows;
        for (const PrinterState& state : answers.states)
            if (state.attention == attention)
                rows.Add(PageRow(state));
        if (!rows.IsNull())
            page[AttentionTitle(attention)] = rows;
    }
    return TextForm(page)
           + "\nOptions and supplies are what the driver reports; model, trays and alerts are what the printer says of "
             "itself.\n";
}

std::string CsvField(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + "\"";
}

std::string FleetCsv(const FleetAnswers& answers) {
    std::string names;
    for (const auto& column : kColumns)
        names += (names.empty() ? "" : ",") + std::string(column.name);
    std::string csv = "\xEF\xBB\xBF" + names + "\r\n";
    for (const PrinterState& state : answers.states) {
        std::string line;
        for (const Document::Field& field : RowOf(state).Fields())
            if (field.name != "milliseconds")
                line += (line.empty() ? "" : ",") + CsvField(CellText(field.value));
        csv += line + "\r\n";
    }
    return csv;
}
