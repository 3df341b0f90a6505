# What a package of the library holds, for cmake --install. Both architectures go to one prefix: the
# 32-bit build brings bin/ and lib/, the 64-bit one bin64/ and lib64/, and both the same of the rest.

if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  set(package_suffix 64)
  set(msvc_machine i386:x86-64)
else()
  set(package_suffix)
  set(msvc_machine i386)
endif()

# The import library for MSVC. Its compilers ask for the same symbols as MinGW's; --kill-at makes them
# name the functions without the bytes of their arguments, as the DLL does.
find_program(VORN_llvm_dlltool llvm-dlltool)
set(msvc_import_library ${CMAKE_BINARY_DIR}/VORN32.lib)
if(VORN_llvm_dlltool)
  add_custom_command(
    OUTPUT ${msvc_import_library}
    COMMAND ${VORN_llvm_dlltool} -m ${msvc_machine} --kill-at --input-def ${import_definition}
            --output-lib ${msvc_import_library}
    DEPENDS ${import_definition}
    COMMENT "Making the import library for MSVC"
    VERBATIM)
  add_custom_target(vorn_msvc_import_library ALL DEPENDS ${msvc_import_library})
  # All that is built of a package.
  add_custom_target(vorn_package_files
                    DEPENDS VORN32 vorn_import_library vorn_msvc_import_library)
else()
  message(STATUS "No import library for MSVC, and so no package: llvm-dlltool is missing; "
                 "run tools/package, or install the package llvm.")
  install(CODE "message(FATAL_ERROR \"The import library for MSVC was not built: llvm-dlltool is \"
                \"missing. Run tools/package, or install the package llvm, then configure and build \"
                \"again.\")")
endif()

set(package_templates ${CMAKE_CURRENT_LIST_DIR}/package)
set(package_generated ${CMAKE_BINARY_DIR}/package)
# The same of both builds: what CMake writes itself names the architecture.
foreach(file VORN32ConfigVersion.cmake README.md)
  configure_file(${package_templates}/${file}.in ${package_generated}/${file} @ONLY)
endforeach()

install(FILES $<TARGET_FILE:VORN32> DESTINATION bin${package_suffix})
install(FILES ${import_library} ${msvc_import_library} DESTINATION lib${package_suffix})
install(DIRECTORY include/ DESTINATION include)
install(FILES ${package_templates}/VORN32Config.cmake
              ${package_generated}/VORN32ConfigVersion.cmake DESTINATION cmake)
install(DIRECTORY docs/ DESTINATION doc)
install(DIRECTORY examples/ DESTINATION examples)
install(FILES LICENSE CHANGELOG.md ${package_generated}/README.md DESTINATION .)
