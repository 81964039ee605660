#include "engine/geometry/vertex_array.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <utility>

#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

constexpr int LARGEST_VERTEX_COUNT = 65535;

// Truncates towards zero; what no int holds becomes the nearest one, and a NaN 0. It is all
// selects, so that loops over it become vector code.
std::int32_t truncate(double value) {
  constexpr double most = std::numeric_limits<std::int32_t>::max();
  constexpr double least = std::numeric_limits<std::int32_t>::min();
  const double number = value == value ? value : 0.0;
  const double below = number < most ? number : most;
  return static_cast<std::int32_t>(below > least ? below : least);
}

// The low bits of a value.
unsigned char lowByte(std::int64_t value) {
  return static_cast<unsigned char>(value & 0xFF);
}

short lowShort(std::int64_t value) {
  return static_cast<short>(static_cast<std::uint16_t>(value & 0xFFFF));
}

unsigned char clampedByte(std::int64_t value) {
  return value < 0 ? 0 : value > 255 ? 255 : static_cast<unsigned char>(value);
}

// Components that are blended at a time.
constexpr std::size_t BLEND_BLOCK = 256;

// One blend: base plus the weighted differences of the targets, component by component. `values`
// gives the components of a target by its number; `store` brings the sum back into the range of the
// result, which is none of the arrays read.
template <class Sum, class Component, class Values, class Stored, class Store>
void blend(const Component* base, Values values, int targetCount, const float* weights,
           std::size_t total, Stored* result, Store store) {
  std::int32_t start[BLEND_BLOCK];
  Sum sums[BLEND_BLOCK];
  for (std::size_t first = 0; first < total; first += BLEND_BLOCK) {
    const std::size_t count = std::min(BLEND_BLOCK, total - first);
    for (std::size_t i = 0; i < count; ++i) {
      start[i] = base[first + i];
      sums[i] = static_cast<Sum>(start[i]);
    }
    for (int k = 0; k < targetCount; ++k) {
      const Component* const target = values(k) + first;
      const double weight = static_cast<double>(weights[k]);
      for (std::size_t i = 0; i < count; ++i) {
        sums[i] += static_cast<Sum>(truncate((target[i] - start[i]) * weight));
      }
    }
    for (std::size_t i = 0; i < count; ++i) {
      result[first + i] = store(sums[i]);
    }
  }
}

}  // namespace

bool VertexArray::widenByteArrays = false;

boost::shared_ptr<VertexArray> VertexArray::create(int numVertices, int numComponents,
                                                   int componentSize) {
  const boost::shared_ptr<VertexArray> array(new VertexArray);
  array->initialise(numVertices, numComponents, componentSize);
  return array;
}

VertexArray::VertexArray() = default;

VertexArray::~VertexArray() = default;

void VertexArray::initialise(int numVertices, int numComponents, int newComponentSize) {
  reset();
  allocate(numVertices, numComponents, newComponentSize);
}

void VertexArray::allocate(int numVertices, int numComponents, int newComponentSize) {
  if (newComponentSize < 1 || newComponentSize > 2) {
    throw std::invalid_argument("invalid componentSize argument");
  }
  if (numComponents < 2 || numComponents > 4) {
    throw std::invalid_argument("invalid numComponents argument");
  }
  if (numVertices < 1 || numVertices > LARGEST_VERTEX_COUNT) {
    throw std::invalid_argument("invalid numVertices argument");
  }
  const std::size_t stored = newComponentSize == 1 && widenByteArrays ? 2 : newComponentSize;
  const std::size_t size =
      static_cast<std::size_t>(numVertices) * static_cast<std::size_t>(numComponents) * stored;
  std::unique_ptr<unsigned char[]> block(new (std::nothrow) unsigned char[size]());
  if (!block) {
    throw std::invalid_argument("invalid numVertices argument");
  }
  vertexCount = numVertices;
  componentCount = numComponents;
  componentSize = newComponentSize;
  bytes = std::move(block);
  byteCount = size;
  rgbaCopy_.reset();
  widened = false;
  noteWrite();
}

void VertexArray::dump() {
  Object3D::dump();
  log("VertexArray Object");
  log("==================");
  logf("ComponentSize:  %u", static_cast<unsigned>(componentSize));
  logf("ComponentCount: %u", static_cast<unsigned>(componentCount));
  logf("VertexCount:    %u", static_cast<unsigned>(vertexCount));
}

boost::shared_ptr<Object3D> VertexArray::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create(vertexCount, componentCount, componentSize);
  }
  Object3D::duplicateImpl(target);
  copyInto(boost::dynamic_pointer_cast<VertexArray>(target));
  return target;
}

