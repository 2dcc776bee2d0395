// Walks a device with GetBulkRequests or, for SNMPv1, GetNextRequests. Objects that get no answer or an error
// are passed over while the device answers elsewhere: the walk goes on after the next instance, then the next
// column, then the next table and so on. A device that answers nothing is waited for.
#include "simprinter/recordings/record.h"

#include "common/files.h"
#include "common/text.h"
#include "simprinter/recordings/formats.h"
#include "simprinter/recordings/part_lock.h"
#include "simprinter/recordings/recording.h"
#include "simprinter/snmp/snmp_client.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstring>
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
constexpr size_t kLastNotes = 8192; // bytes of the file that are kept for what is noted last
constexpr int kMaxSilence = 60;     // longest waits for one answer, without any
const Oid kFirst = {1, 3};          // what is asked for first, and whenever the device seems to be gone

#ifdef _WIN32
constexpr int kStopSignals[] = {SIGTERM, SIGINT, SIGBREAK};
const std::string kClearLine = '\r' + std::string(79, ' ') + '\r'; // any console can do that
#else
constexpr int kStopSignals[] = {SIGTERM, SIGINT};
const std::string kClearLine = "\r\x1B[K";
#endif

volatile int isStopped = 0;

void StopRecording(int) {
    isStopped = 1;
}

void ClearProgress() {
    if (isatty(STDERR_FILENO))
        std::cerr << kClearLine << std::flush;
}

enum class End { kNotYet, kComplete, kIncomplete };

struct Walk {
    const RecordOptions& options;
    SnmpClient client;
    std::string part; // the name of the file until the walk is complete
    std::ofstream file;
    Oid position = kFirst; // the last name that was read, or where to go on
    size_t objects = 0, bytes = 0;
    int repetitions = kRepetitions;
    size_t passedOver = 0;   // sub-identifiers that the last failures removed; 0 after a success
    bool isRepeated = false; // the position was asked again after the device was gone
    size_t exceptions = 0;   // names without a value
    std::string firstException = {};
    std::string failure = {}; // what began the last failures
    std::vector<std::string> notes = {};
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point lastAnswer = start, lastProgress = start;

