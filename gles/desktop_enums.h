#ifndef VARNEL_GLES_DESKTOP_ENUMS_H
#define VARNEL_GLES_DESKTOP_ENUMS_H

namespace gles::desktop {

// Names of desktop OpenGL that the OpenGL ES headers lack, without their GL_ prefix.
constexpr unsigned ALL_ATTRIB_BITS = 0x000FFFFF;
constexpr unsigned CLIENT_ALL_ATTRIB_BITS = 0xFFFFFFFF;
constexpr unsigned MAX_TEXTURE_STACK_DEPTH = 0x0D39;
constexpr unsigned RGB5 = 0x8050;
constexpr unsigned BGR = 0x80E0;
constexpr unsigned BGRA = 0x80E1;
constexpr unsigned UNSIGNED_INT_8_8_8_8_REV = 0x8367;
constexpr unsigned POINT_SPRITE = 0x8861;
constexpr unsigned VERTEX_PROGRAM_POINT_SIZE = 0x8642;
constexpr unsigned MAX_VERTEX_UNIFORM_COMPONENTS = 0x8B4A;
constexpr unsigned MAX_FRAGMENT_UNIFORM_COMPONENTS = 0x8B49;
constexpr unsigned MAX_VARYING_FLOATS = 0x8B4B;
constexpr unsigned CURRENT_PROGRAM = 0x8B8D;
constexpr unsigned FRAMEBUFFER = 0x8D40;
constexpr unsigned FRAMEBUFFER_BINDING = 0x8CA6;

}  // namespace gles::desktop

#endif  // VARNEL_GLES_DESKTOP_ENUMS_H
