// The commands build and check.
#include "common/files.h"
#include "paramdata/prm_layout.h"
#include "prmc/commands/output.h"
#include "prmc/forms/prm_writer.h"

#include <stdexcept>

void WriteModel(const ModelFile& read, const std::string& target) {
    const std::vector<uint8_t> bytes = WritePrm(read.model);
    if (bytes.size() > kPrmMaxFileBytes)
        throw std::runtime_error("'" + read.files[0] + "' has too many items: its file would have "
                                 + std::to_string(bytes.size()) + " bytes, and the driver reads at most "
                                 + std::to_string(kPrmMaxFileBytes));
    WriteFileWhole(target, std::string(bytes.begin(), bytes.end()));
}

ExitCode Build(const std::string& source, const std::string& target, const CheckOptions& options) {
    ExpectForm(source, true);
    const ModelFile read = ReadForCheck(source, options);
    Report(read, options);
    if (read.findings.HasErrors())
        return kErrors;
    WriteModel(read, target);
    return kDone;
}

ExitCode Check(const std::string& path, const CheckOptions& options) {
    const ModelFile read = ReadForCheck(path, options);
    Report(read, options);
    return read.findings.HasErrors() ? kErrors : kDone;
}
