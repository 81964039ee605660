#ifndef VARNEL_EGL_BACKEND_CONFIG_TABLE_H
#define VARNEL_EGL_BACKEND_CONFIG_TABLE_H

#include <EGL/egl.h>

#include <array>

/// One of the back end's configurations: twelve 32-bit integers. Its address is its handle.
struct EgwConfig {
  EGLint id;
  EGLint surfaceBits;  ///< bits of EGL_SURFACE_TYPE; each row has one
  EGLint sampleBuffers;
  EGLint samples;
  EGLint red, green, blue, alpha;
  EGLint depth, stencil;
  EGLint bindRgb, bindRgba;
};

using EgwConfigTable = std::array<EgwConfig, 10>;

/// The rows as they are before any exception for a vendor.
EgwConfigTable defaultConfigTable();

/// True for the adapters whose pbuffers need the vendor's exception: those whose description begins
/// with "Intel". Null is allowed.
bool needsIntelException(const char* adapterName);
/// Rows 0, 1 and 4 become 5-6-5 without alpha, depth and stencil; row 1 binds as RGB.
void applyIntelException(EgwConfigTable& table);

/// Answer of eglGetConfigAttrib for a row; 0 for what the table does not know.
EGLint configAttribute(const EgwConfig& row, EGLint attribute);

/// Number of the matching rows, whose indexes go to `matches` in the table's order; -1 if the list
/// holds an attribute that is refused. A null list asks for window configurations.
int matchConfigs(const EgwConfigTable& table, const EGLint* attributes, int (&matches)[10]);

#endif
