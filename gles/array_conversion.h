#ifndef VARNEL_GLES_ARRAY_CONVERSION_H
#define VARNEL_GLES_ARRAY_CONVERSION_H

#include <cstddef>

namespace gles {

/// How the records of a vertex array lie in memory.
struct ArrayLayout {
  /// Components of a record, 1 to 4.
  int size = 4;
  /// OpenGL's name of the component type.
  unsigned type = 0;
  /// Bytes from record to record; 0 for records without a gap.
  int stride = 0;

  bool operator==(const ArrayLayout&) const = default;
};

/// Bytes of one component; 0 for a type that the layers do not know.
std::size_t componentBytes(unsigned type);

/// Bytes from record to record: the record's length, or the stride if that is larger.
std::size_t recordStride(const ArrayLayout& layout);

/// How many records begin in `bytes` bytes; the last may be cut.
std::size_t recordCount(const ArrayLayout& layout, std::size_t bytes);

/// Converts the records `first` to `last` (inclusive) at `source` to floats, `size` for each
/// record, and stores them without gaps from `out` on, which stands for record `first`. Bytes and
/// unsigned bytes are cast, not scaled; 16.16 numbers are divided by 65536. Of `source` only the
/// first `available` bytes are read; what lies beyond counts as 0.
void convertRecords(const ArrayLayout& layout, const unsigned char* source, std::size_t available,
                    std::size_t first, std::size_t last, float* out);

/// The elements that a draw reads: `first` to `last`, or of these the ones that indices name.
struct ElementRange {
  std::size_t first;
  std::size_t last;
  unsigned indexType = 0;
  /// Null for a draw without indices.
  const void* indices = nullptr;
  /// How many indices there are.
  std::size_t count = 0;
};

/// The range of `count` indices (more than 0) of type GL_UNSIGNED_BYTE or GL_UNSIGNED_SHORT. The
/// indices need no alignment.
ElementRange elementRange(unsigned type, const void* indices, std::size_t count);

/// The index at a position.
std::size_t indexAt(unsigned type, const void* indices, std::size_t position);

/// Converts the records that a draw reads, as `convertRecords` does, in time linear in the shorter
/// of the range and the indices. `out` stands for record 0; the places of other records are left
/// alone.
void convertElements(const ArrayLayout& layout, const unsigned char* source,
                     const ElementRange& range, float* out);

}  // namespace gles

#endif  // VARNEL_GLES_ARRAY_CONVERSION_H
