# find_package(VORN32) gives the target VORN32::VORN32, with which a host links: the public headers
# and the import library of the architecture and the compiler that build it. The target's file is the
# DLL, which a host ships: $<TARGET_FILE:VORN32::VORN32>.
if(NOT WIN32)
  set(VORN32_FOUND FALSE)
  set(VORN32_NOT_FOUND_MESSAGE
      "VORN32 is for Windows programs; configure with a compiler or a toolchain file for Windows.")
  return()
endif()
if(NOT CMAKE_SIZEOF_VOID_P)
  set(VORN32_FOUND FALSE)
  set(VORN32_NOT_FOUND_MESSAGE
      "VORN32 needs to know the size of a pointer; enable C or C++ before find_package(VORN32).")
  return()
endif()
if("${CMAKE_C_COMPILER_ARCHITECTURE_ID}${CMAKE_CXX_COMPILER_ARCHITECTURE_ID}" MATCHES "ARM")
  set(VORN32_FOUND FALSE)
  set(VORN32_NOT_FOUND_MESSAGE
      "VORN32 is for x86 and x64; build for one of them, which Windows on ARM runs too.")
  return()
endif()

get_filename_component(vorn32_root "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(vorn32_suffix 64)
else()
  set(vorn32_suffix "")
endif()
if(MINGW)
  set(vorn32_import_library libVORN32.a)
else()
  set(vorn32_import_library VORN32.lib)
endif()

if(NOT TARGET VORN32::VORN32)
  add_library(VORN32::VORN32 SHARED IMPORTED)
  set_target_properties(VORN32::VORN32 PROPERTIES
    IMPORTED_LOCATION "${vorn32_root}/bin${vorn32_suffix}/VORN32.dll"
    IMPORTED_IMPLIB "${vorn32_root}/lib${vorn32_suffix}/${vorn32_import_library}"
    INTERFACE_INCLUDE_DIRECTORIES "${vorn32_root}/include")
endif()
unset(vorn32_root)
unset(vorn32_suffix)
unset(vorn32_import_library)
