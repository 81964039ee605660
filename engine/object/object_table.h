#ifndef VARNEL_ENGINE_OBJECT_OBJECT_TABLE_H
#define VARNEL_ENGINE_OBJECT_OBJECT_TABLE_H

#include <boost/shared_ptr.hpp>
#include <vector>

namespace varnel_m3g {

class Object3D;

/// The objects of a file that is being loaded, by index; entries may be empty.
using ObjectTable = std::vector<boost::shared_ptr<Object3D>>;

}  // namespace varnel_m3g

#endif
