# What every target is compiled with.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

option(TOOLS "Build the host's tools alone" OFF)
set(HOST_TOOLS "${CMAKE_SOURCE_DIR}/build/host/bin" CACHE PATH "Folder of the host's tools, built by the preset 'tools'")
if(TOOLS)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${HOST_TOOLS}")
endif()

# The files of a tool or a test program are compiled as one, since headers take most of the time. Names in their unnamed namespaces
# must differ. UNITY=OFF compiles each file alone, which finds missing includes.
option(UNITY "Compile the files of each target that is no product as one" ON)
set(CMAKE_UNITY_BUILD ${UNITY})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 0)

option(SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(FUZZ "Build the fuzz targets (clang)" OFF)
option(BENCH "Build the benchmarks" OFF)

# ccache also finds what another clone has compiled.
find_program(CCACHE ccache)
if(CCACHE AND EXISTS "${CCACHE}" AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1
        "${CCACHE}")
endif()

# Products contain neither the folder of the sources nor that of the build, so that they are the same wherever they are built: places
# in messages are relative to the project, and in the debug symbols of Windows the project is the folder C:\\telmar_d. ccache makes
# paths relative to the build.
set(folder_in_symbols .)
if(WIN32)
    set(folder_in_symbols C:/telmar_d)
    add_compile_options(-ffile-compilation-dir=.)
endif()
file(RELATIVE_PATH source_folder "${CMAKE_BINARY_DIR}" "${CMAKE_SOURCE_DIR}")
string(REGEX REPLACE "/$" "" source_folder "${source_folder}")
foreach(folder "${CMAKE_SOURCE_DIR}" ${source_folder})
    add_compile_options(-fmacro-prefix-map=${folder}=. -fdebug-prefix-map=${folder}=${folder_in_symbols})
endforeach()
add_compile_options(-ffile-prefix-map=${CMAKE_BINARY_DIR}/=)

if(SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(WIN32)
    add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX WINVER=0x0601 _WIN32_WINNT=0x0601)
    add_link_options(-static -Wl,--no-insert-timestamp)
    link_libraries(pthread) # of the C++ library
endif()

# Warnings for the project's own code, all of them errors. clang's -Wconversion has -Wsign-conversion in it, g++'s does not.
add_library(project_warnings INTERFACE)
target_compile_options(project_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
                                                  -Wnon-virtual-dtor -Wno-sign-conversion -Werror)
