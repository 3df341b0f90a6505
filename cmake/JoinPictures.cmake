# Joins XPM files of one height to a 4-bit BMP, from left to right. Run as a script, with
# bitmap (the file to write), cells (the XPM files) and the paths of xpmtoppm, pnmcat and ppmtobmp.
function(must_succeed what)
  foreach(result IN LISTS ARGN)
    if(NOT result EQUAL 0)
      file(REMOVE ${bitmap})
      message(FATAL_ERROR "${what}.")
    endif()
  endforeach()
endfunction()

set(strip)
foreach(cell IN LISTS cells)
  get_filename_component(name ${cell} NAME_WE)
  set(pixmap ${bitmap}.${name}.ppm)
  execute_process(COMMAND ${xpmtoppm} -quiet ${cell} OUTPUT_FILE ${pixmap} RESULT_VARIABLE result)
  must_succeed("${cell} is not an XPM file that xpmtoppm can read" ${result})
  list(APPEND strip ${pixmap})
endforeach()
# More than 16 colours are an error: they do not fit into 4 bits.
execute_process(
  COMMAND ${pnmcat} -quiet -lr ${strip}
  COMMAND ${ppmtobmp} -quiet -windows -bpp=4
  OUTPUT_FILE ${bitmap}
  RESULTS_VARIABLE results)
must_succeed("${bitmap} could not be written from ${cells}" ${results})
file(REMOVE ${strip})
