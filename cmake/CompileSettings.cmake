# What every target is compiled with, and what the library's own sources are compiled with besides.

add_library(vorn_settings INTERFACE)
target_compile_features(vorn_settings INTERFACE cxx_std_20)
target_compile_options(vorn_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Werror)
if(VORN_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
else()
  # The same sources give the same bytes wherever they lie.
  target_compile_options(vorn_settings INTERFACE -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
endif()

if(WIN32)
  target_compile_definitions(vorn_settings INTERFACE _WIN32_WINNT=0x0601 WINVER=0x0601)
endif()
# What goes into the DLL does without exceptions and run-time type information.
add_library(vorn_library_settings INTERFACE)
target_link_libraries(vorn_library_settings INTERFACE vorn_settings)
target_compile_options(vorn_library_settings INTERFACE -fno-exceptions -fno-rtti)
if(WIN32)
  # What nothing calls is left out, and 32-bit Windows needs no tables to unwind by.
  target_compile_options(vorn_library_settings INTERFACE -ffunction-sections -fdata-sections)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_compile_options(vorn_library_settings INTERFACE
      -fno-asynchronous-unwind-tables -fno-unwind-tables)
  endif()
endif()

if(VORN_CHECKED)
  # Traps need no run-time library, which MinGW has not. What the standard library demands of its
  # callers (std::clamp, std::span) the compiler does not know.
  target_compile_options(vorn_library_settings INTERFACE
    -fsanitize=undefined,float-cast-overflow -fno-sanitize=vptr -fsanitize-undefined-trap-on-error)
  target_compile_definitions(vorn_library_settings INTERFACE _GLIBCXX_ASSERTIONS)
endif()

if(VORN_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr
                      -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
