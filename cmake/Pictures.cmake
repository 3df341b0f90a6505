# Makes the library's bitmaps, <number>.bmp in ${pictures}, from the XPM files in resources/pictures.
set(pictures ${CMAKE_BINARY_DIR}/pictures)
set(picture_bitmaps)

foreach(program xpmtoppm pnmcat ppmtobmp)
  find_program(VORN_${program} ${program})
  if(NOT VORN_${program})
    message(FATAL_ERROR "${program} is missing: the library's pictures are made with netpbm. "
                        "Install the package netpbm, then configure again.")
  endif()
endforeach()

# The bitmap of this number shows the cells that match, side by side in the order of their names.
function(vorn_picture number cells)
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/pictures/${cells})
  if(NOT sources)
    message(FATAL_ERROR "Bitmap ${number} has no picture: nothing matches resources/pictures/${cells}.")
  endif()
  set(bitmap ${pictures}/${number}.bmp)
  set(script ${CMAKE_SOURCE_DIR}/cmake/JoinPictures.cmake)
  add_custom_command(
    OUTPUT ${bitmap}
    COMMAND ${CMAKE_COMMAND} -D bitmap=${bitmap} -D "cells=${sources}"
            -D xpmtoppm=${VORN_xpmtoppm} -D pnmcat=${VORN_pnmcat} -D ppmtobmp=${VORN_ppmtobmp}
            -P ${script}
    DEPENDS ${sources} ${script}
    COMMENT "Making the bitmap ${number}"
    VERBATIM)
  set(picture_bitmaps ${picture_bitmaps} ${bitmap} PARENT_SCOPE)
endfunction()

foreach(number 214 215)
  vorn_picture(${number} "treebox/${number}-*.xpm")
endforeach()
vorn_picture(217 "outline/*.xpm")
vorn_picture(222 "button20/*.xpm")
vorn_picture(223 "button16/*.xpm")
vorn_picture(228 "hostapp/*.xpm")
foreach(number 305 306 307 308 309)
  vorn_picture(${number} "pad/${number}-*.xpm")
endforeach()
foreach(number 355 356)
  vorn_picture(${number} "fontmark/${number}-*.xpm")
endforeach()
foreach(number 1023 1025)
  vorn_picture(${number} "yeararrow/${number}-*.xpm")
endforeach()
add_custom_target(vorn_pictures DEPENDS ${picture_bitmaps})