    double Seconds() const {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    void Note(const std::string& text) {
        ClearProgress();
        std::cerr << "simprinter: " << text << std::endl;
        notes.push_back(text);
        bytes += text.size() + 3; // as a line of the file
    }

    void ShowProgress() {
        const auto now = std::chrono::steady_clock::now();
        if (!isatty(STDERR_FILENO) || now - lastProgress < Milliseconds(200))
            return;
        lastProgress = now;
        std::cerr << kClearLine + std::to_string(objects) + " objects, "
                         + std::to_string(std::lround(Seconds())) + " s, at " + OidText(position)
                  << std::flush;
    }

    // Goes on behind what fails.
    End PassOver(const std::string& why) {
        isRepeated = false;
        if (passedOver == 0)
            failure = why + " after " + OidText(position);
        do {
            ++passedOver;
            if (position.size() <= 2) {
                Note(failure + ", and nothing behind it: the walk ends here");
                return End::kIncomplete;
            }
            if (passedOver > 1)
                position.pop_back();
        } while (position.back() == UINT32_MAX);
        ++position.back();
        return End::kNotYet;
    }

    void NotePassedOver(const std::string& upTo) {
        if (passedOver != 0)
            Note(failure + ": all up to " + upTo + " is passed over");
        passedOver = 0;
    }

    // Returns false at the limit of a recording.
    bool Store(const VarBind& object) {
        NotePassedOver(OidText(object.name));
        const std::string line = SnmprecLine(object.name, object.value);
        if (objects == kMaxObjects || bytes + line.size() > kMaxRecordingBytes - kLastNotes)
            return false;
        position = object.name;
        if (IsException(object.value.tag)) {
            firstException = exceptions++ == 0 ? OidText(object.name) : firstException;
            return true;
        }
        if (!file.write(line.data(), static_cast<std::streamsize>(line.size())))
            throw std::runtime_error("cannot write " + QuotePath(part) + ": " + std::strerror(errno));
        bytes += line.size();
        ++objects;
        return true;
    }

    End Complete() {
        NotePassedOver("the end");
        if (exceptions != 0)
            Note(std::to_string(exceptions)
                 + " objects are left out, as the device gives no value; the first is " + firstException);
        return End::kComplete;
    }

    End ReadReply(const Message& reply) {
        for (const VarBind& object : reply.varBinds) {
            if (object.value.tag == kEndOfMibView)
                return Complete();
            if (object.name <= position) {
                Note("after " + OidText(position) + " the device gives " + OidText(object.name)
                     + ", which does not come later: the walk ends here");
                return End::kIncomplete;
            }
            if (!Store(object)) {
                Note("the walk ends at the limit of " + std::to_string(kMaxObjects) + " objects and "
                     + std::to_string(kMaxRecordingBytes) + " bytes");
                return End::kIncomplete;
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
        return PassOver("error-status " + std::to_string(reply.errorStatus));
    }

    // After no answer: a device that answers something else is asked for what follows. One that answers
    // nothing is waited for, then asked again.
    End AwaitDevice() {
        const auto longest = kMaxSilence * client.longestWait;
        bool isGone = false;
        Message reply;
        for (;; isGone = true) {
            const Answer answer = Ask(client, PduType::kGetNext, kFirst, 0, kTriesAfterSilence, reply);
            if (answer == Answer::kReply) {
                lastAnswer = std::chrono::steady_clock::now();
                if (!isGone || isRepeated)
                    return PassOver("no answer");
                isRepeated = true;
                return End::kNotYet;
            }
            if (answer != Answer::kNone)
                return Stop(answer);
            if (std::chrono::steady_clock::now() - lastAnswer > longest) {
                Note("no answer for "
                     + std::to_string(std::chrono::duration_cast<std::chrono::seconds>(longest).count())
                     + " seconds: the walk ends here");
                return End::kIncomplete;
            }
            ShowProgress();
        }
    }

    End Stop(Answer answer) {
        Note(answer == Answer::kStopped ? "stopped" : "the device has closed the port: the walk ends here");
        return End::kIncomplete;
    }

    End Step() {
        const bool isBulk = client.version->hasGetBulk && repetitions > 1 && passedOver == 0;
        Message reply;
        const Answer answer = Ask(client, isBulk ? PduType::kGetBulk : PduType::kGetNext, position,
                                  repetitions, passedOver == 0 ? kTries : kTriesAfterSilence, reply);
        if (answer == Answer::kNone && !isBulk)
            return AwaitDevice();
        if (answer == Answer::kNone) {
            repetitions = 1;
            return End::kNotYet;
        }
        if (answer != Answer::kReply)
            return Stop(answer);
        lastAnswer = std::chrono::steady_clock::now();
        isRepeated = false;
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

// Connects with the first version that the address answers. Returns why there is none, or nothing.
std::string FindVersion(const RecordOptions& options, const SocketAddress& address, SnmpClient& client) {
    const std::string where = EndpointText(EndpointOf(address));
    bool isClosed = true;
    for (const Version* version : {&kVersions[1], &kVersions[0]}) {
        if (options.version && version != options.version)
            continue;
        if (!Connect(client, address))
            return "cannot reach " + where + ": " + SocketErrorText(SocketError());
        client.version = version;
        std::cerr << "simprinter: asking " << where << " with " << version->name << std::endl;
        Message reply;
        const Answer answer = Ask(client, PduType::kGetNext, kFirst, 0, kFirstTries, reply);
        if (answer == Answer::kReply)
            return "";
        if (answer == Answer::kStopped)
            throw std::runtime_error("stopped");
        isClosed = isClosed && answer == Answer::kClosed;
    }
    if (isClosed)
        return "nothing listens on " + where + ": is SNMP switched on in the device?";
    if (const std::string unusual = UnusualAnswer(client, address, kFirst); !unusual.empty())
        return "no usable answer from " + where + ": " + unusual;
    return "no answer from " + where + ": check the address, the community " + Quote(options.community)
           + " (--community), and that the device allows SNMP from here";
}

// Connects to the first address that answers. Throws when there is none.
void FindAgent(const RecordOptions& options, SnmpClient& client) {
    std::string problems;
    for (const SocketAddress& address : FindAddresses(options.address, options.port)) {
        const std::string problem = FindVersion(options, address, client);
        if (problem.empty())
            return;
        problems += (problems.empty() ? "" : "\nsimprinter: ") + problem;
    }
    throw std::runtime_error(problems);
}

std::string SecondsText(double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f s", seconds);
    return text;
}

} // namespace

std::string InUseText(const std::string& part) {
    std::string header;
    std::getline(std::ifstream(FilePath(part)), header);
    return QuotePath(part) + " is in use by another 'simprinter record', of "
           + Quote(header.substr(std::min<size_t>(2, header.size())))
           + ": wait until it ends, or choose another file";
}

bool RecordDevice(const RecordOptions& options) {
    for (const int signal : kStopSignals)
        std::signal(signal, StopRecording);
    if (options.file == "-")
        throw std::runtime_error(
            "a recording can't be written to the standard output: write the name of a file");
    const std::string target = FileToReplace(options.file), part = FileToReplace(target + ".part");
    Walk walk{options, {}, part, {}};
    walk.client.community = options.community;
    walk.client.longestWait = Milliseconds(std::lround(options.timeout * 1000));
    walk.client.wait = std::min(walk.client.longestWait, Milliseconds(500));
    walk.client.stop = &isStopped;
    FindAgent(options, walk.client);
    const PartLock lock(part);
    walk.file.open(FilePath(part), std::ios::binary | std::ios::trunc);
    const std::string header = "# " + options.address + ", " + walk.client.version->name + '\n';
    walk.bytes = header.size();
    if (!(walk.file << header).flush())
        throw std::runtime_error("cannot write " + QuotePath(part) + ": " + std::strerror(errno));
    const End end = walk.Run();
    for (const std::string& note : walk.notes)
        walk.file << "# " << note << '\n';
    walk.file.close();
    if (!walk.file)
        throw std::runtime_error("cannot write " + QuotePath(part) + ": " + std::strerror(errno));
    ClearProgress();
    if (walk.objects == 0) {
        std::filesystem::remove(FilePath(part));
        throw std::runtime_error("the device " + Quote(options.address)
                                 + " has answered, but gives no object");
    }
    const bool isComplete = end == End::kComplete;
    std::error_code error;
    if (isComplete)
        std::filesystem::rename(FilePath(part), FilePath(target), error);
    if (error)
        throw std::runtime_error("cannot rename " + QuotePath(part) + " to " + QuotePath(target) + ": "
                                 + error.default_error_condition().message());
    std::cout << "simprinter: " << walk.objects << " objects of " << options.address << " in "
              << QuotePath(isComplete ? options.file : part) << " (" << walk.client.version->name << ", "
              << SecondsText(walk.Seconds()) << (isComplete ? ")" : "), not complete") << std::endl;
    return isComplete;
}
