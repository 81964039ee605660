#ifndef VARNEL_GLES_ES1_IDENTITY_H
#define VARNEL_GLES_ES1_IDENTITY_H

namespace gles::es1 {

// What this path is. `glGetString` answers the driver's strings, not these.
inline constexpr char vendor[] = "Test implementation";
inline constexpr char renderer[] = "oeswrapper on OpenGL 1.X";
inline constexpr char version[] = "1.1";
inline constexpr char extensions[] =
    "GL_OES_byte_coordinates GL_OES_compressed_paletted_texture GL_OES_fixed_point "
    "GL_OES_EGL_image";

}  // namespace gles::es1

#endif  // VARNEL_GLES_ES1_IDENTITY_H
