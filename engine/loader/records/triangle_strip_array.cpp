// TriangleStripArray, after the Object3D section:
//   Byte encoding
//   0: Int32 startIndex; 1: Byte startIndex; 2: unsigned 16-bit startIndex
//   128: IntArray indices; 129: ByteArray indices; 130: ShortArray indices, both unsigned
//   IntArray stripLengths

#include "engine/geometry/triangle_strip_array.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {
namespace {

/// The values as Unsigned ones; null for null.
template <class Unsigned, class Element>
std::unique_ptr<int[]> widened(const Element* values, unsigned count) {
  if (values == nullptr) {
    return nullptr;
  }
  std::unique_ptr<int[]> wide(new int[count]);
  std::transform(values, values + count, wide.get(),
                 [](Element value) { return static_cast<Unsigned>(value); });
  return wide;
}

}  // namespace

void TriangleStripArray::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  int startIndex = 0;
  std::unique_ptr<int[]> indices;
  unsigned indexCount = 0;
  switch (stream.readByte()) {
    case 0:
      startIndex = stream.readInt32();
      break;
    case 1:
      startIndex = stream.readByte();
      break;
    case 2:
      startIndex = static_cast<unsigned short>(stream.readInt16());
      break;
    case 128:
      indices = stream.readIntArray(indexCount);
      break;
    case 129: {
      const std::unique_ptr<unsigned char[]> bytes = stream.readByteArray(indexCount);
      indices = widened<unsigned char>(bytes.get(), indexCount);
      break;
    }
    case 130: {
      const std::unique_ptr<short[]> shorts = stream.readShortArray(indexCount);
      indices = widened<unsigned short>(shorts.get(), indexCount);
      break;
    }
    default:
      throw std::runtime_error("m3g.TriangleStripArray.load() --  invalid encoding");
  }
  unsigned lengthCount = 0;
  const std::unique_ptr<int[]> lengths = stream.readIntArray(lengthCount);
  build(startIndex, indices.get(), static_cast<int>(indexCount), lengths.get(),
        static_cast<int>(lengthCount));
}

}  // namespace varnel_m3g
