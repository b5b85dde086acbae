# Settings for all targets of the project, which link to htdrdd_settings.
add_library(htdrdd_settings INTERFACE)
target_compile_features(htdrdd_settings INTERFACE cxx_std_20)
target_compile_options(htdrdd_settings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# g++ 12 mistakes the concatenation of short texts in its own library for overlapping copies (its bug 105651).
target_compile_options(htdrdd_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(HTDRDD_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize= takes them")
if(HTDRDD_SANITIZE)
    add_compile_options(-fsanitize=${HTDRDD_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${HTDRDD_SANITIZE})
    # g++ 12 mistakes an instrumented std::variant for uninitialized memory; the release build still checks.
    target_compile_options(htdrdd_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()

option(HTDRDD_COVERAGE "Count what the tests run" OFF)
if(HTDRDD_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
