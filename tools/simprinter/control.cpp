// The table of control commands. A command that does not suit one of its printers changes none of them.
#include "simprinter/control.h"

#include "common/choices.h"
#include "common/text.h"
#include "simprinter/device/device_reader.h"

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <stdexcept>

namespace {

// The printers that a line is for.
using Selected = std::vector<Printer*>;

[[noreturn]] void Refuse(const std::string& problem) {
    throw std::runtime_error(problem);
}

enum class Words { kNone, kOptional, kNeeded };

// A command gets the words after it, as Tidy leaves them, and returns what it did or shows. It throws
// std::runtime_error before it changes anything.
struct CommandKind {
    const char* name;
    Words words;
    const char* usage; // of its words
    const char* text;
    std::string (*run)(const Selected& printers, const std::string& words, UpTime upTime);
};

// "127.0.0.1: set online no"
std::string DoneText(const Selected& printers, const std::string& what) {
    return (printers.size() == 1 ? printers.front()->address
                                 : "all " + std::to_string(printers.size()) + " printers")
           + ": " + what;
}

std::string Set(const Selected& printers, const std::string& words, UpTime upTime) {
    std::vector<Device> changed;
    for (const Printer* printer : printers) {
        if (!printer->start)
            Refuse(printer->address + " serves a recording, which can't be set; faults work");
        changed.push_back(printer->device);
        const std::string problem = SetInDevice(words, changed.back());
        if (!problem.empty())
            Refuse(printer->address + ": " + problem);
    }
    for (size_t i = 0; i < printers.size(); ++i) {
        printers[i]->device = changed[i];
        NoteChange(*printers[i], upTime);
    }
    return DoneText(printers, "set " + words);
}

std::string SetFault(const Selected& printers, const std::string& words, UpTime) {
    const Fault fault = ParseFault(words);
    for (const Printer* printer : printers) {
        if (const char* const problem = FaultProblem(fault, printer->address))
            Refuse(printer->address + ": " + problem);
    }
    for (Printer* printer : printers)
        AddFault(printer->agent.faults, fault);
    return DoneText(printers, "fault " + FaultText(fault));
}

std::string ClearFault(const Selected& printers, const std::string& words) {
    bool isAny = false;
    for (Printer* printer : printers)
        isAny = RemoveFaults(printer->agent.faults, words) || isAny;
    if (!isAny)
        Refuse("there is no fault " + Quote(words) + " to clear; 'show' lists the faults");
    return DoneText(printers, "clear " + words);
}

std::string Clear(const Selected& printers, const std::string& words, UpTime upTime) {
    if (!words.empty())
        return ClearFault(printers, words);
    for (Printer* printer : printers) {
        printer->agent.faults.faults = printer->options.faults;
        if (!printer->start)
            continue;
        printer->device = *printer->start;
        NoteChange(*printer, upTime);
    }
    return DoneText(printers, "as at the start");
}

std::string LevelText(int level, int capacity) {
    for (const Word& word : kLevelWords)
        if (word.code == level)
            return word.word;
    return std::to_string(level) + " of " + std::to_string(capacity);
}

template <typename Thing>
std::string LevelsText(const std::vector<Thing>& things) {
    return Listing(things, [](const Thing& thing) {
        return std::string(thing.kind->name.word) + ' ' + LevelText(thing.level, thing.capacity);
    });
}

std::string DeviceText(const Device& device) {
    return device.model + ", " + (device.isOnline ? "online" : "offline") + ", cover "
           + (device.isCoverOpen != 0 ? "open" : "closed") + "\n  trays: " + LevelsText(device.trays)
           + "\n  supplies: " + LevelsText(device.supplies);
}

std::string Show(const Selected& printers, const std::string&, UpTime) {
    std::string text;
    for (const Printer* printer : printers) {
        text += (text.empty() ? "" : "\n") + printer->address + ": "
                + (printer->start ? DeviceText(printer->device)
                                  : "recording " + QuotePath(printer->options.replayFile));
        const std::string alerts =
            Listing(printer->alerts.alerts, [](const Alert& alert) { return alert.condition.text; });
        const std::string faults = Listing(printer->agent.faults.faults, FaultText);
        text +=
            (alerts.empty() ? "" : "\n  alerts: " + alerts) + (faults.empty() ? "" : "\n  faults: " + faults);
    }
    return text;
}

std::string Help(const Selected& printers, const std::string& words, UpTime upTime);

// The program stops once its caller has the reply.
std::string Stop(const Selected&, const std::string&, UpTime) {
    return "stopped";
}

constexpr CommandKind kCommands[] = {
    {"set", Words::kNeeded, "[TRAY|SUPPLY] FIELD VALUE",
     "TRAY1 level 0, cyan level 12, cover open, online no", Set},
    {"fault", Words::kNeeded, "NAME[=VALUE][@OID]", "adds a fault, or changes one", SetFault},
    {"clear", Words::kOptional, "[NAME[@OID]]",
     "takes a fault away, or all: settings and faults as at the start", Clear},
    {"show", Words::kNone, "", "levels, alerts and faults", Show},
    {"stop", Words::kNone, "", "ends the program, all printers", Stop},
    {"help", Words::kNone, "", "this list", Help},
};

std::string Usage(const CommandKind& command) {
    return std::string(command.name) + (*command.usage ? " " : "") + command.usage;
}

std::string Help(const Selected&, const std::string&, UpTime) {
    std::string text = "An address in front selects one printer; otherwise a line is for all.";
    for (const CommandKind& command : kCommands) {
        std::string usage = "\n  " + Usage(command);
        usage.resize(std::max<size_t>(usage.size() + 2, 36), ' ');
        text += usage + command.text;
    }
    return text + "\nFaults:\n" + FaultHelp();
}

std::string CommandName(const CommandKind& command) {
    return command.name;
}

const CommandKind& FindCommand(const std::string& name) {
    for (const CommandKind& command : kCommands)
        if (name == command.name)
            return command;
    Refuse("unknown command " + Quote(name) + "; " + Choices(kCommands, CommandName));
}

// Takes the address off the line, if there is one.
Selected Select(std::vector<Printer>& printers, std::string& line) {
    const size_t end = std::min(line.find(' '), line.size());
    const std::string first = line.substr(0, end);
    Selected selected;
    const bool isAddress = first.find_first_of(".:") != std::string::npos;
    for (Printer& printer : printers) {
        if (!isAddress || printer.address == first)
            selected.push_back(&printer);
    }
    if (selected.empty())
        Refuse("no printer has the address " + Quote(first) + "; "
               + (printers.size() > 10 ? printers.front().address + " to " + printers.back().address
                                       : Choices(printers, [](const Printer& p) { return p.address; })));
    if (isAddress)
        line.erase(0, end + 1);
    return selected;
}

// With one space between words, and none at the ends. Text in double quotes loses them and stays as it is.
std::string Tidy(const std::string& line) {
    std::istringstream words(line);
    std::string tidy;
    for (std::string word; words >> std::ws && !words.eof();) {
        if (words.peek() != '"')
            words >> word;
        else if (!(words >> std::quoted(word)))
            Refuse("a double quote is not closed: write another at the end of the text");
        tidy += (tidy.empty() ? "" : " ") + word;
    }
    return tidy;
}

} // namespace

ControlReply RunControlLine(std::vector<Printer>& printers, const std::string& line, UpTime upTime) {
    try {
        std::string rest = Tidy(line);
        if (rest.empty())
            return {true, "", false};
        if (const size_t bad = FindBadUtf8(rest); bad != std::string::npos)
            Refuse("this line is not UTF-8 from byte " + std::to_string(bad + 1) + " on");
        const Selected selected = Select(printers, rest);
        if (rest.empty())
            Refuse("write a command after the address; " + Choices(kCommands, CommandName));
        const size_t end = std::min(rest.find(' '), rest.size());
        const CommandKind& command = FindCommand(rest.substr(0, end));
        const std::string words = rest.substr(std::min(end + 1, rest.size()));
        if (command.words == (words.empty() ? Words::kNeeded : Words::kNone))
            Refuse("write " + Usage(command));
        const bool stops = command.run == Stop;
        if (stops && selected.size() != printers.size())
            Refuse("all printers are of one program: write stop without an address");
        return {true, command.run(selected, words, upTime), stops};
    } catch (const std::runtime_error& error) {
        return {false, error.what(), false};
    }
}
