#include "engine/render/coord_arrays.h"

#include <GLES/gl.h>

#include "engine/geometry/vertex_array.h"

namespace varnel_m3g {

namespace {

GLenum glUnit(int unit) {
  return GL_TEXTURE0 + static_cast<GLenum>(unit);
}

const void* dataOf(const VertexArray& array) {
  return array.byteData();
}

}  // namespace

CoordArrays& CoordArrays::get() {
  // Never destroyed: what it shares must not be released while the process ends.
  static CoordArrays& arrays = *new CoordArrays;
  return arrays;
}

CoordArrays::Unit& CoordArrays::current() {
  const std::size_t index = static_cast<std::size_t>(currentUnit);
  if (index >= units.size()) {
    units.resize(index + 1);
  }
  return units[index];
}

void CoordArrays::activate(int unit) {
  glClientActiveTexture(glUnit(unit));
  currentUnit = unit;
}

void CoordArrays::enable() {
  glEnableClientState(GL_TEXTURE_COORD_ARRAY);
  current().enabled = true;
}

void CoordArrays::disable() {
  glDisableClientState(GL_TEXTURE_COORD_ARRAY);
  current() = Unit();
}

void CoordArrays::point(const boost::shared_ptr<VertexArray>& array) {
  // Pairs are read whatever the array's component count, which is 2 or more.
  if (array->getComponentType() == 1) {
    glTexCoordPointer(2, GL_BYTE, 0, array->byteData());
  } else {
    glTexCoordPointer(2, GL_SHORT, 0, array->shortData());
  }
  Unit& unit = current();
  unit.array = array;
  unit.data = dataOf(*array);
  unit.count = static_cast<unsigned>(array->getVertexCount());
}

void CoordArrays::point(const float* pairs, unsigned count) {
  glTexCoordPointer(2, GL_FLOAT, 0, pairs);
  Unit& unit = current();
  unit.array.reset();
  unit.data = pairs;
  unit.count = count;
}

bool CoordArrays::isReadable(const Unit& unit, unsigned count) {
  return unit.count >= count && (!unit.array || dataOf(*unit.array) == unit.data);
}

void CoordArrays::retireShorterThan(unsigned count) {
  const int former = currentUnit;
  for (std::size_t i = 0; i < units.size(); ++i) {
    if (units[i].enabled && !isReadable(units[i], count)) {
      activate(static_cast<int>(i));
      disable();
    }
  }
  if (currentUnit != former) {
    activate(former);
  }
}

void CoordArrays::followContext(const void* context) {
  if (context != currentContext) {
    currentContext = context;
    units.clear();
    currentUnit = 0;
  }
}

}  // namespace varnel_m3g
