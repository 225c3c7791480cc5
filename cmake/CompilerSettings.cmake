# Uses ccache for repeated builds if it is installed.
find_program(ZANTROQ_CCACHE ccache)
if(ZANTROQ_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ZANTROQ_CCACHE})
endif()

# An interface target with the warnings and sanitizers of every target of the project.
add_library(zantroq_settings INTERFACE)
target_include_directories(zantroq_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(zantroq_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
    # Results must be the same on every build: no fused multiply-add, no reordering of floating-point terms.
    -ffp-contract=off -fno-fast-math)
# asio's headers use the library's aligned allocation only in sources that include a standard header before them, but memory
# allocated in one source is released in another. Therefore all sources do without it.
target_compile_definitions(zantroq_settings INTERFACE ASIO_STANDALONE ASIO_NO_DEPRECATED ASIO_DISABLE_STD_ALIGNED_ALLOC)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(zantroq_settings INTERFACE -Wthread-safety)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12
   AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC bug 105651: at -O2 and above g++ 12 reports an overlapping copy inside the library's own "text" + std::string&&. With
    # precompiled headers, whose origin in system headers g++ forgets, it causes two more warnings.
    target_compile_options(zantroq_settings INTERFACE -Wno-restrict -Wno-stringop-overflow -Wno-array-bounds)
endif()
if(ZANTROQ_WERROR)
    target_compile_options(zantroq_settings INTERFACE $<$<NOT:$<BOOL:$<TARGET_PROPERTY:ZANTROQ_WARN_ONLY>>>:-Werror>)
endif()
# zantroq_warn_only_under_sanitizers(TARGET...): with the sanitizers, g++ reports overflows and uninitialised values in tests and
# benchmarks where there are none. There its warnings are shown but do not fail the build; clang's warnings do.
function(zantroq_warn_only_under_sanitizers)
    if(ZANTROQ_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        set_target_properties(${ARGN} PROPERTIES ZANTROQ_WARN_ONLY ON)
    endif()
endfunction()
if(ZANTROQ_SANITIZE)
    target_compile_options(zantroq_settings INTERFACE -fsanitize=${ZANTROQ_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(zantroq_settings INTERFACE -fsanitize=${ZANTROQ_SANITIZE})
    if(ZANTROQ_SANITIZE MATCHES "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # asio's header-only loop has a fence that this sanitizer does not support; g++ warns in every file that inlines it.
        target_compile_options(zantroq_settings INTERFACE -Wno-tsan)
    endif()
    if(ZANTROQ_SANITIZE MATCHES "undefined")
        # Division by zero and float overflow are defined by IEEE 754 and part of the studies' arithmetic.
        target_compile_options(zantroq_settings INTERFACE -fno-sanitize-recover=undefined -fno-sanitize=float-divide-by-zero)
    endif()
endif()
