// Defines the options with CLI11.
#include "simprinter/command_line.h"

#include "common/choices.h"
#include "common/text.h"

#include <CLI/CLI.hpp>
#include <climits>

namespace {

constexpr const char* kDefaultVary = "600"; // seconds

// "1,2c" as rows of the table. Throws CLI::ValidationError.
std::vector<const Version*> ReadVersions(const std::vector<std::string>& words) {
    std::vector<const Version*> versions;
    for (const std::string& word : words) {
        const auto* const row = std::find_if(std::begin(kVersions), std::end(kVersions),
                                             [&](const Version& version) { return version.word == word; });
        if (row == std::end(kVersions))
            throw CLI::ValidationError("--versions",
                                       Quote(word) + " is no version; "
                                           + Choices(kVersions, [](const Version& v) { return v.word; }));
        versions.push_back(row);
    }
    return versions;
}

// The options of one printer. They are read when the returned ones are parsed.
std::vector<CLI::Option*> AddPrinterOptions(CLI::App& app, PrinterOptions& printer) {
    CLI::Option* const device =
        app.add_option("--device", printer.deviceFile, "what the printer has; without it a plain one")
            ->type_name("FILE.yaml");
    CLI::Option* const replay = app.add_option("--replay", printer.replayFile,
                                               "serve a recorded walk: text of 'snmpwalk', or .snmprec")
                                    ->type_name("FILE")
                                    ->excludes(device);
    CLI::Option* const vary = app.add_option_function<double>(
                                     "--vary", [&printer](double seconds) { printer.varySeconds = seconds; },
                                     "levels change with time: the fastest tray is used up in SECONDS")
                                  ->type_name("[SECONDS]")
                                  ->check(CLI::Range(0.1, 1e6))
                                  ->expected(0, 1)
                                  ->default_str(kDefaultVary)
                                  ->excludes(replay);
    return {
        device,
        replay,
        vary,
        app.add_flag("--strict", printer.isStrict, "refuse a file that gets warnings"),
        app.add_option("--community", printer.agent.community, "requests with another one are not answered")
            ->capture_default_str(),
        app.add_option_function<std::vector<std::string>>(
               "--versions", [&printer](const auto& words) { printer.agent.versions = ReadVersions(words); },
               "versions of SNMP that are answered: 1, 2c or both")
            ->type_name("LIST")
            ->default_str("1,2c")
            ->delimiter(',')
            ->allow_extra_args(false),
        app.add_option("--largest-reply", printer.agent.largestReply, "bytes; a larger reply becomes tooBig")
            ->check(CLI::Range(484, 65507))
            ->capture_default_str(),
        app.add_option_function<std::vector<std::string>>(
               "--fault",
               [&printer](const auto& texts) {
                   for (const std::string& text : texts)
                       printer.faults.push_back(ParseFault(text));
               },
               "NAME[=VALUE][@OID]; may be repeated; see below")
            ->type_name("TEXT")
            ->allow_extra_args(false),
        app.add_option("--seed", printer.seed, "selects the answers that are lost, and the speeds of --vary")
            ->check(CLI::Range(0, INT_MAX))
            ->capture_default_str(),
    };
}

// An empty value is that of a variable that a script has not set. After "--option=", CLI11 takes the next
// word for the value.
void RefuseEmptyValues(const std::vector<std::string>& words) {
    for (size_t i = 0; i < words.size(); ++i) {
        const bool isEmpty = i + 1 < words.size() && words[i + 1].empty();
        if (isEmpty || (HasPrefix(words[i], "--") && words[i].find('=') == words[i].size() - 1))
            throw WrongUsage("the value after " + Quote(words[i])
                             + " is empty: write one, or leave the option out");
    }
}

// The options in front of `record` are those of a simulated printer, which it does not have.
void RefuseOptionsInFront(const CLI::App& app) {
    for (const CLI::Option* option : app.get_options()) {
        if (option->count() != 0)
            throw WrongUsage(option->get_name()
                             + " is in front of 'record', where it has no effect: write the "
                               "options of 'record' behind it\n'simprinter record --help' lists them.");
    }
}

void AddRecordCommand(CLI::App& app, RecordOptions& record, std::string& version) {
    CLI::App* const command =
        app.add_subcommand("record", "walk a device and write its objects to an .snmprec file");
    command->footer("'simprinter --replay FILE' serves what was recorded.");
    command->add_option("address", record.address, "of the device, or its name")->required();
    command->add_option("-o,--output", record.file, "replaced when the walk is complete")
        ->type_name("FILE.snmprec")
        ->required();
    command->add_option("--community", record.community, "that the device answers")->capture_default_str();
    command->add_option("--port", record.port, "UDP port")
        ->check(CLI::Range(1, 65535))
        ->capture_default_str();
    command->add_option("--version", version, "of SNMP; without it 2c if the device answers, else 1")
        ->check(CLI::IsMember({kVersions[0].word, kVersions[1].word}));
    command
        ->add_option("--timeout", record.timeout,
                     "seconds to wait for an answer before the request is repeated")
        ->check(CLI::Range(0.05, 60.0))
        ->capture_default_str();
}

// CLI11 lists words that it does not know from the last to the first.
std::string ErrorText(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<std::string> unknown = app.remaining(true);
    return unknown.empty() ? error.what() : Quote(unknown.front()) + " is not expected here";
}

} // namespace

