# Finds what the library stands on and sets
#   VARNEL_SYSTEM_LIBRARIES  what to link,
#   VARNEL_SYSTEM_INCLUDES   where its headers are,
#   VARNEL_OTHER_PORT        the folder of egl/backend/ that this system does not build.
if(WIN32)
  set(ZLIB_USE_STATIC_LIBS ON)
endif()
find_package(ZLIB REQUIRED)
find_package(PNG REQUIRED)
find_package(JPEG REQUIRED)
find_package(Java 17 REQUIRED COMPONENTS Development Runtime)

# jni.h of the JDK whose javac was found.
file(REAL_PATH "${Java_JAVAC_EXECUTABLE}" javac_path)
cmake_path(GET javac_path PARENT_PATH java_bin)
find_path(JNI_HEADER_DIR jni.h
  HINTS "${java_bin}/../include" REQUIRED NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)

if(WIN32)
  # Boost's and the published EGL and OpenGL ES headers stand beside those of libpng and libjpeg.
  set(VARNEL_SYSTEM_INCLUDES
    "${JNI_HEADER_DIR}" "${PROJECT_SOURCE_DIR}/binding/windows"
    ${PNG_INCLUDE_DIRS} ${JPEG_INCLUDE_DIRS})
  set(VARNEL_SYSTEM_LIBRARIES PNG::PNG JPEG::JPEG ZLIB::ZLIB opengl32 gdi32 user32)
  set(VARNEL_OTHER_PORT glx)
else()
  find_package(Boost 1.74 REQUIRED)
  find_package(X11 REQUIRED)
  find_package(OpenGL REQUIRED COMPONENTS OpenGL GLX)
  set(VARNEL_SYSTEM_INCLUDES
    "${JNI_HEADER_DIR}" "${JNI_HEADER_DIR}/linux"
    ${PNG_INCLUDE_DIRS} ${JPEG_INCLUDE_DIRS} ${X11_INCLUDE_DIR})
  set(VARNEL_SYSTEM_LIBRARIES
    ZLIB::ZLIB PNG::PNG JPEG::JPEG X11::X11 OpenGL::GLX ${CMAKE_DL_LIBS})
  set(VARNEL_OTHER_PORT wgl)
endif()
