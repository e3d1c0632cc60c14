# add_aidl_ndk_library(<target> IMPORT_ROOT <dir>)
#
# Generates NDK-backend C++ from every .aidl file under <dir> with tools/aidl_ndk_gen.py at build
# time and builds it into the static library <target>. The generated headers are exported as
# <aidl/<package path>/<Type>.h>. The .aidl files are the one source of truth: adding or removing
# one re-runs the configure step, editing one re-runs the generator. Frozen API dumps under
# <dir>/aidl_api/ are not compiled; the newest one's .hash sets the interface's version and hash.

find_package(Python3 REQUIRED COMPONENTS Interpreter)

set(AIDL_NDK_GENERATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/aidl_ndk_gen.py)
get_filename_component(AIDL_NDK_GENERATOR ${AIDL_NDK_GENERATOR} ABSOLUTE)

function(add_aidl_ndk_library target)
    cmake_parse_arguments(ARG "" "IMPORT_ROOT" "" ${ARGN})
    if(NOT ARG_IMPORT_ROOT)
        message(FATAL_ERROR "add_aidl_ndk_library(${target}): IMPORT_ROOT is required")
    endif()
    get_filename_component(root ${ARG_IMPORT_ROOT} ABSOLUTE)
    file(GLOB_RECURSE aidl_files CONFIGURE_DEPENDS ${root}/*.aidl)
    # aidl_api/ holds the frozen API dumps, copies of the sources: not built.
    list(FILTER aidl_files EXCLUDE REGEX "/aidl_api/")
    list(SORT aidl_files)
    # The newest frozen version's hash becomes the interface's version and hash.
    file(GLOB_RECURSE api_hashes CONFIGURE_DEPENDS ${root}/aidl_api/*/.hash)
    if(NOT aidl_files)
        message(FATAL_ERROR "add_aidl_ndk_library(${target}): no .aidl files under ${root}")
    endif()
    set(out_dir ${CMAKE_CURRENT_BINARY_DIR}/${target}_gen)

    # The generator names its own outputs; ask it once at configure time.
    execute_process(
        COMMAND ${Python3_EXECUTABLE} ${AIDL_NDK_GENERATOR} -I ${root} -o ${out_dir}
                --list-outputs ${aidl_files}
        OUTPUT_VARIABLE listed
        ERROR_VARIABLE list_error
        RESULT_VARIABLE list_result)
    if(NOT list_result EQUAL 0)
        message(FATAL_ERROR "aidl_ndk_gen.py refused ${root}:\n${list_error}")
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${AIDL_NDK_GENERATOR})
    string(STRIP "${listed}" listed)
    string(REPLACE "\n" ";" outputs "${listed}")
    set(sources ${outputs})
    list(FILTER sources INCLUDE REGEX "\\.cpp$")

    add_custom_command(
        OUTPUT ${outputs}
        COMMAND ${Python3_EXECUTABLE} ${AIDL_NDK_GENERATOR} -I ${root} -o ${out_dir} ${aidl_files}
        DEPENDS ${aidl_files} ${api_hashes} ${AIDL_NDK_GENERATOR}
        COMMENT "Generating NDK C++ for ${target} from ${root}"
        VERBATIM)

    add_library(${target} STATIC ${sources})
    target_include_directories(${target} PUBLIC ${out_dir}/include)
    target_link_libraries(${target} PUBLIC host_binder_ndk)
endfunction()
