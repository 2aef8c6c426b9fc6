# How every target of this project is compiled.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release)
endif()

add_library(vantrel_warnings INTERFACE)
target_compile_options(vantrel_warnings INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
    -Wformat=2)
if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    target_compile_options(vantrel_warnings INTERFACE -Wno-unknown-warning-option)
elseif(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # Optimising, it takes the length of an assigned string for a negative one.
    target_compile_options(vantrel_warnings INTERFACE -Wno-stringop-overflow -Wno-array-bounds
        -Wno-restrict)
endif()
if(VANTREL_WARNINGS_AS_ERRORS)
    target_compile_options(vantrel_warnings INTERFACE -Werror)
endif()

if(VANTREL_SANITIZE)
    add_compile_options(-fsanitize=${VANTREL_SANITIZE} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VANTREL_SANITIZE})
endif()
