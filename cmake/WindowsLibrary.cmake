# VORN32.dll, its import library, and the same code as a static library for tests that look inside.
enable_language(RC)
include(ModuleDefinition)
include(Pictures)

set(dll_definition ${CMAKE_BINARY_DIR}/vorn32.def)
set(import_definition ${CMAKE_BINARY_DIR}/vorn32_import.def)
vorn_module_definitions(${CMAKE_SOURCE_DIR}/core/exports.txt ${dll_definition} ${import_definition})

string(REPLACE "." "," version_numbers ${PROJECT_VERSION})
configure_file(resources/version.h.in ${CMAKE_BINARY_DIR}/version/version.h @ONLY)

set(system_libraries user32 gdi32 version mpr)

if(VORN_CHECKED)
  # Guarded blocks stand before those of the library, which are counted, made to fail and kept for
  # what needs a handle: a property is one that the host can lock.
  list(APPEND window_sources tests/support/guarded_memory_win.cpp)
  set_source_files_properties(core/memory_win.cpp core/property_win.cpp PROPERTIES
    COMPILE_DEFINITIONS "AllocBlock=AllocPlainBlock;FreeBlock=FreePlainBlock")
endif()

# Linked as C: nothing of the C++ runtime may be needed. The compiler's own functions (64-bit division
# on 32-bit Windows) are linked before CMake brings their DLL in with the C++ library.
add_library(VORN32 MODULE ${window_sources} resources/vorn32.rc ${dll_definition})
target_link_libraries(VORN32 PRIVATE vorn_logic vorn_library_settings gcc ${system_libraries})
target_include_directories(VORN32 PRIVATE include ${CMAKE_BINARY_DIR}/version ${pictures})
# The resource compiler does not tell which files it reads.
set(resource_inputs ${picture_bitmaps} ${CMAKE_SOURCE_DIR}/resources/fontselect.rc
    ${CMAKE_SOURCE_DIR}/resources/popup.rc)
set_source_files_properties(resources/vorn32.rc PROPERTIES OBJECT_DEPENDS "${resource_inputs}")
add_dependencies(VORN32 vorn_pictures)
target_compile_definitions(VORN32 PRIVATE VORN32_BUILD)
if(VORN_CHECKED)
  # The standard library says itself what is wrong.
  target_link_libraries(VORN32 PRIVATE -static stdc++ gcc_eh gcc)
else()
  # The window halves wait for the system most of the time; small is what counts there.
  target_compile_options(VORN32 PRIVATE -Os)
  # Only a checked build's faults are looked up by their addresses.
  target_link_options(VORN32 PRIVATE -s)
endif()
set_target_properties(VORN32 PROPERTIES
  PREFIX "" LINKER_LANGUAGE C LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
target_link_options(VORN32 PRIVATE
  -static-libgcc
  -Wl,--dynamicbase,--nxcompat,--no-insert-timestamp,--no-seh
  -Wl,--exclude-all-symbols,--gc-sections)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  target_link_options(VORN32 PRIVATE -Wl,--high-entropy-va)
endif()

set(import_library ${CMAKE_BINARY_DIR}/libVORN32.a)
# The path that is given as output gets into the names of the library's members.
add_custom_command(
  OUTPUT ${import_library}
  COMMAND ${VORN_TARGET_TRIPLE}-dlltool --kill-at --input-def ${import_definition}
          --output-lib libVORN32.a --dllname VORN32.dll
  DEPENDS ${import_definition}
  WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
  COMMENT "Making the import library"
  VERBATIM)
add_custom_target(vorn_import_library ALL DEPENDS ${import_library})

# What a host links with.
add_library(vorn_host INTERFACE)
add_dependencies(vorn_host VORN32 vorn_import_library)
target_include_directories(vorn_host INTERFACE ${CMAKE_SOURCE_DIR}/include)
target_link_libraries(vorn_host INTERFACE ${import_library})
add_library(VORN32::VORN32 ALIAS vorn_host) # the name that a package's users know

add_library(vorn_window_testing STATIC EXCLUDE_FROM_ALL ${window_sources})
target_compile_definitions(vorn_window_testing PUBLIC VORN32_BUILD VORN_TEST_HOOKS)
target_include_directories(vorn_window_testing PUBLIC include ${CMAKE_BINARY_DIR}/version
                                                      ${pictures})
target_link_libraries(vorn_window_testing PUBLIC vorn_logic ${system_libraries}
                                          PRIVATE vorn_library_settings)
