// Loads YAML documents and reads their scalars.
#include "common/yaml_document.h"

#include "common/encoding.h"
#include "common/lookalikes.h"
#include "common/yaml_faults.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <yaml-cpp/eventhandler.h>

namespace {

// yaml-cpp accepts bytes that are not text, and takes some control characters for the end of the file.
bool CheckIsText(const std::string& text, Findings& findings) {
    if (const char* fault = TextFileFault(text)) {
        findings.Error({1, 1}, fault);
        return false;
    }
    size_t bad = FindBadUtf8(text);
    const char* problem = "not valid UTF-8: save the file as UTF-8";
    for (size_t i = 0; i < text.size() && i < bad; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if ((c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7F) {
            bad = i;
            problem = "control character: write it as an escape in double quotes";
        } else if (c == '\r' && i + 1 < text.size() && text[i + 1] != '\n') {
            bad = i;
            problem = "the line ends with CR alone: save the file with the line ends LF or CR LF";
        }
    }
    if (bad == std::string::npos)
        return true;
    Place place{1, 1};
    for (size_t i = 0; i < bad; ++i)
        place = text[i] == '\n' ? Place{place.line + 1, 1} : Place{place.line, place.column + 1};
    findings.Error(place, problem);
    return false;
}

// Records where the last document starts, and reports texts that lose their beginning: YAML takes a word with
// '&' for an anchor and one with '!' for a tag.
struct Events final : YAML::EventHandler {
    explicit Events(Findings& where) : findings(where) {}

    Findings& findings;
    Place start;

    void OnDocumentStart(const YAML::Mark& mark) override { start = PlaceOf(mark); }
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark& mark, YAML::anchor_t anchor) override {
        if (anchor != YAML::NullAnchor)
            findings.Error(PlaceOf(mark), NeedsQuotes('&'));
    }
    void OnAlias(const YAML::Mark&, YAML::anchor_t) override {}
    void OnScalar(const YAML::Mark& mark, const std::string& tag, YAML::anchor_t,
                  const std::string&) override {
        if (tag.size() > 1) // "?" and "!": none
            findings.Error(PlaceOf(mark), NeedsQuotes('!'));
    }
    void OnSequenceStart(const YAML::Mark&, const std::string&, YAML::anchor_t,
                         YAML::EmitterStyle::value) override {}
    void OnSequenceEnd() override {}
    void OnMapStart(const YAML::Mark&, const std::string&, YAML::anchor_t,
                    YAML::EmitterStyle::value) override {}
    void OnMapEnd() override {}
};

// YAML::Load reads the first document and ignores the rest. (YAML::LoadAll is no alternative: on malformed
// files it may not return.)
bool CheckIsSingle(const std::string& text, const char* what, Findings& findings) {
    std::istringstream stream(text);
    YAML::Parser parser(stream);
    Events events(findings);
    const size_t before = findings.list.size();
    if (!parser.HandleNextDocument(events) || findings.list.size() != before)
        return findings.list.size() == before;
    if (!parser.HandleNextDocument(events))
        return true;
    const bool isMarked = text.find("\n---") != std::string::npos || text.find("\n...") != std::string::npos;
    findings.Error(events.start,
                   isMarked
                       ? std::string("a second document starts here, but a ") + what + " file has only one"
                       : "this does not continue the lines before it: start all entries in the same column");
    return false;
}

// The text as yaml-cpp gets it. At a line break at the end the library overlooks that a quote is not closed.
std::string WithoutEnds(std::string_view text) {
    text = WithoutUtf8Mark(text);
    return std::string(text.substr(0, text.find_last_not_of(" \t\r\n") + 1));
}

// What makes a text a name by mistake; empty: nothing.
std::string NameFault(const std::string& name, const YAML::Node& value) {
    const auto has = [&](const char* characters) {
        return name.find_first_of(characters) != std::string::npos;
    };
    if (!value.IsNull() && !has("{["))
        return "";
    if (name.size() > 1 && name[0] == '-')
        return "a space is missing after '-'";
    if (has(":"))
        return "a space is missing after ':' in " + Quote(name);
    if (has("="))
        return "write NAME: VALUE, not " + Quote(name);
    if (name.find_first_not_of("0123456789") == std::string::npos)
        return "a number has no ',' in it: write a whole number";
    if (has(" "))
        return "':' is missing in " + Quote(name) + ", or a text with ',' needs quotes";
    return "";
}

bool Empty(std::string& text, size_t start, size_t end) {
    if (start == std::string::npos)
        return false;
    std::replace_if(
        text.begin() + static_cast<ptrdiff_t>(start), text.begin() + static_cast<ptrdiff_t>(end),
        [](char c) { return c != '\n'; }, ' ');
    return true;
}

// Empties the lines of the entry with this line, so that the other entries can be read. False when there is
// none to empty.
bool RemoveEntry(std::string& text, uint64_t faultyLine) {
    size_t start = std::string::npos;
    uint64_t line = 1;
    for (size_t at = 0; at < text.size(); ++line) {
        const bool isEntry = std::string_view(" \t\r\n#-}]").find(text[at]) == std::string_view::npos;
        if (isEntry && line > faultyLine)
            return Empty(text, start, at);
        if (isEntry)
            start = at;
        at = std::min(text.size(), text.find('\n', at)) + 1;
    }
    return Empty(text, start, text.size());
}

constexpr const char* kNumberExample = "a whole number such as 42, -42 or 0x2A";

bool ReadNumberText(const std::string& name, const YAML::Node& node, const char* example, std::string& text,
                    Findings& findings) {
    if (!node.IsNull())
        return ReadScalar(name, node, text, findings);
    findings.Error(PlaceOf(node), Quote(name) + " has no value: write " + example);
    return false;
}

} // namespace

