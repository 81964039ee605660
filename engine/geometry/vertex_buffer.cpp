#include "engine/geometry/vertex_buffer.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <cstddef>
#include <cstdio>
#include <stdexcept>

#include "engine/geometry/vertex_array.h"
#include "engine/object/engine_limits.h"
#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

// Largest number of components of an array.
constexpr int LARGEST_COMPONENT_COUNT = 4;

void storeBias(std::unique_ptr<float[]>& to, const float* bias) {
  if (bias != nullptr) {
    if (!to) {
      to.reset(new float[3]);
    }
    std::copy_n(bias, 3, to.get());
  }
}

void reportScaleBias(float* scaleBias, float scale, const float* bias) {
  if (scaleBias != nullptr) {
    scaleBias[0] = scale;
    for (int i = 0; i < 3; ++i) {
      scaleBias[i + 1] = bias != nullptr ? bias[i] : 0.0f;
    }
  }
}

// Decodes the components of one vertex in place.
void applyScaleBias(float* vertex, int componentCount, float scale, const float* bias) {
  for (int i = 0; i < componentCount; ++i) {
    vertex[i] = static_cast<float>(static_cast<double>(vertex[i]) * static_cast<double>(scale));
  }
  if (bias != nullptr) {
    for (int i = 0; i < std::min(componentCount, 3); ++i) {
      vertex[i] = static_cast<float>(static_cast<double>(vertex[i]) + static_cast<double>(bias[i]));
    }
  }
}

std::unique_ptr<float[]> newVertex() {
  return std::unique_ptr<float[]>(new float[LARGEST_COMPONENT_COUNT]());
}

unsigned idOf(const boost::shared_ptr<VertexArray>& array) {
  return array ? static_cast<unsigned>(array->getUserID()) : 0U;
}

double biasElement(const float* bias, int i) {
  return bias != nullptr ? static_cast<double>(bias[i]) : 0.0;
}

}  // namespace

boost::shared_ptr<VertexBuffer> VertexBuffer::create() {
  const boost::shared_ptr<VertexBuffer> buffer(new VertexBuffer);
  buffer->initialise();
  return buffer;
}

VertexBuffer::VertexBuffer() = default;

VertexBuffer::~VertexBuffer() = default;

void VertexBuffer::initialise() {
  reset();
  std::fill(defaultColor, defaultColor + 4, static_cast<unsigned char>(255));
  tablesExist = false;
  texCoordArrays.clear();
  positionScale = 1.0f;
  positionBias.reset();
  texCoordScales.clear();
  texCoordBiases.clear();
  colors.reset();
  workingColors.reset();
  normals.reset();
  positions.reset();
  cachedAlphaFactor = -1.0f;
  dirty = true;
}

unsigned VertexBuffer::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = Object3D::getReferences(references, max);
  const auto report = [&](const boost::shared_ptr<VertexArray>& array) {
    if (!array) {
      return;
    }
    if (references != nullptr) {
      if (count >= max) {
        throw std::invalid_argument("VertexBuffer::getReferences maxReferences too small");
      }
      references[count] = array;
    }
    ++count;
  };
  for (int unit = 0; unit < entryCount(); ++unit) {
    report(texCoordArray(unit));
  }
  report(colors);
  report(normals);
  report(positions);
  return count;
}

void VertexBuffer::dump() {
  Object3D::dump();
  log("VertexBuffer Object");
  log("===================");
  logf("DefaultColor:  (0x%2X, 0x%2X, 0x%2X, 0x%2X)", static_cast<unsigned>(defaultColor[0]),
       static_cast<unsigned>(defaultColor[1]), static_cast<unsigned>(defaultColor[2]),
       static_cast<unsigned>(defaultColor[3]));
  const float* const bias = positionBias.get();
  logf("Positions ID: %u", idOf(positions));
  logf("PotitionBias: [%8.4f %8.4f %8.4f]", biasElement(bias, 0), biasElement(bias, 1),
       biasElement(bias, 2));
  logf("PositionScale: %8.4f", static_cast<double>(positionScale));
  if (normals) {
    logf("Normals ID: %u", idOf(normals));
  }
  if (colors) {
    logf("Colors  ID: %u", idOf(colors));
  }
  for (int unit = 0; unit < entryCount(); ++unit) {
    if (texCoordArray(unit)) {
      const float* const unitBias = texCoordBias(unit);
      logf("Texture %u", static_cast<unsigned>(unit));
      logf("\tTexCoords ID: %u", idOf(texCoordArray(unit)));
      logf("\tTexCoordBias: [%8.4f %8.4f %8.4f]", biasElement(unitBias, 0),
           biasElement(unitBias, 1), biasElement(unitBias, 2));
      logf("\tTexCoordScale: %8.4f", static_cast<double>(texCoordScale(unit)));
    }
  }
}