void VertexArray::set(int firstVertex, int numVertices, const short* values) {
  if (values == nullptr) {
    throw std::invalid_argument("values array is null");
  }
  if (componentSize != 2) {
    throw std::logic_error(" this is not a 16-bit VertexArray");
  }
  checkRange(firstVertex, numVertices);
  const std::size_t width = static_cast<std::size_t>(componentCount);
  std::memcpy(shorts() + static_cast<std::size_t>(firstVertex) * width, values,
              static_cast<std::size_t>(numVertices) * width * sizeof(short));
  noteWrite();
}

void VertexArray::set(int firstVertex, int numVertices, const signed char* values) {
  if (values == nullptr) {
    throw std::invalid_argument("values array is null");
  }
  if (componentSize != 1 && !widenByteArrays) {
    throw std::logic_error(" this is not an 8-bit VertexArray");
  }
  checkRange(firstVertex, numVertices);
  const std::size_t width = static_cast<std::size_t>(componentCount);
  const std::size_t first = static_cast<std::size_t>(firstVertex) * width;
  const std::size_t count = static_cast<std::size_t>(numVertices) * width;
  if (widenByteArrays) {
    for (std::size_t i = 0; i < count; ++i) {
      shorts()[first + i] = values[i];
    }
  } else {
    std::memcpy(bytes.get() + first, values, count);
  }
  widened = false;
  noteWrite();
}

void VertexArray::get(int firstVertex, int numVertices, short* values) const {
  if (values == nullptr) {
    throw std::invalid_argument("values array is null");
  }
  if (componentSize != 2) {
    throw std::logic_error(" this is not an 8-bit VertexArray");
  }
  checkRange(firstVertex, numVertices);
  const std::size_t width = static_cast<std::size_t>(componentCount);
  std::memcpy(values, shortData() + static_cast<std::size_t>(firstVertex) * width,
              static_cast<std::size_t>(numVertices) * width * sizeof(short));
}

void VertexArray::get(int firstVertex, int numVertices, signed char* values) const {
  if (values == nullptr) {
    throw std::invalid_argument("values array is null");
  }
  if (componentSize != 1 && !widenByteArrays) {
    throw std::logic_error(" this is not an 8-bit VertexArray");
  }
  checkRange(firstVertex, numVertices);
  const std::size_t width = static_cast<std::size_t>(componentCount);
  const std::size_t first = static_cast<std::size_t>(firstVertex) * width;
  const std::size_t count = static_cast<std::size_t>(numVertices) * width;
  if (widenByteArrays) {
    for (std::size_t i = 0; i < count; ++i) {
      values[i] = static_cast<signed char>(lowByte(shortData()[first + i]));
    }
  } else {
    std::memcpy(values, bytes.get() + first, count);
  }
}

std::unique_ptr<float[]> VertexArray::getVertex(int index) const {
  std::unique_ptr<float[]> vertex(new float[static_cast<std::size_t>(componentCount)]);
  readVertex(index, vertex.get());
  return vertex;
}

void VertexArray::readVertex(int index, float* out) const {
  if (index < 0 || index >= vertexCount) {
    throw std::out_of_range("Invalid vertex index");
  }
  const std::size_t first =
      static_cast<std::size_t>(index) * static_cast<std::size_t>(componentCount);
  for (int i = 0; i < componentCount; ++i) {
    const std::size_t component = first + static_cast<std::size_t>(i);
    out[i] =
        componentSize == 1 && !widenByteArrays ? byteData()[component] : shortData()[component];
  }
}

void VertexArray::widenTo16Bit() {
  if (widened) {
    return;
  }
  const std::size_t total = componentTotal();
  std::unique_ptr<unsigned char[]> block(new unsigned char[total * sizeof(short)]());
  for (std::size_t i = 0; i < total; ++i) {
    const short value = bytes[i];
    std::memcpy(block.get() + i * sizeof(short), &value, sizeof value);
  }
  bytes = std::move(block);
  byteCount = total * sizeof(short);
  widened = true;
}

void VertexArray::expandToRgba() {
  constexpr std::size_t RECORD = 3;
  const std::size_t count = static_cast<std::size_t>(vertexCount);
  if (byteCount < count * RECORD) {
    rgbaCopy_.reset();
    return;
  }
  if (!rgbaCopy_) {
    rgbaCopy_.reset(new unsigned char[count * 4]);
  }
  for (std::size_t i = 0; i < count; ++i) {
    std::memcpy(&rgbaCopy_[i * 4], &bytes[i * RECORD], RECORD);
    rgbaCopy_[i * 4 + 3] = 255;
  }
}

boost::shared_ptr<VertexArray> VertexArray::copyInto(boost::shared_ptr<VertexArray> target) const {
  if (!target || !hasShapeOf(*target)) {
    target = create(vertexCount, componentCount, componentSize);
  }
  target->copyValuesFrom(*this);
  return target;
}