void LoadYaml(const std::string& file, const char* what, Findings& findings,
              const std::function<void(const YAML::Node& root)>& read) {
    constexpr int kMaxFaults = 10; // of YAML itself; each costs another pass
    std::string text = WithoutEnds(file);
    if (!CheckIsText(text, findings))
        return;
    bool isParsed = false;
    for (int faults = 0; faults < kMaxFaults && !isParsed; ++faults) {
        try {
            if (!CheckIsSingle(text, what, findings))
                return;
            const YAML::Node root = YAML::Load(text);
            isParsed = true;
            if (!root.IsNull())
                read(root);
            else if (faults == 0)
                findings.Error({1, 1}, "the file has no entries");
        } catch (const YAML::Exception& fault) {
            findings.list.push_back(ExplainYamlError(text, fault));
            if (!isParsed && !RemoveEntry(text, findings.list.back().place.line))
                return;
        }
    }
}

Place PlaceOf(const YAML::Node& node) {
    return PlaceOf(node.Mark());
}

void PlaceAtName(const YAML::Node& name, const YAML::Node& value, size_t first, Findings& findings) {
    for (size_t i = first; value.IsNull() && i < findings.list.size(); ++i)
        findings.list[i].place = PlaceOf(name);
}

bool ReadScalar(const std::string& name, const YAML::Node& node, std::string& text, Findings& findings) {
    if (node.IsScalar()) {
        text = node.Scalar();
        return true;
    }
    std::string fault = Quote(name) + " must be a single value; a text in brackets needs quotes";
    if (node.IsNull()) {
        fault = name.find_first_of(":=") != std::string::npos
                    ? NameFault(name, node)
                    : Quote(name) + " has no value; write \"\" for an empty text";
    }
    findings.Error(PlaceOf(node), fault);
    return false;
}

bool ReadNumber(const std::string& name, const YAML::Node& node, int64_t& number, Findings& findings) {
    constexpr size_t kMaxDigits = 15; // always fits in 64 bits; the rules check the range
    std::string text;
    if (!ReadNumberText(name, node, kNumberExample, text, findings))
        return false;
    const bool isHex = text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0;
    const bool isNegative = text.rfind('-', 0) == 0;
    const std::string digits = text.substr(isHex ? 2 : isNegative ? 1 : 0);
    const char* allowed = isHex ? "0123456789abcdefABCDEF" : "0123456789";
    if (digits.empty() || digits.size() > kMaxDigits
        || digits.find_first_not_of(allowed) != std::string::npos) {
        findings.Error(PlaceOf(node), Quote(name) + " must be " + kNumberExample + ", not " + Quote(text)
                                          + LookalikeHint(text));
        return false;
    }
    number = std::strtoll(digits.c_str(), nullptr, isHex ? 16 : 10) * (isNegative ? -1 : 1);
    return true;
}

bool ReadFlag(const std::string& name, const YAML::Node& node, int64_t& number, Findings& findings) {
    constexpr const char* kFlagExample = "1 or 0, or true or false";
    std::string text;
    if (!ReadNumberText(name, node, kFlagExample, text, findings))
        return false;
    number = text == "1" || EqualNoCase(text, "true") ? 1 : 0;
    if (number == 1 || text == "0" || EqualNoCase(text, "false"))
        return true;
    findings.Error(PlaceOf(node),
                   Quote(name) + " must be " + kFlagExample + ", not " + Quote(text) + LookalikeHint(text));
    return false;
}

std::string UnknownName(const std::string& sentence, const std::string& name, const YAML::Node& value,
                        const std::vector<std::string>& known) {
    const std::string lookalike = LookalikeHint(name);
    if (!lookalike.empty())
        return sentence + " " + Quote(name) + lookalike;
    const std::string fault = NameFault(name, value);
    return !fault.empty() ? fault : sentence + " " + Quote(name) + NearestHint(name, known);
}
