# SPDX-License-Identifier: MIT
# The toolkit reads the indicator, knob and inverted logo images as bitmaps.
# They are drawn as SVG like all others and rendered here, pixel for unit, with
# a program of the build machine (also when cross compiling).
find_program(HOXQ_RSVG_CONVERT rsvg-convert NO_CMAKE_FIND_ROOT_PATH)
if(NOT HOXQ_RSVG_CONVERT)
  message(FATAL_ERROR "rsvg-convert not found: install the package librsvg2-bin")
endif()

set(HOXQ_IMAGES_DIR ${PROJECT_BINARY_DIR}/images)
file(MAKE_DIRECTORY ${HOXQ_IMAGES_DIR})

# Adds one PNG of the given size in pixels to HOXQ_IMAGES.
function(hoxq_render_image name width height)
  set(source ${PROJECT_SOURCE_DIR}/ui/resources/images/raster/${name}.svg)
  set(image ${HOXQ_IMAGES_DIR}/${name}.png)
  add_custom_command(
    OUTPUT ${image}
    COMMAND ${HOXQ_RSVG_CONVERT} --width ${width} --height ${height} --output ${image} ${source}
    DEPENDS ${source}
    COMMENT "Rendering ${name}.png"
    VERBATIM)
  set(HOXQ_IMAGES ${HOXQ_IMAGES} ${image} PARENT_SCOPE)
endfunction()

set(HOXQ_IMAGES)
hoxq_render_image(cb_checked 78 44)
hoxq_render_image(cb_unchecked 78 44)
hoxq_render_image(rb_checked 40 42)
hoxq_render_image(rb_unchecked 40 42)
hoxq_render_image(knob_shadow 72 72)
hoxq_render_image(vexo-inverted 183 51)

add_custom_target(hoxqui_images DEPENDS ${HOXQ_IMAGES})
