// Walks a device with GetBulkRequests or, for SNMPv1, GetNextRequests. Objects that get no answer or an error
// are passed over: the walk goes on after the next instance, then the next column, then the next table and so
// on.
#include "simprinter/recordings/record.h"

#include "common/text.h"
#include "simprinter/recordings/recording.h"
#include "simprinter/snmp/snmp_client.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

namespace {

constexpr int kRepetitions = 20;      // of the first GetBulkRequest; halved when the reply is too large
constexpr int kTries = 7;             // for a request
constexpr int kTriesAfterSilence = 3; // for one that follows another without an answer
constexpr int kFirstTries = 4;        // for each version and address
constexpr size_t kMaxObjects = 100000;
constexpr int kMaxSilence = 120; // seconds without any answer

volatile int isStopped = 0;

void StopRecording(int) {
    isStopped = 1;
}

enum class End { kNotYet, kComplete, kStopped };

struct Walk {
    const RecordOptions& options;
    SnmpClient client;
    std::ofstream file;
    Oid position = {1, 3}; // the last name that was read, or where to go on
    size_t objects = 0, bytes = 0;
    int repetitions = kRepetitions;
    size_t passedOver = 0;    // sub-identifiers that the last failures removed; 0 after a success
    std::string failure = {}; // what began the last failures
    std::vector<std::string> notes = {};
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point lastAnswer = start, lastProgress = start;

    double Seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    void Note(const std::string& text) {
        std::cerr << (isatty(STDERR_FILENO) ? "\r\x1B[K" : "") << "simprinter: " << text << std::endl;
        notes.push_back(text);
    }

    void ShowProgress() {
        const auto now = std::chrono::steady_clock::now();
        if (!isatty(STDERR_FILENO) || now - lastProgress < Milliseconds(200))
            return;
        lastProgress = now;
        std::cerr << '\r' << objects << " objects, " << static_cast<int>(Seconds()) << " s, at "
                  << OidText(position) << "\x1B[K" << std::flush;
    }

    // Goes on behind what fails. False when there is nothing behind it.
    bool PassOver(const std::string& why) {
        if (passedOver == 0)
            failure = why + " after " + OidText(position);
        do {
            ++passedOver;
            if (position.size() <= 2)
                return false;
            if (passedOver > 1)
                position.pop_back();
        } while (position.back() == UINT32_MAX);
        ++position.back();
        return true;
    }

    void NotePassedOver(const std::string& upTo) {
        if (passedOver != 0)
            Note(failure + ": all up to " + upTo + " is passed over");
        passedOver = 0;
    }

    void Store(const VarBind& object) {
        NotePassedOver(OidText(object.name));
        const std::string line = SnmprecLine(object.name, object.value);
        if (!file.write(line.data(), static_cast<std::streamsize>(line.size())))
            throw std::runtime_error("cannot write " + Quote(options.file + ".part") + ": "
                                     + std::strerror(errno));
        position = object.name;
        bytes += line.size();
        ++objects;
    }

    End Complete() {
        NotePassedOver("the end");
        return End::kComplete;
    }

    End ReadReply(const Message& reply) {
        for (const VarBind& object : reply.varBinds) {
            if (object.value.tag == kEndOfMibView)
                return Complete();
            if (object.name <= position) {
                Note("after " + OidText(position) + " the device gives " + OidText(object.name)
                     + ", which does not come later: the walk ends here");
                return End::kComplete;
            }
            Store(object);
            if (objects >= kMaxObjects || bytes >= kMaxRecordingBytes) {
                Note("the walk ends at the limit of " + std::to_string(kMaxObjects) + " objects and "
                     + std::to_string(kMaxRecordingBytes) + " bytes");
                return End::kComplete;
            }
        }
        file.flush();
        return End::kNotYet;
    }

    // A reply with an error. SNMPv1 has no other sign of the end.
    End ReadError(const Message& reply, bool isBulk) {
        if (isBulk) {
            repetitions /= 2;
            return End::kNotYet;
        }
        if (reply.errorStatus == kNoSuchName && !client.version->hasExceptions)
            return Complete();
        return PassOver("error-status " + std::to_string(reply.errorStatus)) ? End::kNotYet : Complete();
    }

