# The parts shared by all test programs: TestEnvironment.cpp and the precompiled headers, once without Qt and once with it.
# Precompiled headers require the same options in every program, hence position-independent code and the lowest optimisation at
# which the slow models are usable. They also require that no program lacks a definition of that file.
set_source_files_properties(${CMAKE_SOURCE_DIR}/tests/support/TestEnvironment.cpp PROPERTIES COMPILE_DEFINITIONS
    "ZANTROQ_TEST_FOLDER=\"${CMAKE_BINARY_DIR}\";ZANTROQ_TEST_FONTS=\"${CMAKE_SOURCE_DIR}/tests/support/fonts.conf\"")
function(zantroq_test_environment name headers)
    add_library(${name} OBJECT ${CMAKE_SOURCE_DIR}/tests/support/TestEnvironment.cpp)
    target_link_libraries(${name} PRIVATE zantroq_test_options ${ARGN})
    zantroq_precompile(${name} ${${headers}})
    zantroq_warn_only_under_sanitizers(${name})
endfunction()

add_library(zantroq_test_options INTERFACE)
target_link_libraries(zantroq_test_options INTERFACE zantroq_settings Threads::Threads GTest::gmock nlohmann_json::nlohmann_json)
target_compile_options(zantroq_test_options INTERFACE -fPIC $<$<CONFIG:Release>:-O1>)
zantroq_test_environment(test_environment ZANTROQ_TEST_HEADERS)
if(ZANTROQ_QT)
    set(ZANTROQ_QT_TEST_HEADERS ${ZANTROQ_TEST_HEADERS} ${ZANTROQ_QT_HEADERS})
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Svg PrintSupport)
    zantroq_test_environment(test_environment_qt ZANTROQ_QT_TEST_HEADERS Qt6::Widgets Qt6::Svg Qt6::PrintSupport)
endif()

# zantroq_test_program(NAME SOURCES... [LABELS label...] [LIBRARIES lib...])
#
# Adds a GoogleTest program. Each of its tests becomes a ctest test; with ZANTROQ_TEST_PER_PROGRAM, for builds whose programs
# start slowly, each program becomes three parts. Tests labelled "threaded" also run under ThreadSanitizer. Every program is
# linked with TestEnvironment.cpp, which isolates it from the user's settings and from any display.
function(zantroq_test_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;LABELS;LIBRARIES" ${ARGN})
    set(environment test_environment)
    if("${arg_LIBRARIES}" MATCHES "Qt6|chartqt")
        set(environment test_environment_qt)
        list(APPEND arg_LIBRARIES Qt6::Widgets Qt6::Svg Qt6::PrintSupport)
    endif()
    add_executable(${name} ${arg_SOURCES} $<TARGET_OBJECTS:${environment}>)
    if(ZANTROQ_PCH)
        target_precompile_headers(${name} REUSE_FROM ${environment})
    endif()
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    zantroq_warn_only_under_sanitizers(${name})
    target_link_libraries(${name} PRIVATE zantroq_test_options chartcore ${arg_LIBRARIES} GTest::gmock GTest::gtest_main)
    # An empty value would shift the properties after it.
    if(NOT arg_LABELS)
        set(arg_LABELS unit)
    endif()
    if("threaded" IN_LIST arg_LABELS)
        if(NOT TARGET threaded_tests)
            add_custom_target(threaded_tests)
        endif()
        add_dependencies(threaded_tests ${name})
    endif()
    if(ZANTROQ_TEST_PER_PROGRAM)
        # In three parts, so that the other cores do not wait for a long program at the end.
        foreach(part 0 1 2)
            add_test(NAME ${name}.${part} COMMAND ${name} --gtest_brief=1)
            set_tests_properties(${name}.${part} PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 1800
                ENVIRONMENT "GTEST_TOTAL_SHARDS=3;GTEST_SHARD_INDEX=${part}")
        endforeach()
        return()
    endif()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 300)
endfunction()
