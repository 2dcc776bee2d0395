// The lock of flock.
#include "simprinter/recordings/part_lock.h"

#include "common/text.h"
#include "simprinter/recordings/record.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

PartLock::PartLock(const std::string& part) {
    struct stat locked = {}, named = {};
    do { // until the name is that of the locked file: its recorder may just have renamed it
        if (descriptor >= 0)
            close(descriptor);
        descriptor = open(part.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
        if (descriptor < 0)
            throw std::runtime_error("cannot write " + QuotePath(part) + ": " + std::strerror(errno));
        if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            close(descriptor);
            throw std::runtime_error(InUseText(part));
        }
    } while (fstat(descriptor, &locked) != 0 || stat(part.c_str(), &named) != 0
             || locked.st_ino != named.st_ino || locked.st_dev != named.st_dev);
}

PartLock::~PartLock() {
    close(descriptor);
}
