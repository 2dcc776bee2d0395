// Reads the output of net-snmp's tools, a line "NAME = TYPE: VALUE" for each object, perhaps pasted into a
// mail. A text in quotes goes on in further lines until the closing quote, any other text until the next
// object, a blank line or a remark, and hexadecimal bytes as long as there are such.
// Without types (options -Oq and -OQ) the table of standard objects gives them; other objects are guessed.
#include "simprinter/recordings/walk_text.h"

#include "common/text.h"
#include "simprinter/recordings/formats.h"

#include <algorithm>

namespace {

bool IsAnyOf(const char* const* first, const char* const* last, std::string_view line) {
    return std::any_of(first, last, [&](const char* start) { return HasPrefix(line, start); });
}

// Where the recording lacks something, and what follows such a message: " >= NAME", which has a margin, too.
constexpr const char* kFailures[] = {"Timeout: ",  "Error: ",        "Error in packet",
                                     "snmpwalk: ", "snmpbulkwalk: ", "No Response from"};
constexpr const char* kRemarks[] = {"End of MIB",        "= ",
                                    "Reason: ",          "Failed object: ",
                                    "MIB search path: ", "Cannot find module ",
                                    "Did not find ",     "Created directory: ",
                                    "Bad operator ",     "Unlinked OID ",
                                    "Undefined ",        "Cannot adopt OID "};
// Printed in place of a value.
constexpr const char* kNoObject[] = {"No more variables left", "No Such Object", "No Such Instance"};

bool IsNoObject(std::string_view text) {
    return IsAnyOf(std::begin(kNoObject), std::end(kNoObject), text);
}

// A prompt alone or with a command: "bob@host:~$", "[root@host ~]#", "C:\\>"; or a command line of a walk.
bool IsPrompt(std::string_view line) {
    const size_t last = line.find_last_not_of(' ');
    const bool isAlone = last != std::string_view::npos
                         && std::string_view("$#>").find(line[last]) != std::string_view::npos
                         && (last == 0 || line.find_first_of(":@") < last);
    const size_t end = std::min(line.find_first_of("$#>"), line.size());
    const std::string_view head = line.substr(0, end), rest = line.substr(end);
    const bool isOfDrive = head.find(":\\") == 1 && !rest.empty();
    const bool isOfHost = head.find('@') != std::string_view::npos && rest.find(' ') == 1
                          && (head.front() == '[' || head.find(' ') == std::string_view::npos);
    return isAlone || isOfDrive || isOfHost || line.find("snmpwalk ") != std::string_view::npos
           || line.find("snmpbulkwalk ") != std::string_view::npos;
}

// What mail programs put in front of each line that they quote, or an indent.
std::string_view MarginOf(std::string_view line) {
    return line.substr(0, line.find_first_not_of("> \t"));
}

std::string_view WithoutMargin(std::string_view line) {
    line = WithoutCr(line);
    return line.substr(MarginOf(line).size());
}

bool IsBlank(std::string_view line) {
    return WithoutMargin(line).empty();
}

// A line that starts an object: margin, name, separator, text.
struct ObjectLine {
    WalkName name;
    std::string_view margin, text; // of the value's first line
    size_t textAt = 0;             // its position in the line
};

// What is known of a file before its lines are read.
struct Form {
    bool hasEquals = false, hasTypes = false;
    bool isSpaced = true; // no object directly follows another one's line
};

// The size of the blanks at the start.
size_t BlankSize(std::string_view text) {
    return std::min(text.find_first_not_of(" \t"), text.size());
}

// The size of " = " or, without equals signs, of the blank; 0 when there is none. Tables and editors may have
// changed the blanks around an equals sign, which shows in that a type follows.
size_t SeparatorSize(std::string_view rest, bool hasEquals) {
    const std::string_view separator = hasEquals ? " = " : " ";
    const size_t equals = BlankSize(rest);
    if (hasEquals && HasPrefix(rest.substr(equals), "=")) {
        const size_t value = equals + 1 + BlankSize(rest.substr(equals + 1));
        if (StartsWithType(rest.substr(value)) || rest.substr(value) == "\"\"")
            return value;
    }
    return HasPrefix(rest, separator) || rest == " =" ? std::min(separator.size(), rest.size()) : 0;
}

std::optional<ObjectLine> SplitObject(std::string_view line, bool hasEquals) {
    ObjectLine object;
    line = WithoutCr(line);
    object.margin = MarginOf(line);
    object.name = ReadWalkName(line.substr(object.margin.size()));
    const size_t nameEnd = object.margin.size() + object.name.length;
    const size_t separatorSize = SeparatorSize(line.substr(nameEnd), hasEquals);
    if (object.name.length == 0 || separatorSize == 0)
        return std::nullopt;
    object.textAt = nameEnd + separatorSize;
    object.text = line.substr(object.textAt);
    const bool isSure = object.name.isSure || (hasEquals && StartsWithType(object.text));
    return isSure ? std::optional(object) : std::nullopt;
}

// Without equals signs only names with an index or a module are objects, so that "system down" is none.
std::optional<ObjectLine> ObjectAt(std::string_view line, Form form) {
    std::optional<ObjectLine> object = SplitObject(line, form.hasEquals);
    if (object && !form.hasEquals
        && line.substr(object->margin.size(), object->name.length).find_first_of(".:[")
               == std::string_view::npos
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
    for (size_t i = 1; i < lines.size() && form.isSpaced; ++i)
        form.isSpaced = !ObjectAt(lines[i - 1], form) || IsBlank(lines[i]);
    return form;
}

// With blanks in place of no-break spaces.
std::string WithBlanks(std::string_view text) {
    constexpr std::string_view kNoBreakSpace = "\u00A0";
    std::string plain;
    for (size_t at; (at = text.find(kNoBreakSpace)) != std::string_view::npos;) {
        plain.append(text.substr(0, at)).push_back(' ');
        text.remove_prefix(at + kNoBreakSpace.size());
    }
    return plain.append(text);
}

// Something that many objects may have, and that is reported once.
struct Occurrences {
    size_t count = 0;
    Place first = {};

    void Add(Place place) {
        if (count++ == 0)
            first = place;
    }
};

struct WalkReader {
    const Lines& lines;
    Form form;
    Recording& recording;
    std::vector<size_t> quotes = {}; // for each line, itself or the next one that has a quote
    Occurrences ignored = {};        // lines before the first object
    Occurrences guessed = {};        // types
    Occurrences changed = {};        // quotes

    static bool IsRemark(std::string_view line) {
        line = WithoutMargin(line);
        return IsAnyOf(std::begin(kRemarks), std::end(kRemarks), line)
               || IsAnyOf(std::begin(kFailures), std::end(kFailures), line) || IsPrompt(line);
    }

    void ReadOther(size_t at) {
        const std::string_view line = WithoutMargin(lines[at]);
        if (IsAnyOf(std::begin(kFailures), std::end(kFailures), line))
            return recording.findings.Warning(
                AtLine(at + 1), "the walk failed here, so that objects may be missing: " + Quote(line));
        if (IsBlank(line) || IsRemark(line))
            return;
        if (!recording.objects.empty())
            return recording.Warn(AtLine(at + 1), "expected 'NAME = TYPE: VALUE', not " + Quote(line));
        ignored.Add(AtLine(at + 1));
    }

    void Store(size_t at, const ObjectLine& object, const std::string& text) {
        Place place = AtLine(at + 1);
        if (IsNoObject(text))
            return;
        if (object.name.oid.empty())
            return recording.Warn(
                place, UnknownNameFault(lines[at].substr(object.margin.size(), object.name.length)));
        const WalkValue value = ReadWalkValue(object.name.oid, text, form.hasTypes);
        if (!value.value) {
            place.column = object.textAt + 1;
            return recording.Warn(place, value.fault);
        }
        if (value.isGuessed)
            guessed.Add(place);
        if (HasChangedQuote(text))
            changed.Add(place);
        recording.Add(place, object.name.oid, *value.value);
    }

    // The value's text: the lines from `at` to `last`, without their margin. The last line shows whether a CR
    // in front of the others' ends belongs to the text.
    std::string Joined(size_t at, size_t last, const ObjectLine& object) const {
        const bool hasCr = WithoutCr(lines[last]) != lines[last];
        std::string text;
        for (size_t i = at; i <= last; ++i) {
            std::string_view line = lines[i];
            line.remove_prefix(i == at                          ? object.textAt
                               : HasPrefix(line, object.margin) ? object.margin.size()
                                                                : MarginOf(line).size());
            text.append(hasCr ? WithoutCr(line) : line).append(i < last ? "\n" : "");
        }
        return text;
    }

    // Reads the object with a value in quotes that starts in this line, `open` is the quote's position.
    // Returns the line after it.
    size_t ReadQuoted(size_t at, const ObjectLine& object, size_t open) {
        size_t last = at;
        if (FindQuote(object.text.substr(open + 1)) == std::string_view::npos) {
            last = at + 1 < lines.size() ? quotes[at + 1] : lines.size();
            // All quotes inside are escaped, so that one in an object's line, or the first of two, is
            // another's.
            const auto isOfOther = [this](std::string_view line) {
                const std::string_view rest = line.substr(FindQuote(line) + 1);
                return !IsBlank(rest) && (FindQuote(rest) != std::string_view::npos || ObjectAt(line, form));
            };
            if (last == lines.size() || isOfOther(lines[last])) {
                recording.Warn(AtLine(at + 1), "the quoted text that starts here has no end");
                return at + 1;
            }
        }
        std::string text = Joined(at, last, object);
        const size_t end = open + 1 + FindQuote(std::string_view(text).substr(open + 1)) + 1;
        if (const std::string rest = text.substr(end); !IsBlank(rest))
            recording.Warn(AtLine(last + 1), Quote(rest) + " behind the closing quote is ignored");
        text.resize(end);
        Store(at, object, text);
        return last + 1;
    }

    // The line after a value that is not in quotes. Blank lines belong to it only between it and an object.
    size_t EndOfUnquoted(size_t at, Continuation continuation) const {
        size_t next = at + 1;
        if (continuation == Continuation::kHex) {
            while (next < lines.size() && IsHexLine(WithoutMargin(lines[next])))
                ++next;
            return next;
        }
        while (continuation == Continuation::kText && next < lines.size() && !ObjectAt(lines[next], form)
               && !IsRemark(lines[next])) {
            const auto start = lines.begin() + static_cast<ptrdiff_t>(next);
            const auto filled = std::find_if_not(start, lines.end(), IsBlank);
            const bool isEnd = filled == lines.end() || form.isSpaced || !ObjectAt(*filled, form);
            if (filled != start && isEnd)
                break;
            next += static_cast<size_t>(std::max(filled - start, ptrdiff_t{1}));
        }
        return next;
    }

    // Reads the object that starts in this line. Returns the line after it.
    size_t ReadObject(size_t at, const ObjectLine& object) {
        if (const size_t open = FindOpeningQuote(object.text); open != std::string_view::npos)
            return ReadQuoted(at, object, open);
        const Continuation continuation = IsNoObject(object.text)
                                              ? Continuation::kNone
                                              : ContinuationOf(object.name.oid, object.text, form.hasTypes);
        const size_t next = EndOfUnquoted(at, continuation);
        if (continuation == Continuation::kText && next > at + 1)
            recording.Warn(AtLine(at + 1), "the text that starts here is read up to line "
                                               + std::to_string(next) + ", as nothing shows where it ends");
        Store(at, object, Joined(at, next - 1, object));
        return next;
    }

    void ReportOnce(const Occurrences& occurrences, const std::string& what, const char* advice = "") {
        if (occurrences.count != 0)
            recording.findings.Warning(occurrences.first, what + ", " + std::to_string(occurrences.count)
                                                              + " in total" + advice);
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
        if (!recording.objects.empty())
            ReportOnce(ignored, "this line and all others before the first object are ignored");
        ReportOnce(guessed, "the types are not recorded: this object and all others that are not in a "
                            "standard MIB are guessed");
        ReportOnce(changed, "another program has changed the quotes around this text and others",
                   ": they are part of the values now; get the recording as a file");
    }
};

} // namespace

size_t FindWalkLine(const Lines& lines) {
    const Form form = FormOf(lines);
    const auto first = std::find_if(lines.begin(), lines.end(),
                                    [&](std::string_view line) { return ObjectAt(line, form).has_value(); });
    return static_cast<size_t>(first - lines.begin());
}

std::string WithoutNoBreakSpaces(const std::string& text) {
    const auto isHidden = [](std::string_view line) {
        const std::string plain = WithBlanks(line);
        if (plain.size() == line.size())
            return false;
        const std::optional<ObjectLine> read = SplitObject(line, true), meant = SplitObject(plain, true);
        return meant ? !read || StartsWithType(read->text) != StartsWithType(meant->text)
                     : SplitObject(plain, false) && !SplitObject(line, false);
    };
    const Lines lines = SplitLines(text);
    return std::any_of(lines.begin(), lines.end(), isHidden) ? WithBlanks(text) : text;
}

size_t FindSavedMailLine(const Lines& lines) {
    const auto isSavedMail = [](std::string_view line) {
        line = WithoutMargin(line);
        const WalkName name = ReadWalkName(line);
        const std::string_view rest = line.substr(name.length);
        const std::string_view sign = rest.substr(BlankSize(rest));
        return name.isSure && HasPrefix(sign, "=3D ");
    };
    return static_cast<size_t>(std::find_if(lines.begin(), lines.end(), isSavedMail) - lines.begin());
}

Place FindObjectBehindOther(const Lines& lines) {
    constexpr size_t kMaxOther = 80; // bytes; the last byte of a no-break space is 0xA0
    for (size_t i = 0; i < lines.size(); ++i) {
        for (size_t at = 0; (at = lines[i].find_first_of(" \t:\xA0", at)) < kMaxOther;) {
            if (const std::optional<ObjectLine> object = SplitObject(lines[i].substr(++at), true))
                return {i + 1, at + object->margin.size() + 1};
        }
    }
    return {};
}

void ReadWalk(const Lines& lines, Recording& recording) {
    WalkReader{lines, FormOf(lines), recording}.ReadAll();
}
