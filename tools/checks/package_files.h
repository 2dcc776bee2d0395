// The files of the package and their digests.
#ifndef CHECKS_PACKAGE_FILES_H
#define CHECKS_PACKAGE_FILES_H

#include <filesystem>
#include <string>
#include <vector>

// SHA-256 in hexadecimal digits; empty when the system has none.
std::string Sha256(const std::string& bytes);

// A sentence for each file that the list SHA256SUMS of the folder names and that is missing or differs.
std::vector<std::string> DamagedFiles(const std::filesystem::path& folder);

#endif
