// Follows `base: FILE` from model to model.
#include "prmc/model_file.h"

#include "common/files.h"
#include "common/text.h"
#include "prmc/checks/rules.h"
#include "prmc/forms/prm_parser.h"
#include "prmc/forms/yaml_reader.h"

#include <filesystem>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

// The readers leave the file of a place 0. What comes from a base already has its number.
void SetFile(Place& place, size_t file) {
    if (place.file == 0)
        place.file = file;
}

void SetFiles(Model& model, size_t file) {
    for (Removal& removal : model.removals)
        SetFile(removal.place, file);
    for (Entry& entry : model.entries) {
        SetFile(entry.place, file);
        for (Record& record : entry.records) {
            SetFile(record.place, file);
            for (Value& value : record.values) {
                SetFile(value.place, file);
                for (Pair& pair : value.pairs) {
                    SetFile(pair.namePlace, file);
                    SetFile(pair.valuePlace, file);
                }
            }
        }
    }
}

bool IsRead(const ModelFile& read, const std::string& path) {
    std::error_code ignored; // a file that is not there is no other's equal
    for (const std::string& file : read.files)
        if (fs::equivalent(FilePath(file), FilePath(path), ignored))
            return true;
    return false;
}

Model ReadForm(ModelFile& read, const std::string& path);

// The model that the one in `path` builds on.
Model ReadBase(ModelFile& read, Findings& findings, const std::string& path, const std::string& name,
               Place place) {
    const std::string base = (FilePath(path).parent_path() / FilePath(name)).u8string();
    if (IsRead(read, base)) {
        findings.Error(place, "a model can't build on itself: " + QuotePath(name) + " builds on this file");
        return {};
    }
    try {
        return ReadForm(read, base);
    } catch (const std::runtime_error& error) {
        findings.Error(place, std::string("base: ") + error.what());
        return {};
    }
}

// Reads one file after its base. Its findings are appended with its number.
Model ReadForm(ModelFile& read, const std::string& path) {
    const bool isYaml = IsYaml(path);
    const size_t file = read.files.size();
    read.files.push_back(path);
    const std::string contents = ReadFile(path);
    Findings findings;
    const auto readBase = [&](const std::string& name, Place place) {
        return ReadBase(read, findings, path, name, place);
    };
    Model model = isYaml ? ReadYaml(contents, findings, readBase) : ParsePrm(contents, findings);
    SetFiles(model, file);
    for (Finding& finding : findings.list) {
        SetFile(finding.place, file);
        read.findings.list.push_back(std::move(finding));
    }
    return model;
}

} // namespace

bool IsYaml(const std::string& path) {
    const std::string extension = FilePath(path).extension().u8string();
    if (EqualNoCase(extension, ".yaml") || EqualNoCase(extension, ".yml"))
        return true;
    if (!EqualNoCase(extension, ".prm"))
        throw std::runtime_error("'" + path
                                 + "' has an unknown file type: its name must end in .yaml or .PRM");
    return false;
}

ModelFile ReadModelFile(const std::string& path) {
    ModelFile read;
    read.model = ReadForm(read, path);
    CheckRules(read.model, read.findings);
    read.findings.Sort();
    return read;
}
