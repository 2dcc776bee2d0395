// The lock that keeps other recorders off a file that is not complete yet.
#ifndef SIMPRINTER_PART_LOCK_H
#define SIMPRINTER_PART_LOCK_H

#include <string>

// Creates the file if it is missing, and locks it until the end of the object. The lock is that of the file,
// which keeps it when it is renamed.
struct PartLock {
    // Throws std::runtime_error when another recorder has the lock, or the file can't be written. On a file
    // system without locks there is none.
    explicit PartLock(const std::string& part);
    PartLock(const PartLock&) = delete;
    PartLock& operator=(const PartLock&) = delete;
    ~PartLock();

#ifdef _WIN32
    void* handle;
#else
    int descriptor = -1;
#endif
};

#endif