void VertexArray::scaleAlphaFrom(const VertexArray& source, float factor) {
  constexpr std::size_t RECORD = 4;
  if (componentCount != 4 || source.componentCount != 4) {
    return;
  }
  const int count = vertexCount < source.vertexCount ? vertexCount : source.vertexCount;
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    const std::size_t alpha = i * RECORD + 3;
    bytes[alpha] =
        lowByte(truncate(static_cast<double>(source.bytes[alpha]) * static_cast<double>(factor)));
  }
  noteWrite();
}

bool VertexArray::morph(const VertexArray& base, int targetCount, VertexArray* const* targets,
                        const float* weights, bool signedBytes,
                        boost::shared_ptr<VertexArray>& result) {
  if (targets == nullptr || targetCount < 0 || (weights == nullptr && targetCount > 0)) {
    return false;
  }
  const std::size_t total = base.componentTotal();
  bool resultIsInput = result.get() == &base;
  for (int k = 0; k < targetCount; ++k) {
    VertexArray* const target = targets[k];
    if (target == nullptr || target->componentTotal() != total) {
      return false;
    }
    resultIsInput = resultIsInput || result.get() == target;
  }
  const bool asShorts = base.holdsShorts();
  for (int k = 0; k < targetCount; ++k) {
    if (base.widened) {
      targets[k]->widenTo16Bit();
    } else if (targets[k]->holdsShorts() != asShorts) {
      return false;
    }
  }
  if (!result || resultIsInput || !base.hasShapeOf(*result) || result->holdsShorts() != asShorts) {
    result = create(base.vertexCount, base.componentCount, base.componentSize);
    if (base.widened) {
      result->widenTo16Bit();
    }
  }
  // Where only the low bits are kept the sums may wrap.
  using Wrapping = std::uint32_t;
  if (asShorts) {
    const auto values = [targets](int k) { return targets[k]->shortData(); };
    blend<Wrapping>(base.shortData(), values, targetCount, weights, total, result->shorts(),
                    lowShort);
  } else if (signedBytes) {
    const auto values = [targets](int k) { return targets[k]->byteData(); };
    blend<Wrapping>(base.byteData(), values, targetCount, weights, total, result->bytes.get(),
                    lowByte);
  } else {
    const auto values = [targets](int k) -> const unsigned char* {
      return targets[k]->bytes.get();
    };
    const unsigned char* const start = base.bytes.get();
    blend<std::int64_t>(start, values, targetCount, weights, total, result->bytes.get(),
                        clampedByte);
  }
  result->noteWrite();
  return true;
}

void VertexArray::printValues() const {
  if (componentSize == 1 && !widenByteArrays) {
    std::printf("For this VertexArray, componentSize=1 not handled\n");
    return;
  }
  const short* value = shortData();
  for (int vertex = 0; vertex < vertexCount; ++vertex) {
    for (int i = 0; i < componentCount; ++i) {
      std::printf(i == 0 ? "%d" : " %d", *value);
      ++value;
    }
    std::printf("\n");
  }
}

const signed char* VertexArray::byteData() const {
  return reinterpret_cast<const signed char*>(bytes.get());
}

// The block comes from array new, which aligns it for any type.
const short* VertexArray::shortData() const {
  return reinterpret_cast<const short*>(bytes.get());
}

short* VertexArray::shorts() {
  return reinterpret_cast<short*>(bytes.get());
}

bool VertexArray::holdsShorts() const {
  return componentSize == 2 || widened;
}

std::size_t VertexArray::componentTotal() const {
  return static_cast<std::size_t>(vertexCount) * static_cast<std::size_t>(componentCount);
}

bool VertexArray::hasShapeOf(const VertexArray& other) const {
  return componentCount == other.componentCount && vertexCount == other.vertexCount &&
         componentSize == other.componentSize;
}

void VertexArray::checkRange(int firstVertex, int numVertices) const {
  if (numVertices < 0) {
    throw std::invalid_argument("negative number of vertices to be set");
  }
  if (firstVertex < 0) {
    throw std::out_of_range("negative index for first vertex");
  }
  if (static_cast<std::int64_t>(firstVertex) + numVertices > vertexCount) {
    throw std::out_of_range("Index out of range on values[firstVertex + numComponents");
  }
}

void VertexArray::copyValuesFrom(const VertexArray& source) {
  if (&source == this) {
    return;
  }
  if (byteCount != source.byteCount) {
    bytes.reset(new unsigned char[source.byteCount]);
    byteCount = source.byteCount;
  }
  std::memcpy(bytes.get(), source.bytes.get(), byteCount);
  widened = source.widened;
  noteWrite();
}

}  // namespace varnel_m3g
