# The one place for the language standard, the warnings and Qt's strictness: every target links it.
add_library(chronomender_options INTERFACE)
target_compile_features(chronomender_options INTERFACE cxx_std_20)
target_compile_options(chronomender_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
  -Wimplicit-fallthrough -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # With -O3, g++ 12 sees overlaps in the code of std::string's operator+ (GCC bug 105651).
  target_compile_options(chronomender_options INTERFACE -Wno-restrict)
endif()
target_compile_definitions(chronomender_options INTERFACE
  QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH _FILE_OFFSET_BITS=64)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
