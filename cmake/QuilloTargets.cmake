# SPDX-License-Identifier: MIT
# How every target of this repository is built: warnings, sanitizers, and one function per kind of target.

add_library(quillo_options INTERFACE)
target_compile_options(quillo_options INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:QUILLO_HAS_COMPILED_QML>>>:-Wshadow> # what qmlcachegen writes shadows
    $<$<BOOL:${QUILLO_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(quillo_options INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
if(QUILLO_SANITIZERS)
    target_compile_options(quillo_options INTERFACE
        -fsanitize=${QUILLO_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(quillo_options INTERFACE -fsanitize=${QUILLO_SANITIZERS})
endif()

# quillo_layer(NAME SOURCES files… [USES targets…] [PRIVATE targets…])
# One folder, one static library. USES names what its headers show, PRIVATE what only its sources include.
# Headers are included from the source root: "store/GroupStore.h".
function(quillo_layer name)
    cmake_parse_arguments(arg "" "" "SOURCES;USES;PRIVATE" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE quillo_options ${arg_PRIVATE})
endfunction()

# quillo_test(NAME SOURCES files… LINKS targets… [TIMEOUT seconds])
# One GoogleTest program, run by CTest as a whole.
function(quillo_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 60)
    endif()
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE quillo_options ${arg_LINKS} GTest::gmock)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC")
endfunction()
