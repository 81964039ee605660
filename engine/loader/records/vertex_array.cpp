// VertexArray, after the Object3D section:
//   Byte componentSize, Byte componentCount, Byte encoding, unsigned 16-bit vertexCount
//   vertexCount * componentCount values of componentSize bytes; with encoding 1 all but the first
//   vertex as differences from the vertex before

#include "engine/geometry/vertex_array.h"

#include <stdexcept>
#include <vector>

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {
namespace {

/// Sums up differences in place, with wrap-around.
template <class Value>
void sumDifferences(std::vector<Value>& values, std::size_t components) {
  for (std::size_t i = components; i < values.size(); ++i) {
    values[i] = static_cast<Value>(values[i] + values[i - components]);
  }
}

}  // namespace

void VertexArray::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  const int newComponentSize = stream.readByte();
  const int newComponentCount = stream.readByte();
  const int encoding = stream.readByte();
  const int newVertexCount = static_cast<unsigned short>(stream.readInt16());
  try {
    allocate(newVertexCount, newComponentCount, newComponentSize);
    if (encoding != 0 && encoding != 1) {
      throw std::runtime_error("m3g.VertexArray.load() Illegal encoding encountered");
    }
    const std::size_t components = static_cast<std::size_t>(newComponentCount);
    const std::size_t count = static_cast<std::size_t>(newVertexCount) * components;
    if (newComponentSize == 1) {
      std::vector<signed char> values(count);
      const std::int64_t wanted = static_cast<std::int64_t>(values.size());
      const std::int64_t obtained = stream.read(values.data(), wanted);
      if (encoding == 0 && obtained < wanted) {
        throw std::runtime_error("m3g.VertexArray.load() length mismatch when reading vertices");
      }
      if (encoding == 1) {
        // Differences go on in the file where an inflated section ends, as 16-bit values do: heads
        // without values would else yield one large array after the other.
        stream.read(values.data() + obtained, wanted - obtained);
        sumDifferences(values, components);
      }
      set(0, newVertexCount, values.data());
    } else {
      std::vector<short> values(count);
      stream.readInt16s(values.data(), values.size());
      if (encoding == 1) {
        sumDifferences(values, components);
      }
      set(0, newVertexCount, values.data());
    }
  } catch (const std::logic_error& error) {
    throw std::runtime_error(error.what());
  }
}

}  // namespace varnel_m3g
