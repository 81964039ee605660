#include "engine/geometry/triangle_strip_array.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <utility>
#include <vector>

#include "engine/object/log.h"

namespace varnel_m3g {

namespace {

constexpr unsigned SHORTEST_STRIP = 3;
constexpr unsigned LARGEST_INDEX = 65535;

}  // namespace

boost::shared_ptr<TriangleStripArray> TriangleStripArray::create(int firstIndex,
                                                                 const int* stripLengths,
                                                                 int lengthCount) {
  const boost::shared_ptr<TriangleStripArray> strips(new TriangleStripArray);
  strips->initialise(firstIndex, nullptr, 0, stripLengths, lengthCount);
  return strips;
}

boost::shared_ptr<TriangleStripArray> TriangleStripArray::create(const int* indices, int indexCount,
                                                                 const int* stripLengths,
                                                                 int lengthCount) {
  if (indices == nullptr || indexCount == 0) {
    throw std::invalid_argument(
        "TriangleStripArray constructor.  Null or empty indices array passed in");
  }
  const boost::shared_ptr<TriangleStripArray> strips(new TriangleStripArray);
  strips->initialise(0, indices, indexCount, stripLengths, lengthCount);
  return strips;
}

TriangleStripArray::TriangleStripArray() = default;

TriangleStripArray::~TriangleStripArray() = default;

void TriangleStripArray::initialise(int first, const int* indices, int indexCount,
                                    const int* lengths, int lengthCount) {
  reset();
  build(first, indices, indexCount, lengths, lengthCount);
}

void TriangleStripArray::build(int first, const int* indices, int indexCount, const int* lengths,
                               int lengthCount) {
  if (lengths == nullptr) {
    throw std::invalid_argument(
        "TriangleStripArray constructor.  Null stripLengths array passed in");
  }
  if (lengthCount <= 0) {
    throw std::invalid_argument(
        "TriangleStripArray constructor.  stripLengths array is empty (length = 0)");
  }
  isExplicit_ = indices != nullptr;
  stripLengths.assign(lengths, lengths + lengthCount);
  stripStarts.clear();
  stripIndices_.clear();
  if (!isExplicit_) {
    firstIndex = static_cast<unsigned>(first);
    unsigned start = firstIndex;
    for (const unsigned length : stripLengths) {
      stripStarts.push_back(start);
      start += length;
    }
  } else {
    int next = 0;
    for (const unsigned length : stripLengths) {
      if (length < SHORTEST_STRIP) {
        throw std::invalid_argument(
            "TriangleStripArray constructor.   strip length less than 3 elements -- can't make a "
            "triangle");
      }
      // Grows with the indices that exist: a length alone claims no memory.
      std::vector<unsigned short> strip;
      for (unsigned i = 0; i < length; ++i) {
        if (next >= indexCount) {
          throw std::invalid_argument(
              "TriangleStripArray constructor.   indices array out of bounds error");
        }
        const unsigned index = static_cast<unsigned>(indices[next]);
        if (index > LARGEST_INDEX) {
          throw std::out_of_range(
              "TriangleStripArray constructor.   index greater than 65535 -- exceeds 16 bit "
              "capacity");
        }
        strip.push_back(static_cast<unsigned short>(index));
        ++next;
      }
      stripIndices_.push_back(std::move(strip));
    }
  }
  findHighestIndices();
}

void TriangleStripArray::dump() {
  IndexBuffer::dump();
  log("TriangleStripArray Object");
  log("=========================");
}

boost::shared_ptr<Object3D> TriangleStripArray::duplicateImpl(boost::shared_ptr<Object3D> target) {
  if (!target) {
    target.reset(new TriangleStripArray);
    target->reset();
  }
  return IndexBuffer::duplicateImpl(target);
}

int TriangleStripArray::getIndexCount() {
  // A strip shorter than 2 counts below zero; sums beyond an int wrap.
  std::uint64_t triangles = 0;
  for (const unsigned length : stripLengths) {
    triangles += static_cast<std::uint64_t>(length) - 2;
  }
  return static_cast<int>(static_cast<std::uint32_t>(triangles * 3));
}

template <class Visit>
void TriangleStripArray::visitTriangles(const Visit& visit) {
  // Strips too short for a triangle lower the count below what the others need: the walk ends where
  // the count does.
  const std::int64_t count = getIndexCount();
  std::int64_t visited = 0;
  for (unsigned strip = 0; strip < stripCount(); ++strip) {
    const auto indexAt = [this, strip](unsigned i) {
      return static_cast<int>(isExplicit_ ? stripIndices_[strip][i] : stripStarts[strip] + i);
    };
    for (unsigned i = 2; i < stripLengths[strip]; ++i) {
      visited += 3;
      if (visited > count) {
        return;
      }
      const bool swapped = i % 2 != 0;
      visit(indexAt(swapped ? i - 1 : i - 2), indexAt(swapped ? i - 2 : i - 1), indexAt(i));
    }
  }
}

void TriangleStripArray::getIndices(int* out) {
  if (out == nullptr) {
    throw std::invalid_argument(
        "TriangleStripArray.getIndices() -- indices array argument  is null");
  }
  visitTriangles([&out](int a, int b, int c) {
    *out++ = a;
    *out++ = b;
    *out++ = c;
  });
}

void TriangleStripArray::printIndices() {
  std::printf("TriStripArray -- implicit --  Index Count = %d\n", getIndexCount());
  std::printf(" [ ");
  visitTriangles([](int a, int b, int c) { std::printf("%d, %d, %d, ", a, b, c); });
  std::printf(" ] \n");
  std::fflush(stdout);
}

}  // namespace varnel_m3g
