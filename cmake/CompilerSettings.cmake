# Repeated builds take what ccache kept, where it is installed.
find_program(ZANTROQ_CCACHE ccache)
if(ZANTROQ_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ZANTROQ_CCACHE})
endif()

# One interface target carries the warnings and sanitizers that every target of the project uses.
add_library(zantroq_settings INTERFACE)
target_include_directories(zantroq_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(zantroq_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
    # Results must be the same on every build: no fused multiply-add, no reordering of floating-point terms.
    -ffp-contract=off -fno-fast-math)
# asio's headers find the library's aligned allocation only in sources that include a standard header before them, and memory that one
# source takes is returned by another: all of them do without it.
target_compile_definitions(zantroq_settings INTERFACE ASIO_STANDALONE ASIO_NO_DEPRECATED ASIO_DISABLE_STD_ALIGNED_ALLOC)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(zantroq_settings INTERFACE -Wthread-safety)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12
   AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC bug 105651: at -O2 and above g++ 12 sees an overlapping copy inside the library's own "text" + std::string&&.
    # With precompiled headers, whose places in system headers g++ forgets, it shows as two more warnings.
    target_compile_options(zantroq_settings INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()
if(ZANTROQ_WERROR)
    target_compile_options(zantroq_settings INTERFACE $<$<NOT:$<BOOL:$<TARGET_PROPERTY:ZANTROQ_WARN_ONLY>>>:-Werror>)
endif()
# zantroq_warn_only_under_sanitizers(TARGET...): with the sanitizers g++ sees overflows and uninitialised values in tests and benchmarks
# where there are none, so that there a warning is shown and does not end the build. clang's warnings do.
function(zantroq_warn_only_under_sanitizers)
    if(ZANTROQ_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        set_target_properties(${ARGN} PROPERTIES ZANTROQ_WARN_ONLY ON)
    endif()
endfunction()
if(ZANTROQ_SANITIZE)
    target_compile_options(zantroq_settings INTERFACE -fsanitize=${ZANTROQ_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(zantroq_settings INTERFACE -fsanitize=${ZANTROQ_SANITIZE})
    if(ZANTROQ_SANITIZE MATCHES "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # asio's header-only loop holds a fence that this sanitizer does not follow; g++ tells it of every file that inlines it.
        target_compile_options(zantroq_settings INTERFACE -Wno-tsan)
    endif()
    if(ZANTROQ_SANITIZE MATCHES "undefined")
        # Division by zero and float overflow are defined by IEEE 754 and part of the studies' arithmetic.
        target_compile_options(zantroq_settings INTERFACE -fno-sanitize-recover=undefined -fno-sanitize=float-divide-by-zero)
    endif()
endif()
