// Reads the output of net-snmp's tools, a line "NAME = TYPE: VALUE" for each object. A quoted text continues
// on further lines until a quote ends one, any other text and hexadecimal bytes until the next object.
// Without types (options -Oq and -OQ) the table of standard objects gives them; other objects are guessed.
#include "simprinter/recordings/walk_text.h"

#include "common/text.h"
#include "simprinter/recordings/recording.h"

#include <algorithm>

namespace {

bool IsAnyOf(const char* const* first, const char* const* last, std::string_view line) {
    return std::any_of(first, last, [&](const char* start) { return HasPrefix(line, start); });
}

// Where the recording lacks something, and what follows such a message.
constexpr const char* kFailures[] = {"Timeout: ",  "Error: ",        "Error in packet",
                                     "snmpwalk: ", "snmpbulkwalk: ", "No Response from"};
constexpr const char* kRemarks[] = {"End of MIB",        " >= ",
                                    "Reason: ",          "Failed object: ",
                                    "MIB search path: ", "Cannot find module ",
                                    "Did not find ",     "Created directory: ",
                                    "Bad operator ",     "Unlinked OID ",
                                    "Undefined ",        "Cannot adopt OID "};
// Printed in place of a value.
constexpr const char* kNoObject[] = {"No more variables left", "No Such Object", "No Such Instance"};

// A command line with its prompt, or a prompt alone.
bool IsPrompt(std::string_view line) {
    const size_t last = line.find_last_not_of(' ');
    const bool isPromptAlone = last != std::string_view::npos
                               && std::string_view("$#>").find(line[last]) != std::string_view::npos
                               && (last == 0 || line.find_first_of(":@") < last);
    return isPromptAlone || line.find("snmpwalk ") != std::string_view::npos
           || line.find("snmpbulkwalk ") != std::string_view::npos;
}

bool IsBlank(std::string_view line) {
    return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

// A line that starts an object.
struct ObjectLine {
    WalkName name;
    std::string_view text; // the value's first line
};

// Whether the file has equals signs and types is known before its lines are read.
struct Form {
    bool hasEquals = false, hasTypes = false;
};

std::optional<ObjectLine> SplitObject(std::string_view line, bool hasEquals) {
    ObjectLine object{ReadWalkName(line), {}};
    std::string_view rest = line.substr(object.name.length);
    const std::string_view separator = hasEquals ? " = " : " ";
    if (object.name.length == 0 || (!HasPrefix(rest, separator) && rest != " ="))
        return std::nullopt;
    object.text = rest.substr(std::min(separator.size(), rest.size()));
    const bool isSure = object.name.isSure || (hasEquals && StartsWithType(object.text));
    return isSure ? std::optional(object) : std::nullopt;
}

// Without equals signs only names with an index or a module are objects, so that "system down" is none.
std::optional<ObjectLine> ObjectAt(std::string_view line, Form form) {
    std::optional<ObjectLine> object = SplitObject(line, form.hasEquals);
    if (object && !form.hasEquals
        && line.substr(0, object->name.length).find_first_of(".:[") == std::string_view::npos
        && (object->name.oid.empty()
            || object->name.oid.back() != 0)) // sysUpTimeInstance has its index in the name
        return std::nullopt;
    return object;
}

Form FormOf(const Lines& lines) {
    Form form;
    for (const std::string_view line : lines) {
        if (const std::optional<ObjectLine> object = SplitObject(line, true)) {
            form.hasEquals = true;
            form.hasTypes = form.hasTypes || StartsWithType(object->text);
        }
    }
    return form;
}

struct WalkReader {
    const Lines& lines;
    Form form;
    Recording& recording;
    std::vector<size_t> quotes = {}; // for each line, itself or the next one that has a quote
    size_t ignored = 0;              // lines before the first object
    Place firstIgnored = {};
    size_t guessed = 0;
    Place firstGuessed = {};

    bool IsRemark(std::string_view line) const {
        return IsAnyOf(std::begin(kRemarks), std::end(kRemarks), line)
               || IsAnyOf(std::begin(kFailures), std::end(kFailures), line) || IsPrompt(line);
    }

    void ReadOther(size_t at) {
        const std::string_view line = lines[at];
        if (IsAnyOf(std::begin(kFailures), std::end(kFailures), line))
            return recording.findings.Warning(
                AtLine(at + 1), "the walk failed here, so that objects may be missing: " + Quote(line));
        if (IsBlank(line) || IsRemark(line))
            return;
        if (!recording.objects.empty())
            return recording.LeaveOut(AtLine(at + 1), "expected 'NAME = TYPE: VALUE', not " + Quote(line));
        if (ignored++ == 0)
            firstIgnored = AtLine(at + 1);
    }

    void Store(Place place, const ObjectLine& object, std::string_view name, const std::string& text) {
        if (IsAnyOf(std::begin(kNoObject), std::end(kNoObject), text))
            return;
        if (object.name.oid.empty())
            return recording.LeaveOut(place, "the name " + Quote(name)
                                                 + " is unknown or not valid: record with "
                                                   "'snmpwalk -On'");
        const WalkValue value = ReadWalkValue(object.name.oid, text, form.hasTypes);
        if (!value.value) {
            place.column = name.size() + (form.hasEquals ? 4 : 2);
            return recording.LeaveOut(place, Quote(text) + " is not a value of its type");
        }
        if (value.isGuessed && guessed++ == 0)
            firstGuessed = place;
        recording.Add(place, object.name.oid, *value.value);
    }

    // Reads the object that starts in this line. Returns the line after it.
    size_t ReadObject(size_t at, const ObjectLine& object) {
        const Place place = AtLine(at + 1);
        const std::string_view name = lines[at].substr(0, object.name.length);
        std::string text(object.text);
        size_t next = at + 1;
        if (IsOpenQuote(text)) {
            const size_t end = next < lines.size() ? quotes[next] : lines.size();
            // All quotes inside are escaped, so that one elsewhere belongs to another object.
            if (end == lines.size() || FindQuote(lines[end]) + 1 != lines[end].size()) {
                recording.LeaveOut(place, "the quoted text that starts here has no end");
                return next;
            }
            while (next <= end)
                text.append("\n").append(lines[next++]);
        } else if (MayContinue(text) && !IsAnyOf(std::begin(kNoObject), std::end(kNoObject), text)) {
            while (next < lines.size() && !ObjectAt(lines[next], form) && !IsRemark(lines[next]))
                text.append("\n").append(lines[next++]);
            if (next == lines.size()
                || !ObjectAt(lines[next], form)) // nothing shows whether blank lines belong to it
                text.erase(text.find_last_not_of('\n') + 1);
        }
        Store(place, object, name, text);
        return next;
    }

    void ReadAll() {
        quotes.assign(lines.size(), lines.size());
        for (size_t i = lines.size(); i-- > 0;) {
            const bool hasQuote = FindQuote(lines[i]) != std::string_view::npos;
            quotes[i] = hasQuote ? i : i + 1 < lines.size() ? quotes[i + 1] : lines.size();
        }
        for (size_t i = 0; i < lines.size();) {
            const std::optional<ObjectLine> object = ObjectAt(lines[i], form);
            if (!object)
                ReadOther(i);
            i = object ? ReadObject(i, *object) : i + 1;
        }
        if (ignored != 0 && !recording.objects.empty())
            recording.findings.Warning(firstIgnored,
                                       "this line and all others before the first object are ignored, "
                                           + std::to_string(ignored) + " in total");
        if (guessed != 0)
            recording.findings.Warning(firstGuessed,
                                       "the types are not recorded: this object and all others that are "
                                       "not in a standard MIB are guessed, "
                                           + std::to_string(guessed) + " in total");
    }
};

} // namespace

size_t FindWalkLine(const Lines& lines) {
    const Form form = FormOf(lines);
    const auto first = std::find_if(lines.begin(), lines.end(),
                                    [&](std::string_view line) { return ObjectAt(line, form).has_value(); });
    return static_cast<size_t>(first - lines.begin());
}

void ReadWalk(const Lines& lines, Recording& recording) {
    WalkReader{lines, FormOf(lines), recording}.ReadAll();
}