boost::shared_ptr<Object3D> VertexBuffer::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target = create();
  }
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<VertexBuffer> copy = boost::dynamic_pointer_cast<VertexBuffer>(target);
  copy->setColors(colors);
  copy->setDefaultColor(getDefaultColor());
  copy->setNormals(normals);
  copy->setPositions(positions, positionScale, positionBias.get());
  for (int unit = 0; unit < entryCount(); ++unit) {
    if (texCoordArray(unit)) {
      copy->setTexCoords(unit, texCoordArray(unit), texCoordScale(unit), texCoordBias(unit));
    }
  }
  return target;
}

void VertexBuffer::setPositions(const boost::shared_ptr<VertexArray>& newPositions, float scale,
                                const float* bias) {
  if (newPositions) {
    if (newPositions->getComponentCount() != 3) {
      throw std::invalid_argument("input vertex array must have 3 components");
    }
    if (!fits(*newPositions)) {
      throw std::invalid_argument("input vertex array length doesn't match existing vertexCount");
    }
    positionScale = scale;
    storeBias(positionBias, bias);
  }
  positions = newPositions;
  dirty = true;
}

void VertexBuffer::setTexCoords(int index, const boost::shared_ptr<VertexArray>& texCoords,
                                float scale, const float* bias) {
  provideTexCoordTables();
  if (index < 0 || index >= maxTextureUnits) {
    throw std::invalid_argument(
        "VertexBuffer.setTexCoords() -- Texture unit index exceeds system limits");
  }
  const std::size_t unit = static_cast<std::size_t>(index);
  if (texCoords) {
    if (texCoords->getComponentType() < 1 || texCoords->getComponentType() > 2) {
      throw std::invalid_argument(
          "VertexBuffer.setTexCoords() -- input texture coord array has incorrect component size");
    }
    if (texCoords->getComponentCount() < 2 || texCoords->getComponentCount() > 3) {
      throw std::invalid_argument(
          "VertexBuffer.setTexCoords() -- input texture coord array must have 2 or 3 components");
    }
    if (!fits(*texCoords)) {
      throw std::invalid_argument(
          "VertexBuffer.setTexCoords() -- input texture coord array length doesn't match existing "
          "vertexCount");
    }
    texCoordScales[unit] = scale;
    storeBias(texCoordBiases[unit], bias);
  }
  texCoordArrays[unit] = texCoords;
  dirty = true;
}

void VertexBuffer::setNormals(const boost::shared_ptr<VertexArray>& newNormals) {
  if (newNormals) {
    if (newNormals->getComponentCount() != 3) {
      throw std::invalid_argument("normals array component size incorrect");
    }
    if (!fits(*newNormals)) {
      throw std::invalid_argument("normals array size doesn't match vertex array");
    }
  }
  normals = newNormals;
  dirty = true;
}

void VertexBuffer::setColors(const boost::shared_ptr<VertexArray>& newColors) {
  if (!newColors) {
    colors.reset();
    dirty = true;
    return;
  }
  const int componentCount = newColors->getComponentCount();
  if (newColors->getComponentType() != 1 || (componentCount != 3 && componentCount != 4)) {
    throw std::invalid_argument("color array component size incorrect");
  }
  if (!fits(*newColors)) {
    throw std::invalid_argument("color array size doesn't match vertex array");
  }
  if (componentCount == 3) {
    newColors->expandToRgba();
  }
  if (workingColors && workingColors->getVertexCount() != newColors->getVertexCount()) {
    // Drawing would read past the end of a shorter copy.
    workingColors.reset();
  }
  colors = newColors;
  dirty = true;
  cachedAlphaFactor = -1.0f;
}

boost::shared_ptr<VertexArray> VertexBuffer::getPositions(float* scaleBias) const {
  reportScaleBias(scaleBias, positionScale, positionBias.get());
  return positions;
}

boost::shared_ptr<VertexArray> VertexBuffer::getTexCoords(int index, float* scaleBias) const {
  if (index < 0 || index >= maxTextureUnits) {
    throw std::out_of_range("Texture index is out of range");
  }
  reportScaleBias(scaleBias, texCoordScale(index), texCoordBias(index));
  return texCoordArray(index);
}

int VertexBuffer::getVertexCount() const {
  return positions ? positions->getVertexCount() : 0;
}

void VertexBuffer::setDefaultColor(int argb) {
  const unsigned packed = static_cast<unsigned>(argb);
  defaultColor[0] = static_cast<unsigned char>((packed >> 16) & 255);
  defaultColor[1] = static_cast<unsigned char>((packed >> 8) & 255);
  defaultColor[2] = static_cast<unsigned char>(packed & 255);
  defaultColor[3] = static_cast<unsigned char>((packed >> 24) & 255);
}

int VertexBuffer::getDefaultColor() const {
  return static_cast<int>(
      static_cast<unsigned>(defaultColor[3]) << 24 | static_cast<unsigned>(defaultColor[0]) << 16 |
      static_cast<unsigned>(defaultColor[1]) << 8 | static_cast<unsigned>(defaultColor[2]));
}

