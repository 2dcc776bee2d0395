// The zip with everything that an engineer needs to see why checks failed.
#ifndef CHECKS_LOG_ZIP_H
#define CHECKS_LOG_ZIP_H

#include <filesystem>
#include <vector>

// Packs the files under their names, without folders. False when the zip can't be written.
bool WriteZip(const std::filesystem::path& zip, const std::vector<std::filesystem::path>& files);

#endif
