// Loads a YAML document with yaml-cpp and reads its scalars and maps. Every error becomes a finding with its
// place.
#ifndef COMMON_YAML_DOCUMENT_H
#define COMMON_YAML_DOCUMENT_H

#include "common/findings.h"
#include "common/lookalikes.h"
#include "common/text.h"

#include <functional>
#include <set>
#include <yaml-cpp/yaml.h>

// Calls `read` with the document's root. Invalid YAML or UTF-8, an empty file and a second document are
// findings; `what` names the kind of file: "model". So are the errors that yaml-cpp throws in `read`.
// A fault in one entry, the lines up to the next that is not indented, does not hide those in others; `read`
// then gets the other entries.
void LoadYaml(const std::string& file, const char* what, Findings& findings,
              const std::function<void(const YAML::Node& root)>& read);

Place PlaceOf(const YAML::Node& node);

// Reads a scalar; false, with a finding, for anything else.
bool ReadScalar(const std::string& name, const YAML::Node& node, std::string& text, Findings& findings);

// Reads a decimal number, which may be negative, or a hexadecimal one with 0x.
bool ReadNumber(const std::string& name, const YAML::Node& node, int64_t& number, Findings& findings);

// Reads 1 or true, 0 or false.
bool ReadFlag(const std::string& name, const YAML::Node& node, int64_t& number, Findings& findings);

// "SENTENCE 'NAME'" with the nearest known name, or what makes it a name by mistake, as in "NAME:VALUE"
// without a space.
std::string UnknownName(const std::string& sentence, const std::string& name, const YAML::Node& value,
                        const std::vector<std::string>& known);

// Gives the findings from `first` on, about a value, the place of its name if the value is missing: yaml-cpp
// gives such a value the place of whatever follows.
void PlaceAtName(const YAML::Node& name, const YAML::Node& value, size_t first, Findings& findings);

// Calls `use` with the name, its node and the value's node of each member. Names that are no scalar or that
// occur again are findings. What `use` finds about a value that is missing has the place of the name.
template <typename Use>
void ForEachMember(const YAML::Node& map, const std::string& shape, Findings& findings, const Use& use) {
    if (!map.IsMap()) {
        findings.Error(PlaceOf(map),
                       "expected " + shape + (map.IsScalar() ? LookalikeHint(map.Scalar()) : ""));
        return;
    }
    std::set<std::string> seen;
    for (const auto& member : map) {
        if (!member.first.IsScalar())
            findings.Error(PlaceOf(member.first), "expected a name");
        else if (!seen.insert(member.first.Scalar()).second)
            findings.Error(PlaceOf(member.first), Quote(member.first.Scalar()) + " occurs twice: remove one");
        else {
            const size_t before = findings.list.size();
            use(member.first.Scalar(), member.first, member.second);
            PlaceAtName(member.first, member.second, before, findings);
        }
    }
}

#endif
