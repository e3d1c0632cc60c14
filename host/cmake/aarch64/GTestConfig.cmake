# GoogleTest for a cross build: compiled from the sources of Debian's libgtest-dev with the
# project's compiler, since the installed libraries are for the build machine only.
if(NOT TARGET GTest::gtest)
    set(GOOGLETEST_SOURCE_DIR /usr/src/googletest CACHE PATH "GoogleTest sources")
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
    add_subdirectory(${GOOGLETEST_SOURCE_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
    foreach(library gtest gtest_main gmock gmock_main)
        if(NOT TARGET GTest::${library})
            add_library(GTest::${library} ALIAS ${library})
        endif()
    endforeach()
endif()
set(GTest_FOUND TRUE)
