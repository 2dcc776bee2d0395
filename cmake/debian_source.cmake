# debian_source(PACKAGE FOLDER_VARIABLE): the folder of the upstream source of a Debian source package, which is fetched when the
# build is configured first. For libraries that Debian builds for itself, but not for Windows.
function(debian_source package folder_variable)
    set(folder "${PROJECT_SOURCE_DIR}/build/sources/${package}")
    execute_process(COMMAND "${PROJECT_SOURCE_DIR}/scripts/get-source" ${package} "${folder}" RESULT_VARIABLE result)
    if(result)
        message(FATAL_ERROR "The Windows build needs the source of ${package}; the messages above say what to do.")
    endif()
    set(${folder_variable} "${folder}" PARENT_SCOPE)
endfunction()
