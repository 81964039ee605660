#ifndef VARNEL_ENGINE_LOADER_RECORDS_REFERENCE_H
#define VARNEL_ENGINE_LOADER_RECORDS_REFERENCE_H

#include <boost/pointer_cast.hpp>
#include <boost/shared_ptr.hpp>
#include <cstddef>
#include <stdexcept>

#include "engine/loader/m3g_object_input_stream.h"
#include "engine/object/object3d.h"
#include "engine/object/object_table.h"

namespace varnel_m3g {

/// Which indices a field's test lets through to the table. The looser one leaves an index that
/// equals the size to the vector's own assertion.
enum class IndexLimit { BELOW_SIZE, UP_TO_SIZE };

/// What index 0 is in a field: no object, a bad index, or an entry like others, which holds no
/// object of any class.
enum class IndexZero { NO_OBJECT, BAD_INDEX, ENTRY };

/// Reads an index and gives the object of class T that stands there. Throws std::runtime_error with
/// `badIndex` for an index outside the table and with `badTarget` for an object of another class.
template <class T>
boost::shared_ptr<T> readReference(M3gObjectInputStream& stream, const ObjectTable& table,
                                   IndexLimit limit, IndexZero zero, const char* badIndex,
                                   const char* badTarget) {
  const std::size_t index = stream.readIndex();
  if (index == 0 && zero == IndexZero::NO_OBJECT) {
    return {};
  }
  const bool outside =
      limit == IndexLimit::BELOW_SIZE ? index >= table.size() : index > table.size();
  if (outside || (index == 0 && zero == IndexZero::BAD_INDEX)) {
    throw std::runtime_error(badIndex);
  }
  const boost::shared_ptr<T> target = boost::dynamic_pointer_cast<T>(table[index]);
  if (!target) {
    throw std::runtime_error(badTarget);
  }
  return target;
}

}  // namespace varnel_m3g

#endif
