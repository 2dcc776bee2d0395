// YAML files that people write: loading one document, and its scalars and maps, with every fault at its
// place. yaml-cpp gives the nodes.
#ifndef COMMON_YAML_DOCUMENT_H
#define COMMON_YAML_DOCUMENT_H

#include "common/findings.h"
#include "common/text.h"

#include <functional>
#include <set>
#include <yaml-cpp/yaml.h>

// Calls `read` with the document's root. Text that is no YAML, no UTF-8, empty or more than one document is a
// finding; `what` says what the one document is: "model". Faults that yaml-cpp throws in `read` become
// findings too.
void LoadYaml(const std::string& text, const char* what, Findings& findings,
              const std::function<void(const YAML::Node& root)>& read);

Place PlaceOf(const YAML::Node& node);

// Reads a single value; false, with a finding, when it is none.
bool ReadScalar(const std::string& name, const YAML::Node& node, std::string& text, Findings& findings);

// Decimal, with or without a minus sign, or hexadecimal with 0x.
bool ReadNumber(const std::string& name, const YAML::Node& node, int64_t& number, Findings& findings);

// Calls `use` with the name, its node and the value node of each member whose name is a scalar not seen
// before.
template <typename Use>
void ForEachMember(const YAML::Node& map, const std::string& shape, Findings& findings, const Use& use) {
    if (!map.IsMap()) {
        findings.Error(PlaceOf(map), "expected " + shape);
        return;
    }
    std::set<std::string> seen;
    for (const auto& member : map) {
        if (!member.first.IsScalar())
            findings.Error(PlaceOf(member.first), "expected a name");
        else if (!seen.insert(member.first.Scalar()).second)
            findings.Error(PlaceOf(member.first), Quote(member.first.Scalar()) + " is given twice here");
        else
            use(member.first.Scalar(), member.first, member.second);
    }
}

#endif