boost::shared_ptr<VertexArray> VertexBuffer::getArray(int selector) const {
  switch (selector) {
    case 0:
      return positions;
    case 1:
      return normals;
    case 2:
      return colors;
    default:
      return selector > 2 ? texCoordArray(selector - 3) : boost::shared_ptr<VertexArray>();
  }
}

std::unique_ptr<float[]> VertexBuffer::getVertex(int index) const {
  std::unique_ptr<float[]> vertex = newVertex();
  readVertex(index, vertex.get());
  return vertex;
}

std::unique_ptr<float[]> VertexBuffer::getNormal(int index) const {
  std::unique_ptr<float[]> normal = newVertex();
  if (!readNormal(index, normal.get())) {
    normal.reset();
  }
  return normal;
}

std::unique_ptr<float[]> VertexBuffer::getTexCoord(int index, int unit) const {
  std::unique_ptr<float[]> texCoord = newVertex();
  if (!readTexCoord(index, unit, texCoord.get())) {
    texCoord.reset();
  }
  return texCoord;
}

void VertexBuffer::readVertex(int index, float* out) const {
  if (static_cast<unsigned>(index) >= static_cast<unsigned>(getVertexCount())) {
    char message[64];
    std::snprintf(message, sizeof message, "VertexBuffer::getVertex(%d): Invalid vertex index",
                  index);
    throw std::out_of_range(message);
  }
  positions->readVertex(index, out);
  applyScaleBias(out, positions->getComponentCount(), positionScale, positionBias.get());
}

bool VertexBuffer::readNormal(int index, float* out) const {
  if (static_cast<unsigned>(index) >= static_cast<unsigned>(getVertexCount())) {
    throw std::out_of_range("Invalid normal index");
  }
  if (!normals) {
    return false;
  }
  normals->readVertex(index, out);
  return true;
}

bool VertexBuffer::readTexCoord(int index, int unit, float* out) const {
  if (static_cast<unsigned>(index) >= static_cast<unsigned>(getVertexCount())) {
    throw std::out_of_range("Invalid vertex index");
  }
  if (unit < 0 || unit >= maxTextureUnits) {
    throw std::out_of_range("Invalid texture index");
  }
  const boost::shared_ptr<VertexArray> array = texCoordArray(unit);
  if (!array) {
    return false;
  }
  array->readVertex(index, out);
  applyScaleBias(out, array->getComponentCount(), texCoordScale(unit), texCoordBias(unit));
  return true;
}

void VertexBuffer::printContents() const {
  std::printf("Default color: 0x%X\n", static_cast<unsigned>(getDefaultColor()));
  if (positions) {
    std::printf("Examine the VertexArray for vertices: \n");
    positions->printValues();
  }
  std::printf("positionScale: %f\n", static_cast<double>(positionScale));
  const float* const bias = positionBias.get();
  std::printf("Vertex bias: %f %f %f\n", biasElement(bias, 0), biasElement(bias, 1),
              biasElement(bias, 2));
  if (normals) {
    std::printf("There is normal\n");
    normals->printValues();
  }
  if (colors) {
    std::printf("There is color\n");
    colors->printValues();
  }
  for (int unit = 0; unit < entryCount(); ++unit) {
    if (texCoordArray(unit)) {
      const float* const unitBias = texCoordBias(unit);
      std::printf("Examine texture vertex array\n");
      texCoordArray(unit)->printValues();
      std::printf("Texture bias %f %f %f\n", biasElement(unitBias, 0), biasElement(unitBias, 1),
                  biasElement(unitBias, 2));
      std::printf("texture scale %f\n", static_cast<double>(texCoordScale(unit)));
    }
  }
  std::fflush(stdout);
}

boost::shared_ptr<VertexArray> VertexBuffer::texCoordArray(int unit) const {
  return unitHasEntry(unit) ? texCoordArrays[static_cast<std::size_t>(unit)]
                            : boost::shared_ptr<VertexArray>();
}

float VertexBuffer::texCoordScale(int unit) const {
  return unitHasEntry(unit) ? texCoordScales[static_cast<std::size_t>(unit)] : 1.0f;
}

const float* VertexBuffer::texCoordBias(int unit) const {
  return unitHasEntry(unit) ? texCoordBiases[static_cast<std::size_t>(unit)].get() : nullptr;
}

void VertexBuffer::provideTexCoordTables() {
  tablesExist = true;
  const std::size_t units = static_cast<std::size_t>(std::max(maxTextureUnits, 0));
  if (texCoordArrays.size() < units) {
    texCoordArrays.resize(units);
    texCoordScales.resize(units, 1.0f);
    texCoordBiases.resize(units);
  }
}

bool VertexBuffer::fits(const VertexArray& array) const {
  const int count = getVertexCount();
  return count == 0 || array.getVertexCount() == count;
}

int VertexBuffer::entryCount() const {
  return std::min(maxTextureUnits, static_cast<int>(texCoordArrays.size()));
}

bool VertexBuffer::unitHasEntry(int unit) const {
  return unit >= 0 && unit < entryCount();
}

}  // namespace varnel_m3g
