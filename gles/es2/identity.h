#ifndef VARNEL_GLES_ES2_IDENTITY_H
#define VARNEL_GLES_ES2_IDENTITY_H

namespace gles::es2 {

// What this path is. `glGetString` answers the driver's strings, not these.
inline constexpr char vendor[] = "Test implementation";
inline constexpr char renderer[] = "oes2w on OpenGL 2.0";
inline constexpr char version[] = "2.0";
inline constexpr char extensions[] =
    "OES_read_format OES_compressed_paletted_texture OES_framebuffer_object OES_stencil8 "
    "GL_OES_EGL_image";

}  // namespace gles::es2

#endif  // VARNEL_GLES_ES2_IDENTITY_H
