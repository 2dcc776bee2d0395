// What the stand-in's source files share: one reset function for each service.
#ifndef PLATFORM_SERVICES_H
#define PLATFORM_SERVICES_H

namespace platform {

void ResetFiles();
void ResetHeaps();
void ResetModules();
void ResetSockets();
void ResetSystem();

// Current numbers for Count().
int LiveFiles();
int LiveLibraryReferences();
int LiveSockets();
int LiveSocketUses();

} // namespace platform

#endif
