#ifndef VARNEL_GLES_FUNCTION_TABLE_H
#define VARNEL_GLES_FUNCTION_TABLE_H

/// What an EGL layer needs of one OpenGL ES path, filled once by `fillEs1FunctionTable` or
/// `fillEs2FunctionTable`. The entries act on the path's current context state; those that draw,
/// read or query need a current OpenGL context as well.
struct GlFunctionTable {
  void (*noOperation)();
  /// Makes the state record of one EGL context; null when memory is short. Owned by the caller, who
  /// gives it back to `destroyContextState`.
  void* (*createContextState)();
  /// Frees a state record and all that hangs on it; a record that is current stops being so. Null
  /// is allowed. No OpenGL context needs to be current.
  void (*destroyContextState)(void* state);
  /// Makes `state` the path's current one; null for none.
  void (*setCurrentContextState)(void* state);
  /// Writes a block of pixels over the whole viewport, its first row at the top, and leaves the
  /// OpenGL state as it was. `alignment` is the rows' alignment in bytes.
  void (*drawPixelRectangle)(int width, int height, unsigned format, unsigned type, int alignment,
                             const void* pixels);
  /// The pack alignment of the current state; 4 when there is none.
  int (*getPackAlignment)();
  void (*glFinish)();
  void (*glPixelStorei)(unsigned name, int value);
  void (*glReadPixels)(int x, int y, int width, int height, unsigned format, unsigned type,
                       void* pixels);
  void (*glGetIntegerv)(unsigned name, int* values);
  void (*glBindTexture)(unsigned target, unsigned texture);
  void (*glGetTexLevelParameteriv)(unsigned target, int level, unsigned name, int* values);
  void (*glGetTexImage)(unsigned target, int level, unsigned format, unsigned type, void* pixels);
};

/// Fills the table of the OpenGL ES 1.1 path. `intelException` tells that the display adapter is
/// one whose pixel formats needed the vendor's exception.
void fillEs1FunctionTable(GlFunctionTable* table, bool intelException);

/// Fills the table of the OpenGL ES 2.0 path.
void fillEs2FunctionTable(GlFunctionTable* table);

/// Registers what both paths' `glFinish` call after the driver's own when something was drawn since
/// the last one: it copies the current off-screen surface back to where its owner wants it. Null
/// (as at the start) for nothing.
void setCopyBackHook(void (*hook)());

/// Calls the registered hook, if any.
void runCopyBackHook();

#endif  // VARNEL_GLES_FUNCTION_TABLE_H
