#ifndef VARNEL_GLES_DRIVER_DRIVER_FUNCTIONS_H
#define VARNEL_GLES_DRIVER_DRIVER_FUNCTIONS_H

// The desktop OpenGL functions that the OpenGL ES layers call, each once: this list declares the
// table's members, drives loading, and lets tests stand in for each function.
//
// X(need, result, name, alternative, parameters): `need` is REQUIRED or OPTIONAL; `alternative` is
// the name tried when the driver does not know `name`, or nullptr.
#define VARNEL_DRIVER_FUNCTIONS(X)                                                                 \
  /* OpenGL 1.1 */                                                                                 \
  X(REQUIRED, void, glAlphaFunc, nullptr, (GLenum func, GLfloat ref))                              \
  X(REQUIRED, void, glBindTexture, nullptr, (GLenum target, GLuint texture))                       \
  X(REQUIRED, void, glBlendFunc, nullptr, (GLenum sfactor, GLenum dfactor))                        \
  X(REQUIRED, void, glClear, nullptr, (GLbitfield mask))                                           \
  X(REQUIRED, void, glClearColor, nullptr,                                                         \
    (GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha))                                     \
  X(REQUIRED, void, glClearDepth, nullptr, (GLdouble depth))                                       \
  X(REQUIRED, void, glClearStencil, nullptr, (GLint s))                                            \
  X(REQUIRED, void, glClipPlane, nullptr, (GLenum plane, const GLdouble* equation))                \
  X(REQUIRED, void, glColor4f, nullptr, (GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha)) \
  X(REQUIRED, void, glColor4ub, nullptr,                                                           \
    (GLubyte red, GLubyte green, GLubyte blue, GLubyte alpha))                                     \
  X(REQUIRED, void, glColorMask, nullptr,                                                          \
    (GLboolean red, GLboolean green, GLboolean blue, GLboolean alpha))                             \
  X(REQUIRED, void, glColorPointer, nullptr,                                                       \
    (GLint size, GLenum type, GLsizei stride, const GLvoid* pointer))                              \
  X(REQUIRED, void, glCopyTexImage2D, nullptr,                                                     \
    (GLenum target, GLint level, GLenum internalformat, GLint x, GLint y, GLsizei width,           \
     GLsizei height, GLint border))                                                                \
  X(REQUIRED, void, glCopyTexSubImage2D, nullptr,                                                  \
    (GLenum target, GLint level, GLint xoffset, GLint yoffset, GLint x, GLint y, GLsizei width,    \
     GLsizei height))                                                                              \
  X(REQUIRED, void, glCullFace, nullptr, (GLenum mode))                                            \
  X(REQUIRED, void, glDeleteTextures, nullptr, (GLsizei n, const GLuint* textures))                \
  X(REQUIRED, void, glDepthFunc, nullptr, (GLenum func))                                           \
  X(REQUIRED, void, glDepthMask, nullptr, (GLboolean flag))                                        \
  X(REQUIRED, void, glDepthRange, nullptr, (GLdouble zNear, GLdouble zFar))                        \
  X(REQUIRED, void, glDisable, nullptr, (GLenum cap))                                              \
  X(REQUIRED, void, glDisableClientState, nullptr, (GLenum array))                                 \
  X(REQUIRED, void, glDrawArrays, nullptr, (GLenum primitive, GLint first, GLsizei count))         \
  X(REQUIRED, void, glDrawElements, nullptr,                                                       \
    (GLenum primitive, GLsizei count, GLenum type, const GLvoid* indices))                         \
  X(REQUIRED, void, glEnable, nullptr, (GLenum cap))                                               \
  X(REQUIRED, void, glEnableClientState, nullptr, (GLenum array))                                  \
  X(REQUIRED, void, glFinish, nullptr, ())                                                         \
  X(REQUIRED, void, glFlush, nullptr, ())                                                          \
  X(REQUIRED, void, glFogf, nullptr, (GLenum pname, GLfloat param))                                \
  X(REQUIRED, void, glFogfv, nullptr, (GLenum pname, const GLfloat* params))                       \
  X(REQUIRED, void, glFrontFace, nullptr, (GLenum mode))                                           \
  X(REQUIRED, void, glFrustum, nullptr,                                                            \
    (GLdouble left, GLdouble right, GLdouble bottom, GLdouble top, GLdouble zNear, GLdouble zFar)) \
  X(REQUIRED, void, glGenTextures, nullptr, (GLsizei n, GLuint * textures))                        \
  X(REQUIRED, void, glGetBooleanv, nullptr, (GLenum pname, GLboolean * params))                    \
  X(REQUIRED, void, glGetClipPlane, nullptr, (GLenum plane, GLdouble * equation))                  \
  X(REQUIRED, GLenum, glGetError, nullptr, ())                                                     \
  X(REQUIRED, void, glGetFloatv, nullptr, (GLenum pname, GLfloat * params))                        \
  X(REQUIRED, void, glGetIntegerv, nullptr, (GLenum pname, GLint * params))                        \
  X(REQUIRED, void, glGetLightfv, nullptr, (GLenum light, GLenum pname, GLfloat * params))         \
  X(REQUIRED, void, glGetMaterialfv, nullptr, (GLenum face, GLenum pname, GLfloat * params))       \
  X(REQUIRED, const GLubyte*, glGetString, nullptr, (GLenum name))                                 \
  X(REQUIRED, void, glGetTexEnvfv, nullptr, (GLenum target, GLenum pname, GLfloat * params))       \
  X(REQUIRED, void, glGetTexEnviv, nullptr, (GLenum target, GLenum pname, GLint * params))         \
  X(REQUIRED, void, glGetTexImage, nullptr,                                                        \
    (GLenum target, GLint level, GLenum format, GLenum type, GLvoid * pixels))                     \
  X(REQUIRED, void, glGetTexLevelParameteriv, nullptr,                                             \
    (GLenum target, GLint level, GLenum pname, GLint * params))                                    \
  X(REQUIRED, void, glGetTexParameterfv, nullptr, (GLenum target, GLenum pname, GLfloat * params)) \
  X(REQUIRED, void, glGetTexParameteriv, nullptr, (GLenum target, GLenum pname, GLint * params))   \
  X(REQUIRED, void, glHint, nullptr, (GLenum target, GLenum mode))                                 \
  X(REQUIRED, GLboolean, glIsEnabled, nullptr, (GLenum cap))                                       \
  X(REQUIRED, GLboolean, glIsTexture, nullptr, (GLuint texture))                                   \
  X(REQUIRED, void, glLightModelf, nullptr, (GLenum pname, GLfloat param))                         \
  X(REQUIRED, void, glLightModelfv, nullptr, (GLenum pname, const GLfloat* params))                \
  X(REQUIRED, void, glLightf, nullptr, (GLenum light, GLenum pname, GLfloat param))                \
  X(REQUIRED, void, glLightfv, nullptr, (GLenum light, GLenum pname, const GLfloat* params))       \
  X(REQUIRED, void, glLineWidth, nullptr, (GLfloat width))                                         \
  X(REQUIRED, void, glLoadIdentity, nullptr, ())                                                   \
  X(REQUIRED, void, glLoadMatrixf, nullptr, (const GLfloat* m))                                    \
  X(REQUIRED, void, glLogicOp, nullptr, (GLenum opcode))                                           \
  X(REQUIRED, void, glMaterialf, nullptr, (GLenum face, GLenum pname, GLfloat param))              \
  X(REQUIRED, void, glMaterialfv, nullptr, (GLenum face, GLenum pname, const GLfloat* params))     \
  X(REQUIRED, void, glMatrixMode, nullptr, (GLenum mode))                                          \
  X(REQUIRED, void, glMultMatrixf, nullptr, (const GLfloat* m))                                    \
  X(REQUIRED, void, glNormal3f, nullptr, (GLfloat nx, GLfloat ny, GLfloat nz))                     \
  X(REQUIRED, void, glNormalPointer, nullptr,                                                      \
    (GLenum type, GLsizei stride, const GLvoid* pointer))                                          \
  X(REQUIRED, void, glOrtho, nullptr,                                                              \
    (GLdouble left, GLdouble right, GLdouble bottom, GLdouble top, GLdouble zNear, GLdouble zFar)) \
  X(REQUIRED, void, glPixelStorei, nullptr, (GLenum pname, GLint param))                           \
  X(REQUIRED, void, glPointSize, nullptr, (GLfloat size))                                          \
  X(REQUIRED, void, glPolygonOffset, nullptr, (GLfloat factor, GLfloat units))                     \
  X(REQUIRED, void, glPopAttrib, nullptr, ())                                                      \
  X(REQUIRED, void, glPopClientAttrib, nullptr, ())                                                \
  X(REQUIRED, void, glPopMatrix, nullptr, ())                                                      \
  X(REQUIRED, void, glPushAttrib, nullptr, (GLbitfield mask))                                      \
  X(REQUIRED, void, glPushClientAttrib, nullptr, (GLbitfield mask))                                \
  X(REQUIRED, void, glPushMatrix, nullptr, ())                                                     \
  X(REQUIRED, void, glReadPixels, nullptr,                                                         \
    (GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type,                  \
     GLvoid * pixels))                                                                             \
  X(REQUIRED, void, glRotatef, nullptr, (GLfloat angle, GLfloat x, GLfloat y, GLfloat z))          \
  X(REQUIRED, void, glScalef, nullptr, (GLfloat x, GLfloat y, GLfloat z))                          \
  X(REQUIRED, void, glScissor, nullptr, (GLint x, GLint y, GLsizei width, GLsizei height))         \
  X(REQUIRED, void, glShadeModel, nullptr, (GLenum mode))                                          \
  X(REQUIRED, void, glStencilFunc, nullptr, (GLenum func, GLint ref, GLuint mask))                 \
  X(REQUIRED, void, glStencilMask, nullptr, (GLuint mask))                                         \
  X(REQUIRED, void, glStencilOp, nullptr, (GLenum sfail, GLenum dpfail, GLenum dppass))            \
  X(REQUIRED, void, glTexCoordPointer, nullptr,                                                    \
    (GLint size, GLenum type, GLsizei stride, const GLvoid* pointer))                              \
  X(REQUIRED, void, glTexEnvf, nullptr, (GLenum target, GLenum pname, GLfloat param))              \
  X(REQUIRED, void, glTexEnvfv, nullptr, (GLenum target, GLenum pname, const GLfloat* params))     \
  X(REQUIRED, void, glTexEnvi, nullptr, (GLenum target, GLenum pname, GLint param))                \
  X(REQUIRED, void, glTexEnviv, nullptr, (GLenum target, GLenum pname, const GLint* params))       \
  X(REQUIRED, void, glTexImage2D, nullptr,                                                         \
    (GLenum target, GLint level, GLint internalformat, GLsizei width, GLsizei height,              \
     GLint border, GLenum format, GLenum type, const GLvoid* pixels))                              \
  X(REQUIRED, void, glTexParameterf, nullptr, (GLenum target, GLenum pname, GLfloat param))        \
  X(REQUIRED, void, glTexParameterfv, nullptr,                                                     \
    (GLenum target, GLenum pname, const GLfloat* params))                                          \
  X(REQUIRED, void, glTexParameteri, nullptr, (GLenum target, GLenum pname, GLint param))          \
  X(REQUIRED, void, glTexParameteriv, nullptr, (GLenum target, GLenum pname, const GLint* params)) \
  X(REQUIRED, void, glTexSubImage2D, nullptr,                                                      \
    (GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width, GLsizei height,      \
     GLenum format, GLenum type, const GLvoid* pixels))                                            \
  X(REQUIRED, void, glTranslatef, nullptr, (GLfloat x, GLfloat y, GLfloat z))                      \
  X(REQUIRED, void, glVertexPointer, nullptr,                                                      \
    (GLint size, GLenum type, GLsizei stride, const GLvoid* pointer))                              \
  X(REQUIRED, void, glViewport, nullptr, (GLint x, GLint y, GLsizei width, GLsizei height))        \
  /* Textures beyond 1.1, multisampling, points */                                                 \
  X(OPTIONAL, void, glActiveTexture, "glActiveTextureARB", (GLenum texture))                       \
  X(OPTIONAL, void, glClientActiveTexture, "glClientActiveTextureARB", (GLenum texture))           \
  X(OPTIONAL, void, glMultiTexCoord4f, "glMultiTexCoord4fARB",                                     \
    (GLenum target, GLfloat s, GLfloat t, GLfloat r, GLfloat q))                                   \
  X(OPTIONAL, void, glSampleCoverage, "glSampleCoverageARB", (GLfloat value, GLboolean invert))    \
  X(OPTIONAL, void, glCompressedTexImage2D, "glCompressedTexImage2DARB",                           \
    (GLenum target, GLint level, GLenum internalformat, GLsizei width, GLsizei height,             \
     GLint border, GLsizei imageSize, const GLvoid* data))                                         \
  X(OPTIONAL, void, glCompressedTexSubImage2D, "glCompressedTexSubImage2DARB",                     \
    (GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width, GLsizei height,      \
     GLenum format, GLsizei imageSize, const GLvoid* data))                                        \
  X(OPTIONAL, void, glPointParameterf, "glPointParameterfARB", (GLenum pname, GLfloat param))      \
  X(OPTIONAL, void, glPointParameterfv, "glPointParameterfvARB",                                   \
    (GLenum pname, const GLfloat* params))                                                         \
  /* Buffer objects */                                                                             \
  X(OPTIONAL, void, glBindBuffer, "glBindBufferARB", (GLenum target, GLuint buffer))               \
  X(OPTIONAL, void, glBufferData, "glBufferDataARB",                                               \
    (GLenum target, GLsizeiptr size, const GLvoid* data, GLenum usage))                            \
  X(OPTIONAL, void, glBufferSubData, "glBufferSubDataARB",                                         \
    (GLenum target, GLintptr offset, GLsizeiptr size, const GLvoid* data))                         \
  X(OPTIONAL, void, glDeleteBuffers, "glDeleteBuffersARB", (GLsizei n, const GLuint* buffers))     \
  X(OPTIONAL, void, glGenBuffers, "glGenBuffersARB", (GLsizei n, GLuint * buffers))                \
  X(OPTIONAL, void, glGetBufferParameteriv, "glGetBufferParameterivARB",                           \
    (GLenum target, GLenum pname, GLint * params))                                                 \
  X(OPTIONAL, GLboolean, glIsBuffer, "glIsBufferARB", (GLuint buffer))                             \
  /* Blending and stencil by face */                                                               \
  X(OPTIONAL, void, glBlendColor, "glBlendColorEXT",                                               \
    (GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha))                                     \
  X(OPTIONAL, void, glBlendEquation, "glBlendEquationEXT", (GLenum mode))                          \
  X(OPTIONAL, void, glBlendEquationSeparate, "glBlendEquationSeparateEXT",                         \
    (GLenum modeRGB, GLenum modeAlpha))                                                            \
  X(OPTIONAL, void, glBlendFuncSeparate, "glBlendFuncSeparateEXT",                                 \
    (GLenum sfactorRGB, GLenum dfactorRGB, GLenum sfactorAlpha, GLenum dfactorAlpha))              \
  X(OPTIONAL, void, glStencilFuncSeparate, nullptr,                                                \
    (GLenum face, GLenum func, GLint ref, GLuint mask))                                            \
  X(OPTIONAL, void, glStencilMaskSeparate, nullptr, (GLenum face, GLuint mask))                    \
  X(OPTIONAL, void, glStencilOpSeparate, nullptr,                                                  \
    (GLenum face, GLenum sfail, GLenum dpfail, GLenum dppass))                                     \
  /* Shaders and programs */                                                                       \
  X(OPTIONAL, void, glAttachShader, nullptr, (GLuint program, GLuint shader))                      \
  X(OPTIONAL, void, glBindAttribLocation, nullptr,                                                 \
    (GLuint program, GLuint index, const GLchar* name))                                            \
  X(OPTIONAL, void, glCompileShader, nullptr, (GLuint shader))                                     \
  X(OPTIONAL, GLuint, glCreateProgram, nullptr, ())                                                \
  X(OPTIONAL, GLuint, glCreateShader, nullptr, (GLenum type))                                      \
  X(OPTIONAL, void, glDeleteProgram, nullptr, (GLuint program))                                    \
  X(OPTIONAL, void, glDeleteShader, nullptr, (GLuint shader))                                      \
  X(OPTIONAL, void, glDetachShader, nullptr, (GLuint program, GLuint shader))                      \
  X(OPTIONAL, void, glGetActiveAttrib, nullptr,                                                    \
    (GLuint program, GLuint index, GLsizei bufSize, GLsizei * length, GLint * size, GLenum * type, \
     GLchar * name))                                                                               \
  X(OPTIONAL, void, glGetActiveUniform, nullptr,                                                   \
    (GLuint program, GLuint index, GLsizei bufSize, GLsizei * length, GLint * size, GLenum * type, \
     GLchar * name))                                                                               \
  X(OPTIONAL, void, glGetAttachedShaders, nullptr,                                                 \
    (GLuint program, GLsizei maxCount, GLsizei * count, GLuint * shaders))                         \
  X(OPTIONAL, GLint, glGetAttribLocation, nullptr, (GLuint program, const GLchar* name))           \
  X(OPTIONAL, void, glGetProgramiv, nullptr, (GLuint program, GLenum pname, GLint * params))       \
  X(OPTIONAL, void, glGetProgramInfoLog, nullptr,                                                  \
    (GLuint program, GLsizei bufSize, GLsizei * length, GLchar * infoLog))                         \
  X(OPTIONAL, void, glGetShaderiv, nullptr, (GLuint shader, GLenum pname, GLint * params))         \
  X(OPTIONAL, void, glGetShaderInfoLog, nullptr,                                                   \
    (GLuint shader, GLsizei bufSize, GLsizei * length, GLchar * infoLog))                          \
  X(OPTIONAL, void, glGetUniformfv, nullptr, (GLuint program, GLint location, GLfloat * params))   \
  X(OPTIONAL, void, glGetUniformiv, nullptr, (GLuint program, GLint location, GLint * params))     \
  X(OPTIONAL, GLint, glGetUniformLocation, nullptr, (GLuint program, const GLchar* name))          \
  X(OPTIONAL, GLboolean, glIsProgram, nullptr, (GLuint program))                                   \
  X(OPTIONAL, GLboolean, glIsShader, nullptr, (GLuint shader))                                     \
  X(OPTIONAL, void, glLinkProgram, nullptr, (GLuint program))                                      \
  X(OPTIONAL, void, glShaderSource, nullptr,                                                       \
    (GLuint shader, GLsizei count, const GLchar* const* string, const GLint* length))              \
  X(OPTIONAL, void, glUniform1f, nullptr, (GLint location, GLfloat v0))                            \
  X(OPTIONAL, void, glUniform1fv, nullptr, (GLint location, GLsizei count, const GLfloat* value))  \
  X(OPTIONAL, void, glUniform1i, nullptr, (GLint location, GLint v0))                              \
  X(OPTIONAL, void, glUniform1iv, nullptr, (GLint location, GLsizei count, const GLint* value))    \
  X(OPTIONAL, void, glUniform2f, nullptr, (GLint location, GLfloat v0, GLfloat v1))                \
  X(OPTIONAL, void, glUniform2fv, nullptr, (GLint location, GLsizei count, const GLfloat* value))  \
  X(OPTIONAL, void, glUniform2i, nullptr, (GLint location, GLint v0, GLint v1))                    \
  X(OPTIONAL, void, glUniform2iv, nullptr, (GLint location, GLsizei count, const GLint* value))    \
  X(OPTIONAL, void, glUniform3f, nullptr, (GLint location, GLfloat v0, GLfloat v1, GLfloat v2))    \
  X(OPTIONAL, void, glUniform3fv, nullptr, (GLint location, GLsizei count, const GLfloat* value))  \
  X(OPTIONAL, void, glUniform3i, nullptr, (GLint location, GLint v0, GLint v1, GLint v2))          \
  X(OPTIONAL, void, glUniform3iv, nullptr, (GLint location, GLsizei count, const GLint* value))    \
  X(OPTIONAL, void, glUniform4f, nullptr,                                                          \
    (GLint location, GLfloat v0, GLfloat v1, GLfloat v2, GLfloat v3))                              \
  X(OPTIONAL, void, glUniform4fv, nullptr, (GLint location, GLsizei count, const GLfloat* value))  \
  X(OPTIONAL, void, glUniform4i, nullptr,                                                          \
    (GLint location, GLint v0, GLint v1, GLint v2, GLint v3))                                      \
  X(OPTIONAL, void, glUniform4iv, nullptr, (GLint location, GLsizei count, const GLint* value))    \
  X(OPTIONAL, void, glUniformMatrix2fv, nullptr,                                                   \
    (GLint location, GLsizei count, GLboolean transpose, const GLfloat* value))                    \
  X(OPTIONAL, void, glUniformMatrix3fv, nullptr,                                                   \
    (GLint location, GLsizei count, GLboolean transpose, const GLfloat* value))                    \
  X(OPTIONAL, void, glUniformMatrix4fv, nullptr,                                                   \
    (GLint location, GLsizei count, GLboolean transpose, const GLfloat* value))                    \
  X(OPTIONAL, void, glUseProgram, nullptr, (GLuint program))                                       \
  X(OPTIONAL, void, glValidateProgram, nullptr, (GLuint program))                                  \
  /* Generic vertex attributes */                                                                  \
  X(OPTIONAL, void, glDisableVertexAttribArray, "glDisableVertexAttribArrayARB", (GLuint index))   \
  X(OPTIONAL, void, glEnableVertexAttribArray, "glEnableVertexAttribArrayARB", (GLuint index))     \
  X(OPTIONAL, void, glGetVertexAttribfv, "glGetVertexAttribfvARB",                                 \
    (GLuint index, GLenum pname, GLfloat * params))                                                \
  X(OPTIONAL, void, glGetVertexAttribiv, "glGetVertexAttribivARB",                                 \
    (GLuint index, GLenum pname, GLint * params))                                                  \
  X(OPTIONAL, void, glVertexAttrib1f, "glVertexAttrib1fARB", (GLuint index, GLfloat x))            \
  X(OPTIONAL, void, glVertexAttrib1fv, "glVertexAttrib1fvARB", (GLuint index, const GLfloat* v))   \
  X(OPTIONAL, void, glVertexAttrib2f, "glVertexAttrib2fARB", (GLuint index, GLfloat x, GLfloat y)) \
  X(OPTIONAL, void, glVertexAttrib2fv, "glVertexAttrib2fvARB", (GLuint index, const GLfloat* v))   \
  X(OPTIONAL, void, glVertexAttrib3f, "glVertexAttrib3fARB",                                       \
    (GLuint index, GLfloat x, GLfloat y, GLfloat z))                                               \
  X(OPTIONAL, void, glVertexAttrib3fv, "glVertexAttrib3fvARB", (GLuint index, const GLfloat* v))   \
  X(OPTIONAL, void, glVertexAttrib4f, "glVertexAttrib4fARB",                                       \
    (GLuint index, GLfloat x, GLfloat y, GLfloat z, GLfloat w))                                    \
  X(OPTIONAL, void, glVertexAttrib4fv, "glVertexAttrib4fvARB", (GLuint index, const GLfloat* v))   \
  X(OPTIONAL, void, glVertexAttribPointer, "glVertexAttribPointerARB",                             \
    (GLuint index, GLint size, GLenum type, GLboolean normalized, GLsizei stride,                  \
     const GLvoid* pointer))                                                                       \
  /* Framebuffer objects: the EXT forms accept names that were never generated, as ES does. */     \
  X(OPTIONAL, void, glBindFramebufferEXT, "glBindFramebuffer",                                     \
    (GLenum target, GLuint framebuffer))                                                           \
  X(OPTIONAL, void, glBindRenderbufferEXT, "glBindRenderbuffer",                                   \
    (GLenum target, GLuint renderbuffer))                                                          \
  X(OPTIONAL, GLenum, glCheckFramebufferStatusEXT, "glCheckFramebufferStatus", (GLenum target))    \
  X(OPTIONAL, void, glDeleteFramebuffersEXT, "glDeleteFramebuffers",                               \
    (GLsizei n, const GLuint* framebuffers))                                                       \
  X(OPTIONAL, void, glDeleteRenderbuffersEXT, "glDeleteRenderbuffers",                             \
    (GLsizei n, const GLuint* renderbuffers))                                                      \
  X(OPTIONAL, void, glFramebufferRenderbufferEXT, "glFramebufferRenderbuffer",                     \
    (GLenum target, GLenum attachment, GLenum renderbuffertarget, GLuint renderbuffer))            \
  X(OPTIONAL, void, glFramebufferTexture2DEXT, "glFramebufferTexture2D",                           \
    (GLenum target, GLenum attachment, GLenum textarget, GLuint texture, GLint level))             \
  X(OPTIONAL, void, glGenFramebuffersEXT, "glGenFramebuffers", (GLsizei n, GLuint * framebuffers)) \
  X(OPTIONAL, void, glGenRenderbuffersEXT, "glGenRenderbuffers",                                   \
    (GLsizei n, GLuint * renderbuffers))                                                           \
  X(OPTIONAL, void, glGenerateMipmapEXT, "glGenerateMipmap", (GLenum target))                      \
  X(OPTIONAL, void, glGetFramebufferAttachmentParameterivEXT,                                      \
    "glGetFramebufferAttachmentParameteriv",                                                       \
    (GLenum target, GLenum attachment, GLenum pname, GLint * params))                              \
  X(OPTIONAL, void, glGetRenderbufferParameterivEXT, "glGetRenderbufferParameteriv",               \
    (GLenum target, GLenum pname, GLint * params))                                                 \
  X(OPTIONAL, GLboolean, glIsFramebufferEXT, "glIsFramebuffer", (GLuint framebuffer))              \
  X(OPTIONAL, GLboolean, glIsRenderbufferEXT, "glIsRenderbuffer", (GLuint renderbuffer))           \
  X(OPTIONAL, void, glRenderbufferStorageEXT, "glRenderbufferStorage",                             \
    (GLenum target, GLenum internalformat, GLsizei width, GLsizei height))

#endif  // VARNEL_GLES_DRIVER_DRIVER_FUNCTIONS_H
