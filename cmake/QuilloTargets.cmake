# SPDX-License-Identifier: MIT
# How every target of this repository is built: warnings, sanitizers, and one function per kind of target.

# ccache keeps what it compiled, also with precompiled headers where it is told to.
find_program(CCACHE_PROGRAM ccache)
mark_as_advanced(CCACHE_PROGRAM)
if(CCACHE_PROGRAM AND (NOT CMAKE_CXX_COMPILER_LAUNCHER OR CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache$"))
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

add_library(quillo_options INTERFACE)
target_compile_options(quillo_options INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:QUILLO_HAS_COMPILED_QML>>>:-Wshadow> # what qmlcachegen writes shadows
    $<$<BOOL:${QUILLO_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(quillo_options INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
# Some libraries ask for it, and precompiled headers want the same macros in every target.
target_compile_options(quillo_options INTERFACE -pthread)
if(QUILLO_SANITIZERS)
    target_compile_options(quillo_options INTERFACE
        -fsanitize=${QUILLO_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all
        -Wno-maybe-uninitialized) # which GCC takes what the sanitizers insert for
    target_link_options(quillo_options INTERFACE -fsanitize=${QUILLO_SANITIZERS})
endif()

# quillo_layer(NAME SOURCES files… [USES targets…] [PRIVATE targets…] [HEADERS set])
# One folder, one static library. USES names what its headers show, PRIVATE what only its sources include.
# Headers are included from the source root: "store/GroupStore.h".
function(quillo_layer name)
    cmake_parse_arguments(arg "" "HEADERS" "SOURCES;USES;PRIVATE" ${ARGN})
    if(NOT arg_HEADERS)
        set(arg_HEADERS quillo_core_headers)
    endif()
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE quillo_options ${arg_PRIVATE})
    target_precompile_headers(${name} REUSE_FROM ${arg_HEADERS})
endfunction()

# quillo_join_compiled_qml(NAME)
# qmlcachegen writes one source for each QML file, and each would parse the same headers of Qt again: they are compiled
# together, folder by folder.
function(quillo_join_compiled_qml name)
    get_target_property(sources ${name} SOURCES)
    list(FILTER sources INCLUDE REGEX "_qml\\.cpp$")
    foreach(source ${sources})
        string(REGEX REPLACE "^.*/${name}_([a-z]+)/.*$" "\\1" folder ${source})
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP qml_${folder})
    endforeach()
    set_target_properties(${name} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP QUILLO_HAS_COMPILED_QML ON)
endfunction()

# quillo_test(NAME SOURCES files… LINKS targets… [TIMEOUT seconds] [HEADERS set])
# One GoogleTest program, run by CTest as a whole.
function(quillo_test name)
    cmake_parse_arguments(arg "" "TIMEOUT;HEADERS" "SOURCES;LINKS" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 60)
    endif()
    if(NOT arg_HEADERS)
        set(arg_HEADERS quillo_test_headers)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE quillo_options ${arg_LINKS} GTest::gmock)
    target_precompile_headers(${name} REUSE_FROM ${arg_HEADERS})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=NPT-5:45")
endfunction()
