# TELMAR_D.DLL for CMake, as it lies in the unpacked package:
#
#   find_package(telmar_d CONFIG REQUIRED PATHS <package folder> NO_CMAKE_FIND_ROOT_PATH)
#   target_link_libraries(program PRIVATE telmar_d::telmar_d)
#
# telmar_d_RUNTIME_FILES are the files that lie next to a program that links the module: the module, its parameter file, and
# stand-ins for the other files of the family.
get_filename_component(telmar_d_folder "${CMAKE_CURRENT_LIST_DIR}" DIRECTORY)

# Visual C++ names its target. With other compilers it is that of the toolchain file, which may leave the processor out.
set(telmar_d_target "${CMAKE_C_COMPILER_ARCHITECTURE_ID}")
if(NOT telmar_d_target)
    set(telmar_d_target "${CMAKE_CXX_COMPILER_ARCHITECTURE_ID}")
endif()
if(NOT telmar_d_target)
    set(telmar_d_target "${CMAKE_SYSTEM_PROCESSOR}")
endif()
if(NOT CMAKE_SIZEOF_VOID_P)
    set(telmar_d_FOUND FALSE)
    set(telmar_d_NOT_FOUND_MESSAGE "No language is enabled. project() must enable C or C++ before find_package(telmar_d).")
    return()
endif()
if(NOT WIN32 OR NOT CMAKE_SIZEOF_VOID_P EQUAL 8 OR NOT "${telmar_d_target}" MATCHES "^(x64|x86_64|AMD64|amd64|)$")
    set(telmar_d_FOUND FALSE)
    set(telmar_d_NOT_FOUND_MESSAGE "TELMAR_D.DLL is for Windows x86-64 only, but this build is for ${CMAKE_SYSTEM_NAME} \
${telmar_d_target} with pointers of ${CMAKE_SIZEOF_VOID_P} bytes. Configure for Windows x86-64: with '-A x64' for Visual Studio, \
from its 'x64 Native Tools' prompt for Ninja, or with a toolchain file that sets CMAKE_SYSTEM_NAME to Windows.")
    return()
endif()

set(telmar_d_runtime TELMAR_D.DLL TELMAR_D.PRM workbench/TELMAR_S.DLL workbench/TELMAR_U.DLL workbench/TELMAR_B.DLL)
foreach(telmar_d_file lib/TELMAR_D.lib include/telmar_d.h ${telmar_d_runtime})
    if(NOT EXISTS "${telmar_d_folder}/${telmar_d_file}")
        set(telmar_d_FOUND FALSE)
        set(telmar_d_NOT_FOUND_MESSAGE "${telmar_d_folder} lacks ${telmar_d_file}. Unpack the whole package again.")
        return()
    endif()
endforeach()
foreach(telmar_d_component IN LISTS telmar_d_FIND_COMPONENTS)
    if(telmar_d_FIND_REQUIRED_${telmar_d_component})
        set(telmar_d_FOUND FALSE)
        set(telmar_d_NOT_FOUND_MESSAGE "telmar_d has no components. Leave out COMPONENTS ${telmar_d_component}.")
        return()
    endif()
endforeach()

if(NOT TARGET telmar_d::telmar_d)
    add_library(telmar_d::telmar_d SHARED IMPORTED)
    set_target_properties(telmar_d::telmar_d PROPERTIES
        IMPORTED_LOCATION "${telmar_d_folder}/TELMAR_D.DLL"
        IMPORTED_IMPLIB "${telmar_d_folder}/lib/TELMAR_D.lib"
        INTERFACE_INCLUDE_DIRECTORIES "${telmar_d_folder}/include")
endif()
list(TRANSFORM telmar_d_runtime PREPEND "${telmar_d_folder}/" OUTPUT_VARIABLE telmar_d_RUNTIME_FILES)
