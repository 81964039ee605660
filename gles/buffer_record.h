#ifndef VARNEL_GLES_BUFFER_RECORD_H
#define VARNEL_GLES_BUFFER_RECORD_H

#include <cstddef>

#include "gles/array_conversion.h"
#include "gles/memory.h"

namespace gles {

/// The floats that stand for one array layout of a buffer object, in a driver's buffer of their
/// own: the buffer's other arrays are left alone. All arrays whose records lie in one raster share
/// them, however many of them the buffer holds.
struct ConvertedStream {
  ArrayLayout layout;
  /// Byte offset of the first record in the buffer object, less than a record's stride.
  std::size_t phase = 0;
  /// The driver's buffer that holds the floats; 0 before the first conversion.
  unsigned name = 0;
  /// The buffer's data have changed since the floats were made.
  bool stale = true;
  ConvertedStream* next = nullptr;
};

/// Where the floats of one array begin: a driver's buffer, 0 for none, and a byte offset in it.
struct StreamPlace {
  unsigned name = 0;
  std::size_t offset = 0;
};

/// The shadow of one buffer object: its data as the client gave them.
struct BufferRecord {
  BufferRecord() = default;
  BufferRecord(const BufferRecord&) = delete;
  BufferRecord& operator=(const BufferRecord&) = delete;
  /// Frees the streams' records; their driver's buffers are given back by `deleteStreams`.
  ~BufferRecord();

  unsigned name = 0;
  unsigned usage = 0;
  /// Bytes of data.
  std::size_t size = 0;
  Block data;
  /// The data have changed since the streams were last looked at.
  bool pendingConversion = false;
  /// The driver's buffer of this name holds the data.
  bool loaded = false;
  ConvertedStream* streams = nullptr;
  BufferRecord* previous = nullptr;
  BufferRecord* next = nullptr;
};

/// A doubly linked list that owns its records.
struct BufferList {
  BufferList() = default;
  BufferList(const BufferList&) = delete;
  BufferList& operator=(const BufferList&) = delete;
  ~BufferList();

  /// The record of that name, or null.
  BufferRecord* find(unsigned name) const;
  /// A new record of that name at the head; null when memory is short.
  BufferRecord* add(unsigned name);
  /// Unlinks and frees a record of this list.
  void remove(BufferRecord* record);

  BufferRecord* head = nullptr;
};

/// The shadows of a context's buffer objects, and what it has bound. A name has one record at most,
/// in the list of the target that it was first used with.
struct BufferObjects {
  BufferRecord* find(unsigned name) const;

  BufferList arrayBuffers;
  BufferList elementBuffers;
  unsigned boundArrayBuffer = 0;
  unsigned boundElementBuffer = 0;
};

// The buffer commands that both paths share. Each does nothing when the driver has no buffer
// objects.

/// Binds at once for the array target; for the element target the name is only recorded.
void bindBuffer(BufferObjects& buffers, unsigned target, unsigned name);

/// Copies the data, and loads the driver's buffer for the array target. Null data do nothing.
void bufferData(BufferObjects& buffers, unsigned target, std::ptrdiff_t size, const void* data,
                unsigned usage);

/// Patches the copy when the range fits, and the driver's buffer for the array target.
void bufferSubData(BufferObjects& buffers, unsigned target, std::ptrdiff_t offset,
                   std::ptrdiff_t size, const void* data);

/// Deletes the driver's buffers and their records, and unbinds those that are bound.
void deleteBuffers(BufferObjects& buffers, int count, const unsigned* names);

void getBufferParameter(const BufferObjects& buffers, unsigned target, unsigned parameter,
                        int* value);

unsigned char isBuffer(const BufferObjects& buffers, unsigned name);

/// Where the indices of a draw stand: in the copy of the bound element buffer at the offset
/// `indices`, or at the address `indices` when none is bound. Null when there are none there, or
/// fewer than `count`.
const void* elementIndices(const BufferObjects& buffers, unsigned type, std::size_t count,
                           const void* indices);

/// Loads the driver's buffer if it does not hold the record's data, leaving the binding as it was.
void ensureLoaded(const BufferObjects& buffers, BufferRecord& record);

/// The floats of one array of the record, converted when there are none or the data have changed
/// since; none when memory is short or the array begins outside the data. The binding is left as it
/// was.
StreamPlace convertedStream(const BufferObjects& buffers, BufferRecord& record,
                            const ArrayLayout& layout, std::size_t offset);

}  // namespace gles

#endif  // VARNEL_GLES_BUFFER_RECORD_H
