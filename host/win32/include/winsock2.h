// The host's replacement for the system's header of this name.
#ifndef WIN32_WINSOCK2_H
#define WIN32_WINSOCK2_H

#include "windows_sockets.h"

using namespace winsock; // not for files that use the host's sockets too

#endif
