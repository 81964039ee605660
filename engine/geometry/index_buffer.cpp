#include "engine/geometry/index_buffer.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <cstddef>
#include <cstdio>

#include "engine/object/log.h"

namespace varnel_m3g {

IndexBuffer::IndexBuffer() = default;

IndexBuffer::~IndexBuffer() = default;

void IndexBuffer::dump() {
  Object3D::dump();
  log("IndexBuffer Object");
  log("==================");
  if (isExplicit_) {
    log("EncodingExplicit: True");
  } else {
    log("EncodingExplicit: False");
    logf("FirstIndex: %u", firstIndex);
  }
  logf("StripLengths: %u", stripCount());
}

boost::shared_ptr<Object3D> IndexBuffer::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    std::fputs("TriangleStripArray -- Duplicate not Implemented\n", stderr);
    return target;
  }
  Object3D::duplicateImpl(target);
  const boost::shared_ptr<IndexBuffer> copy = boost::dynamic_pointer_cast<IndexBuffer>(target);
  copy->stripIndices_ = stripIndices_;
  copy->stripStarts = stripStarts;
  copy->isExplicit_ = isExplicit_;
  copy->firstIndex = firstIndex;
  copy->stripLengths = stripLengths;
  copy->highestIndices = highestIndices;
  return target;
}

void IndexBuffer::findHighestIndices() {
  highestIndices.assign(stripLengths.size(), -1);
  for (std::size_t strip = 0; strip < stripLengths.size(); ++strip) {
    if (isExplicit_) {
      for (const unsigned short index : stripIndices_[strip]) {
        highestIndices[strip] = std::max<long long>(highestIndices[strip], index);
      }
    } else if (stripLengths[strip] > 0) {
      highestIndices[strip] = static_cast<long long>(stripStarts[strip]) +
                              static_cast<long long>(stripLengths[strip]) - 1;
    }
  }
}

}  // namespace varnel_m3g
