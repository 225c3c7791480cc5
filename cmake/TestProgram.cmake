# zantroq_test_program(NAME SOURCES... [LABELS label...] [LIBRARIES lib...])
#
# A GoogleTest program whose tests each become a ctest test. Tests labelled "threaded" also run under ThreadSanitizer.
# Every program is linked with TestEnvironment.cpp, which keeps it away from the user's settings and from any display.
add_library(test_environment OBJECT ${CMAKE_SOURCE_DIR}/tests/support/TestEnvironment.cpp)
target_link_libraries(test_environment PRIVATE zantroq_settings)
target_compile_definitions(test_environment PRIVATE
    ZANTROQ_TEST_FOLDER="${CMAKE_BINARY_DIR}"
    ZANTROQ_TEST_FONTS="${CMAKE_SOURCE_DIR}/tests/support/fonts.conf")

function(zantroq_test_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;LABELS;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES} $<TARGET_OBJECTS:test_environment>)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE chartcore ${arg_LIBRARIES} GTest::gmock GTest::gtest_main)
    # An empty value would shift the properties behind it.
    if(NOT arg_LABELS)
        set(arg_LABELS unit)
    endif()
    if("threaded" IN_LIST arg_LABELS)
        if(NOT TARGET threaded_tests)
            add_custom_target(threaded_tests)
        endif()
        add_dependencies(threaded_tests ${name})
    endif()
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS ${arg_LABELS} TIMEOUT 300)
endfunction()
