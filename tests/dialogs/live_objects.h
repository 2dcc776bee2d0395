// What this process holds of the system: windows of this thread, and objects of the graphics system (those of
// icons among them).
#ifndef DIALOGS_TEST_LIVE_OBJECTS_H
#define DIALOGS_TEST_LIVE_OBJECTS_H

#include <ostream>

struct LiveObjects {
    int windows, graphics;
    bool operator==(const LiveObjects& other) const {
        return windows == other.windows && graphics == other.graphics;
    }
};
std::ostream& operator<<(std::ostream& out, const LiveObjects& objects);

LiveObjects CountLiveObjects();

#endif
