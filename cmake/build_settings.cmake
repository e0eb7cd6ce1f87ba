# Compiler settings for all targets.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 99)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
if(DEFINED ENV{CI})
  set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
add_compile_definitions(NOTES_EXPORT_DEVICE_ROOT="${NOTES_EXPORT_DEVICE_ROOT}")

if(NOTES_EXPORT_SANITIZE)
  add_compile_options(-fsanitize=${NOTES_EXPORT_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${NOTES_EXPORT_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options(
      -fsanitize-ignorelist=${PROJECT_SOURCE_DIR}/cmake/sanitizer_exceptions.txt)
  endif()
endif()

if(NOTES_EXPORT_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

find_package(PkgConfig REQUIRED)
pkg_check_modules(JSONCPP REQUIRED IMPORTED_TARGET jsoncpp)

# The declarations of the device's libraries, which include Json::Value.
add_library(notes_export_seam INTERFACE)
target_include_directories(notes_export_seam INTERFACE "${PROJECT_SOURCE_DIR}/platform/include")
target_link_libraries(notes_export_seam INTERFACE PkgConfig::JSONCPP)
