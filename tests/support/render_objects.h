#ifndef VARNEL_TESTS_SUPPORT_RENDER_OBJECTS_H
#define VARNEL_TESTS_SUPPORT_RENDER_OBJECTS_H

#include <boost/shared_ptr.hpp>
#include <initializer_list>
#include <vector>

#include "engine/geometry/triangle_strip_array.h"
#include "engine/geometry/vertex_array.h"
#include "engine/geometry/vertex_buffer.h"
#include "engine/scene/camera.h"
#include "engine/scene/group.h"
#include "engine/scene/light.h"
#include "engine/scene/mesh.h"
#include "engine/scene/world.h"
#include "engine/surface/appearance.h"
#include "engine/surface/background.h"
#include "engine/surface/compositing_mode.h"
#include "engine/surface/fog.h"
#include "engine/surface/image2d.h"
#include "engine/surface/material.h"
#include "engine/surface/polygon_mode.h"
#include "engine/surface/texture2d.h"

// Small objects to draw.

using ShortArray = std::vector<short>;
using ByteArray = std::vector<int>;  // 0 to 255 or -128 to 127

/// An array of shorts or of bytes with this many components a vertex.
boost::shared_ptr<varnel_m3g::VertexArray> shortArray(int components, const ShortArray& values);
boost::shared_ptr<varnel_m3g::VertexArray> byteArray(int components, const ByteArray& values);

/// The corners (-1, -1), (1, -1), (-1, 1), (1, 1) at z = 0, to be drawn as the strip 0, 1, 2, 3
/// with its front towards +z.
boost::shared_ptr<varnel_m3g::VertexBuffer> unitQuad();
/// The strip 0, 1, 2, 3 without an index list, and with one.
boost::shared_ptr<varnel_m3g::IndexBuffer> quadStrip();
boost::shared_ptr<varnel_m3g::IndexBuffer> indexedStrip(const std::vector<int>& indices);

/// An appearance with this many units and nothing set.
boost::shared_ptr<varnel_m3g::Appearance> plainAppearance();
/// A quad with this appearance.
boost::shared_ptr<varnel_m3g::Mesh> quadMesh(
    const boost::shared_ptr<varnel_m3g::Appearance>& appearance);
/// An immutable image from bytes in its format.
boost::shared_ptr<varnel_m3g::Image2D> imageOf(int format, int width, int height,
                                               const std::vector<unsigned char>& pixels);
/// A world with a camera of identity projection, which is active.
boost::shared_ptr<varnel_m3g::World> worldWithCamera();

#endif
