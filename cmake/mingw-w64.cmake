# Cross build for Windows x86-64 by clang and lld, which write debug symbols that Windows' tools read; headers and libraries are
# those of mingw-w64, with g++'s C++ library. Built programs run under wine.
set(triple x86_64-w64-mingw32)
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER clang-16)
set(CMAKE_CXX_COMPILER clang++-16)
set(CMAKE_C_COMPILER_TARGET ${triple})
set(CMAKE_CXX_COMPILER_TARGET ${triple})
set(CMAKE_RC_COMPILER ${triple}-windres)
foreach(tool AR RANLIB NM OBJDUMP)
    string(TOLOWER ${tool} program)
    set(CMAKE_${tool} /usr/bin/${triple}-${program} CACHE FILEPATH "")
endforeach()
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/run-under-wine")

# clang does not find the folders of Debian's g++ for Windows by itself. The library compares types by name and keeps its threads'
# data as g++ does.
execute_process(COMMAND ${triple}-g++-posix -print-file-name=include/c++
                OUTPUT_VARIABLE cxx_headers OUTPUT_STRIP_TRAILING_WHITESPACE)
execute_process(COMMAND ${triple}-g++-posix -print-libgcc-file-name OUTPUT_VARIABLE libgcc OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(libgcc_folder "${libgcc}" DIRECTORY)
set(CMAKE_CXX_FLAGS_INIT "-stdlib++-isystem ${cxx_headers} -isystem ${cxx_headers}/${triple} \
-D__GXX_TYPEINFO_EQUALITY_INLINE=0 -femulated-tls")
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-fuse-ld=lld-16 -L${libgcc_folder}")
endforeach()