    End Step() {
        const bool isBulk = client.version->hasGetBulk && repetitions > 1 && passedOver == 0;
        Message reply;
        const Answer answer = Ask(client, isBulk ? PduType::kGetBulk : PduType::kGetNext, position,
                                  repetitions, passedOver == 0 ? kTries : kTriesAfterSilence, reply);
        if (answer == Answer::kStopped) {
            Note("stopped");
            return End::kStopped;
        }
        const auto now = std::chrono::steady_clock::now();
        if (answer != Answer::kReply) {
            if (now - lastAnswer > std::chrono::seconds(kMaxSilence) || answer == Answer::kClosed) {
                Note(answer == Answer::kClosed
                         ? "the device has closed the port: the walk ends here"
                         : "no answer for " + std::to_string(kMaxSilence) + " seconds: the walk ends here");
                return End::kStopped;
            }
            if (!isBulk)
                return PassOver("no answer") ? End::kNotYet : Complete();
            repetitions = 1;
            return End::kNotYet;
        }
        lastAnswer = now;
        if (reply.errorStatus != kNoError || reply.varBinds.empty())
            return ReadError(reply, isBulk);
        repetitions = std::min(2 * repetitions, kRepetitions);
        return ReadReply(reply);
    }

    End Run() {
        for (;;) {
            if (const End end = Step(); end != End::kNotYet)
                return end;
            ShowProgress();
        }
    }
};

// Connects to the first address and version that answer. Throws when there is none.
void FindAgent(const RecordOptions& options, SnmpClient& client) {
    bool isClosed = true;
    const std::vector<std::vector<uint8_t>> addresses = FindAddresses(options.address, options.port);
    for (const std::vector<uint8_t>& address : addresses) {
        for (const Version* version : {&kVersions[1], &kVersions[0]}) {
            if (options.version && version != options.version)
                continue;
            Connect(client, address);
            client.version = version;
            Message reply;
            const Answer answer = Ask(client, PduType::kGetNext, {1, 3}, 0, kFirstTries, reply);
            if (answer == Answer::kReply)
                return;
            if (answer == Answer::kStopped)
                throw std::runtime_error("stopped");
            isClosed = isClosed && answer == Answer::kClosed;
        }
    }
    const std::string where = Quote(options.address) + ", UDP port " + std::to_string(options.port);
    throw std::runtime_error(isClosed ? "nothing listens on " + where + ": is SNMP switched on in the device?"
                                      : "no answer from " + where + ": check the address, the community "
                                            + Quote(options.community)
                                            + " (--community), and that the device allows SNMP from here");
}

void CatchStop() {
    struct sigaction action = {};
    action.sa_handler = StopRecording;
    for (const int signal : {SIGTERM, SIGINT})
        sigaction(signal, &action, nullptr);
}

std::string SecondsText(double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f s", seconds);
    return text;
}

} // namespace

bool RecordDevice(const RecordOptions& options) {
    CatchStop();
    Walk walk{options, {}, {}};
    walk.client.community = options.community;
    walk.client.longestWait = Milliseconds(std::lround(options.timeout * 1000));
    walk.client.wait = std::min(walk.client.longestWait, Milliseconds(500));
    walk.client.stop = &isStopped;
    FindAgent(options, walk.client);
    const std::string part = options.file + ".part";
    walk.file.open(part, std::ios::binary | std::ios::trunc);
    walk.file << "# " << options.address << ", " << walk.client.version->name << '\n';
    if (!walk.file.flush())
        throw std::runtime_error("cannot write " + Quote(part) + ": " + std::strerror(errno));
    const End end = walk.Run();
    for (const std::string& note : walk.notes)
        walk.file << "# " << note << '\n';
    walk.file.close();
    if (!walk.file)
        throw std::runtime_error("cannot write " + Quote(part) + ": " + std::strerror(errno));
    const bool isComplete = end == End::kComplete && walk.objects != 0;
    if (isComplete)
        std::filesystem::rename(part, options.file);
    std::cerr << (isatty(STDERR_FILENO) ? "\r\x1B[K" : "") << std::flush;
    std::cout << "simprinter: " << walk.objects << " objects of " << options.address << " in "
              << Quote(isComplete ? options.file : part) << " (" << walk.client.version->name << ", "
              << SecondsText(walk.Seconds()) << (isComplete ? ")" : "), not complete") << std::endl;
    return isComplete;
}
