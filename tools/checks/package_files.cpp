// Compares the package with its list of digests.
#include "checks/package_files.h"

#include "checks/program.h"

#include <sstream>
#include <windows.h>

#include <bcrypt.h> // after windows.h

namespace fs = std::filesystem;

std::string Sha256(const std::string& bytes) {
    BCRYPT_ALG_HANDLE provider = nullptr;
    BCRYPT_HASH_HANDLE hash = nullptr;
    unsigned char digest[32] = {};
    bool isDone = BCryptOpenAlgorithmProvider(&provider, BCRYPT_SHA256_ALGORITHM, nullptr, 0) == 0
                  && BCryptCreateHash(provider, &hash, nullptr, 0, nullptr, 0, 0) == 0
                  && BCryptHashData(hash, reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data())),
                                    static_cast<ULONG>(bytes.size()), 0)
                         == 0
                  && BCryptFinishHash(hash, digest, sizeof(digest), 0) == 0;
    if (hash != nullptr)
        BCryptDestroyHash(hash);
    if (provider != nullptr)
        BCryptCloseAlgorithmProvider(provider, 0);
    std::string text;
    for (size_t i = 0; isDone && i < sizeof(digest); ++i) {
        constexpr char kDigits[] = "0123456789abcdef";
        text += {kDigits[digest[i] >> 4], kDigits[digest[i] & 15]};
    }
    return text;
}

std::vector<std::string> DamagedFiles(const fs::path& folder) {
    std::vector<std::string> damaged;
    std::istringstream lines(ReadFileBytes(folder / "SHA256SUMS"));
    size_t listed = 0;
    for (std::string digest, name; lines >> digest && std::getline(lines >> std::ws, name); ++listed) {
        const fs::path file = folder / fs::u8path(name);
        std::error_code error;
        if (!fs::exists(file, error))
            damaged.push_back(name + " is missing");
        else if (Sha256(ReadFileBytes(file)) != digest)
            damaged.push_back(name + " is not the file that was packed");
    }
    if (listed == 0)
        damaged.emplace_back("SHA256SUMS is missing or empty");
    return damaged;
}
