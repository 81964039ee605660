# Includes point one way through the folders, and each window system's headers stay in its port.
# Argument: SOURCE, the project's folder.

# From the upper to the lower folders; those of one line do not know each other.
set(levels
  "binding"
  "engine/loader|engine/render"
  "engine/animation"
  "engine/scene"
  "engine/geometry|engine/surface"
  "engine/math"
  "engine/object"
  "egl/shim"
  "egl/backend"
  "egl/window"
  "gles/es1|gles/es2"
  "gles"
  "gles/driver")

function(find_level path level_variable folder_variable)
  set(found -1)
  set(longest "")
  set(number 0)
  foreach(level IN LISTS levels)
    string(REPLACE "|" ";" folders "${level}")
    foreach(folder IN LISTS folders)
      string(LENGTH "${folder}" length)
      string(LENGTH "${longest}" longest_length)
      string(FIND "${path}" "${folder}/" place)
      if(place EQUAL 0 AND length GREATER longest_length)
        set(found ${number})
        set(longest "${folder}")
      endif()
    endforeach()
    math(EXPR number "${number} + 1")
  endforeach()
  set(${level_variable} ${found} PARENT_SCOPE)
  set(${folder_variable} "${longest}" PARENT_SCOPE)
endfunction()

set(failures "")
set(checked 0)
file(GLOB_RECURSE files RELATIVE "${SOURCE}"
  "${SOURCE}/binding/*.[ch]*" "${SOURCE}/engine/*.[ch]*" "${SOURCE}/egl/*.[ch]*"
  "${SOURCE}/gles/*.[ch]*")
foreach(file IN LISTS files)
  find_level("${file}" from from_folder)
  if(from EQUAL -1)
    list(APPEND failures "${file} is in no folder of the list")
    continue()
  endif()
  file(STRINGS "${SOURCE}/${file}" lines REGEX "^ *# *include ")
  foreach(line IN LISTS lines)
    math(EXPR checked "${checked} + 1")
    string(REGEX REPLACE "^[^\"<]*[\"<]([^\">]*).*" "\\1" header "${line}")
    if(line MATCHES "\"")
      find_level("${header}" to to_folder)
      if(to EQUAL -1 OR to LESS from OR (to EQUAL from AND NOT to_folder STREQUAL from_folder))
        list(APPEND failures "${file} includes ${header}")
      elseif(header MATCHES "^(egl|gles)/" AND NOT file MATCHES "^(egl|gles|engine/render)/")
        list(APPEND failures "${file} includes ${header}: only engine/render draws")
      endif()
    elseif((header MATCHES "^windows\\.h$|^GL/wgl" AND NOT file MATCHES "^egl/backend/wgl/") OR
           (header MATCHES "^X11/|^GL/glx" AND NOT file MATCHES "^egl/backend/glx/"))
      list(APPEND failures "${file} includes ${header} of a window system")
    elseif(header MATCHES "^(EGL|GLES|GLES2|GL)/" AND NOT file MATCHES "^(egl|gles|engine/render)/")
      list(APPEND failures "${file} includes ${header}: only engine/render draws")
    endif()
  endforeach()
endforeach()
if(failures)
  list(JOIN failures "\n  " text)
  message(FATAL_ERROR "Against the order of the folders:\n  ${text}")
endif()
message(STATUS "${checked} includes follow the order of the folders")
