# zantroq_test_program(NAME SOURCES... [LABELS label...] [LIBRARIES lib...])
#
# A GoogleTest program whose tests each become a ctest test. Tests labelled "threaded" also run under ThreadSanitizer.
# Every test gets a settings file of its own that does not exist, so that none touches the user's.
function(zantroq_test_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;LABELS;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE chartcore ${arg_LIBRARIES} GTest::gmock GTest::gtest_main)
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES
        LABELS "${arg_LABELS}" TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;ZANTROQ_SETTINGS=${CMAKE_BINARY_DIR}/no-such-folder/settings.db")
endfunction()
