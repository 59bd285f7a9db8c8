# SPDX-License-Identifier: MIT
# The font files of the bundle. Any face of the same role can stand in: give its path with
# -DHOXQ_FONT_LIGHT=… and so on.
function(hoxq_font variable default package)
  set(${variable} ${default} CACHE FILEPATH "Font file compiled into the library")
  if(NOT EXISTS "${${variable}}")
    # The leading space keeps the message on one line.
    message(FATAL_ERROR " font file ${${variable}} not found: install the package ${package}, or set ${variable}")
  endif()
endfunction()

set(HOXQ_INTER /usr/share/fonts/opentype/inter)
hoxq_font(HOXQ_FONT_LIGHT ${HOXQ_INTER}/Inter-Light.otf fonts-inter)
hoxq_font(HOXQ_FONT_REGULAR ${HOXQ_INTER}/Inter-Regular.otf fonts-inter)
hoxq_font(HOXQ_FONT_MEDIUM ${HOXQ_INTER}/Inter-Medium.otf fonts-inter)
hoxq_font(HOXQ_FONT_BOLD ${HOXQ_INTER}/Inter-Bold.otf fonts-inter)
hoxq_font(HOXQ_FONT_FALLBACK
  /usr/share/fonts-droid-fallback/truetype/DroidSansFallback.ttf fonts-droid-fallback)