bool ReadCommandLine(int argc, char** argv, CommandLine& line) {
    CLI::App app{"A simulated printer on the network: answers SNMP requests as a device would.",
                 "simprinter"};
    app.allow_windows_style_options(false); // "/x" is a file there, too
    app.set_version_flag("--version", "simprinter " PROJECT_VERSION);
    CLI::Option* const address =
        app.add_option("--address", line.address, "to listen on, IPv4 or IPv6")->capture_default_str();
    app.add_option("--port", line.port, "UDP port; 0 takes a free one")
        ->check(CLI::Range(0, 65535))
        ->capture_default_str();
    CLI::Option* const list =
        app.add_option("--list", line.listFile, "several printers: lines 'ADDRESS[-LAST] simprinter OPTIONS'")
            ->type_name("FILE")
            ->excludes(address);
    for (CLI::Option* option : AddPrinterOptions(app, line.printer))
        list->excludes(option);
    app.add_flag("--log", line.logs, "one line per request and answer on the standard error output");
    app.footer("Faults (with @OID only for requests below that object):\n" + FaultHelp()
               + "\nWhile it runs it reads control lines; 'help' lists them.");
    RecordOptions record;
    std::string version;
    AddRecordCommand(app, record, version);
    try {
        RefuseEmptyValues({argv, argv + argc});
        app.parse(argc, argv);
        if (app.got_subcommand("record")) {
            RefuseOptionsInFront(app);
            record.version = version.empty() ? nullptr : ReadVersions({version}).front();
            line.record = record;
        }
        return true;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0)
            throw WrongUsage(ErrorText(app, error) + "\n'simprinter "
                             + (app.got_subcommand("record") ? "record " : "")
                             + "--help' lists the options.");
        app.exit(error);
        return false;
    } catch (const WrongUsage&) {
        throw;
    } catch (const std::runtime_error& error) { // a fault that can't be read
        throw WrongUsage(error.what());
    }
}

PrinterOptions ReadPrinterOptions(const std::string& text) {
    PrinterOptions printer;
    CLI::App app;
    app.set_help_flag();
    app.allow_windows_style_options(false);
    AddPrinterOptions(app, printer);
    try {
        RefuseEmptyValues(CLI::detail::split_up(text));
        app.parse(text);
    } catch (const CLI::ParseError& error) {
        throw WrongUsage(ErrorText(app, error));
    } catch (const std::runtime_error& error) {
        throw WrongUsage(error.what());
    }
    return printer;
}
