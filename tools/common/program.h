// How a program of the tools begins on each system.
#ifndef COMMON_PROGRAM_H
#define COMMON_PROGRAM_H

// Called first by main: makes the arguments UTF-8, and std::cout and std::cerr write UTF-8 as it is. On the
// host they do so already.
#ifdef _WIN32
void StartProgram(int& argc, char**& argv);
#else
inline void StartProgram(int&, char**&) {}
#endif

#endif
