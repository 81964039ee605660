#include "engine/object/user_object.h"

#include <memory>

namespace varnel_m3g {

UserObject::~UserObject() = default;

MapUserObject::~MapUserObject() {
  for (auto& [parameterID, value] : values) {
    delete[] value.second;
  }
  values.clear();
}

void MapUserObject::insert(unsigned parameterID, unsigned length, unsigned char* bytes) {
  std::unique_ptr<unsigned char[]> owned(bytes);
  if (values.emplace(parameterID, Value(length, bytes)).second) {
    owned.release();
  }
}

}  // namespace varnel_m3g
