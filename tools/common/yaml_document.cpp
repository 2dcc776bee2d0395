// Loads YAML documents and reads their scalars.
#include "common/yaml_document.h"

#include <cstdlib>
#include <sstream>
#include <yaml-cpp/eventhandler.h>

namespace {

Place PlaceOf(const YAML::Mark& mark) {
    return {static_cast<uint64_t>(mark.line) + 1, static_cast<uint64_t>(mark.column) + 1};
}

// yaml-cpp accepts bytes that are not text, and takes some control characters for the end of the file.
bool CheckIsText(const std::string& text, Findings& findings) {
    size_t bad = FindBadUtf8(text);
    const char* problem = "not valid UTF-8: save the file as UTF-8";
    for (size_t i = 0; i < text.size() && i < bad; ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if ((c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7F) {
            bad = i;
            problem = "control character: write it as an escape in double quotes";
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

// Records where a document starts and ignores everything else.
struct DocumentStart final : YAML::EventHandler {
    Place place;

    void OnDocumentStart(const YAML::Mark& mark) override { place = PlaceOf(mark); }
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark&, YAML::anchor_t) override {}
    void OnAlias(const YAML::Mark&, YAML::anchor_t) override {}
    void OnScalar(const YAML::Mark&, const std::string&, YAML::anchor_t, const std::string&) override {}
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
    DocumentStart start;
    if (!parser.HandleNextDocument(start) || !parser.HandleNextDocument(start))
        return true;
    findings.Error(start.place,
                   std::string("a second document starts here, but a ") + what + " file has only one");
    return false;
}

} // namespace

void LoadYaml(const std::string& text, const char* what, Findings& findings,
              const std::function<void(const YAML::Node& root)>& read) {
    if (!CheckIsText(text, findings))
        return;
    try {
        if (!CheckIsSingle(text, what, findings))
            return;
        const YAML::Node root = YAML::Load(text);
        if (!root.IsNull())
            read(root);
        else
            findings.Error({1, 1}, "the file has no entries");
    } catch (const YAML::Exception& fault) {
        findings.Error(PlaceOf(fault.mark), fault.msg);
    }
}

Place PlaceOf(const YAML::Node& node) {
    return PlaceOf(node.Mark());
}

bool ReadScalar(const std::string& name, const YAML::Node& node, std::string& text, Findings& findings) {
    if (node.IsScalar()) {
        text = node.Scalar();
        return true;
    }
    findings.Error(PlaceOf(node), node.IsNull() ? Quote(name) + " has no value; write \"\" for an empty text"
                                                : Quote(name) + " must be a single value");
    return false;
}

bool ReadNumber(const std::string& name, const YAML::Node& node, int64_t& number, Findings& findings) {
    constexpr size_t kMaxDigits = 15; // always fits in 64 bits; the rules check the range
    std::string text;
    if (!ReadScalar(name, node, text, findings))
        return false;
    const bool isHex = text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0;
    const bool isNegative = text.rfind('-', 0) == 0;
    const std::string digits = text.substr(isHex ? 2 : isNegative ? 1 : 0);
    const char* allowed = isHex ? "0123456789abcdefABCDEF" : "0123456789";
    if (digits.empty() || digits.size() > kMaxDigits
        || digits.find_first_not_of(allowed) != std::string::npos) {
        findings.Error(PlaceOf(node), Quote(name) + " must be a number, not " + Quote(text));
        return false;
    }
    number = std::strtoll(digits.c_str(), nullptr, isHex ? 16 : 10) * (isNegative ? -1 : 1);
    return true;
}
