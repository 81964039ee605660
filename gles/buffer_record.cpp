#include "gles/buffer_record.h"

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <new>

#include <GLES/gl.h>

#include "gles/driver/driver.h"

namespace gles {

namespace {

// Binds a buffer for the length of a block, and then what the context has bound.
class ScopedArrayBuffer {
 public:
  ScopedArrayBuffer(const BufferObjects& buffers, unsigned name)
      : bound_(buffers.boundArrayBuffer), changed_(name != bound_) {
    if (changed_) {
      driver.glBindBuffer(GL_ARRAY_BUFFER, name);
    }
  }
  ScopedArrayBuffer(const ScopedArrayBuffer&) = delete;
  ScopedArrayBuffer& operator=(const ScopedArrayBuffer&) = delete;
  ~ScopedArrayBuffer() {
    if (changed_) {
      driver.glBindBuffer(GL_ARRAY_BUFFER, bound_);
    }
  }

 private:
  unsigned bound_;
  bool changed_;
};

unsigned boundName(const BufferObjects& buffers, unsigned target) {
  return target == GL_ARRAY_BUFFER ? buffers.boundArrayBuffer : buffers.boundElementBuffer;
}

bool isTarget(unsigned target) {
  return target == GL_ARRAY_BUFFER || target == GL_ELEMENT_ARRAY_BUFFER;
}

void deleteStreams(BufferRecord& record) {
  while (ConvertedStream* stream = record.streams) {
    if (stream->name) {
      driver.glDeleteBuffers(1, &stream->name);
    }
    record.streams = stream->next;
    delete stream;
  }
}

// A client may use a name that it never generated. If a stream holds it, the stream moves away.
void giveUpStreamName(const BufferList& list, unsigned name) {
  for (BufferRecord* record = list.head; record; record = record->next) {
    for (ConvertedStream* stream = record->streams; stream; stream = stream->next) {
      if (stream->name == name) {
        stream->name = 0;
        stream->stale = true;
      }
    }
  }
}

bool isStreamName(const BufferList& list, unsigned name) {
  for (const BufferRecord* record = list.head; record; record = record->next) {
    for (const ConvertedStream* stream = record->streams; stream; stream = stream->next) {
      if (stream->name == name) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace

BufferRecord::~BufferRecord() {
  while (ConvertedStream* stream = streams) {
    streams = stream->next;
    delete stream;
  }
}

BufferList::~BufferList() {
  while (head) {
    remove(head);
  }
}

BufferRecord* BufferList::find(unsigned name) const {
  for (BufferRecord* record = head; record; record = record->next) {
    if (record->name == name) {
      return record;
    }
  }
  return nullptr;
}

BufferRecord* BufferList::add(unsigned name) {
  auto* record = new (std::nothrow) BufferRecord;
  if (!record) {
    return nullptr;
  }
  record->name = name;
  record->next = head;
  if (head) {
    head->previous = record;
  }
  head = record;
  return record;
}

void BufferList::remove(BufferRecord* record) {
  (record->previous ? record->previous->next : head) = record->next;
  if (record->next) {
    record->next->previous = record->previous;
  }
  delete record;
}

BufferRecord* BufferObjects::find(unsigned name) const {
  if (name == 0) {
    return nullptr;
  }
  BufferRecord* record = arrayBuffers.find(name);
  return record ? record : elementBuffers.find(name);
}

void bindBuffer(BufferObjects& buffers, unsigned target, unsigned name) {
  if (!driver.glBindBuffer) {
    return;
  }
  if (!isTarget(target)) {
    driver.glBindBuffer(target, name);  // The driver refuses it.
    return;
  }
  if (name) {
    giveUpStreamName(buffers.arrayBuffers, name);
    giveUpStreamName(buffers.elementBuffers, name);
  }
  if (target == GL_ELEMENT_ARRAY_BUFFER) {
    if (name && !buffers.find(name)) {
      buffers.elementBuffers.add(name);
    }
    buffers.boundElementBuffer = name;
    return;
  }
  driver.glBindBuffer(target, name);
  buffers.boundArrayBuffer = name;
  if (BufferRecord* record = buffers.find(name)) {
    ensureLoaded(buffers, *record);
  }
}

void bufferData(BufferObjects& buffers, unsigned target, std::ptrdiff_t size, const void* data,
                unsigned usage) {
  if (!data || !driver.glBufferData) {
    return;
  }
  const unsigned name = isTarget(target) ? boundName(buffers, target) : 0;
  if (name == 0 || size < 0) {
    driver.glBufferData(target, size, data, usage);  // The driver refuses it.
    return;
  }
  BufferRecord* record = buffers.find(name);
  if (!record) {
    record = (target == GL_ARRAY_BUFFER ? buffers.arrayBuffers : buffers.elementBuffers).add(name);
  }
  if (!record || !record->data.reserve(static_cast<std::size_t>(size))) {
    return;
  }
  std::memcpy(record->data.data, data, static_cast<std::size_t>(size));
  record->size = static_cast<std::size_t>(size);
  record->usage = usage;
  record->pendingConversion = true;
  record->loaded = false;
  if (target == GL_ARRAY_BUFFER) {
    driver.glBufferData(target, size, record->data.data, usage);
    record->loaded = true;
  }
}

void bufferSubData(BufferObjects& buffers, unsigned target, std::ptrdiff_t offset,
                   std::ptrdiff_t size, const void* data) {
  if (!driver.glBufferSubData) {
    return;
  }
  BufferRecord* record = isTarget(target) ? buffers.find(boundName(buffers, target)) : nullptr;
  const bool fits = record && offset >= 0 && size >= 0 &&
                    static_cast<std::size_t>(offset) <= record->size &&
                    static_cast<std::size_t>(size) <= record->size - offset;
  if (!fits) {
    driver.glBufferSubData(target, offset, size, data);  // The driver refuses it.
    return;
  }
  if (!data || size == 0) {
    return;
  }
  std::memcpy(record->data.data + offset, data, static_cast<std::size_t>(size));
  record->pendingConversion = true;
  if (target == GL_ARRAY_BUFFER && record->loaded) {
    driver.glBufferSubData(target, offset, size, data);
  } else {
    record->loaded = false;
  }
}

void deleteBuffers(BufferObjects& buffers, int count, const unsigned* names) {
  if (!driver.glDeleteBuffers) {
    return;
  }
  for (int i = 0; i < count && names; ++i) {
    for (BufferList* list : {&buffers.arrayBuffers, &buffers.elementBuffers}) {
      if (BufferRecord* record = names[i] ? list->find(names[i]) : nullptr) {
        deleteStreams(*record);
        list->remove(record);
      }
    }
    if (buffers.boundArrayBuffer == names[i]) {
      buffers.boundArrayBuffer = 0;
    }
    if (buffers.boundElementBuffer == names[i]) {
      buffers.boundElementBuffer = 0;
    }
  }
  driver.glDeleteBuffers(count, names);
}

void getBufferParameter(const BufferObjects& buffers, unsigned target, unsigned parameter,
                        int* value) {
  const BufferRecord* record =
      target == GL_ELEMENT_ARRAY_BUFFER ? buffers.find(buffers.boundElementBuffer) : nullptr;
  if (record && parameter == GL_BUFFER_SIZE) {
    *value = static_cast<int>(record->size);
  } else if (record && parameter == GL_BUFFER_USAGE) {
    *value = static_cast<int>(record->usage ? record->usage : GL_STATIC_DRAW);
  } else {
    driver.glGetBufferParameteriv(target, parameter, value);
  }
}

unsigned char isBuffer(const BufferObjects& buffers, unsigned name) {
  if (!driver.glIsBuffer) {
    return GL_FALSE;
  }
  if (buffers.find(name)) {
    return GL_TRUE;
  }
  if (isStreamName(buffers.arrayBuffers, name) || isStreamName(buffers.elementBuffers, name)) {
    return GL_FALSE;
  }
  return driver.glIsBuffer(name);
}

const void* elementIndices(const BufferObjects& buffers, unsigned type, std::size_t count,
                           const void* indices) {
  if (buffers.boundElementBuffer == 0) {
    return indices;
  }
  const BufferRecord* record = buffers.find(buffers.boundElementBuffer);
  const auto offset = reinterpret_cast<std::uintptr_t>(indices);
  if (!record || offset > record->size || (record->size - offset) / componentBytes(type) < count) {
    return nullptr;
  }
  return record->data.data + offset;
}

void ensureLoaded(const BufferObjects& buffers, BufferRecord& record) {
  if (record.loaded || !record.data.data) {
    return;
  }
  const ScopedArrayBuffer bound(buffers, record.name);
  driver.glBufferData(GL_ARRAY_BUFFER, static_cast<std::ptrdiff_t>(record.size), record.data.data,
                      record.usage);
  record.loaded = true;
}

StreamPlace convertedStream(const BufferObjects& buffers, BufferRecord& record,
                            const ArrayLayout& layout, std::size_t offset) {
  const std::size_t stride = recordStride(layout);
  if (offset >= record.size || stride == 0) {
    return {};
  }
  const std::size_t phase = offset % stride;
  const std::size_t recordBytes = static_cast<std::size_t>(layout.size) * sizeof(float);
  if (record.pendingConversion) {
    for (ConvertedStream* stream = record.streams; stream; stream = stream->next) {
      stream->stale = true;
    }
    record.pendingConversion = false;
  }
  ConvertedStream* stream = record.streams;
  while (stream && !(stream->layout == layout && stream->phase == phase)) {
    stream = stream->next;
  }
  if (!stream) {
    stream = new (std::nothrow) ConvertedStream;
    if (!stream) {
      return {};
    }
    stream->layout = layout;
    stream->phase = phase;
    stream->next = record.streams;
    record.streams = stream;
  }
  const std::size_t begin = offset / stride * recordBytes;
  if (!stream->stale) {
    return {stream->name, begin};
  }
  const std::size_t available = record.size - phase;
  const std::size_t count = recordCount(layout, available);
  const std::size_t floats = count * static_cast<std::size_t>(layout.size);
  Block block;
  if (count == 0 || floats > PTRDIFF_MAX / sizeof(float) ||
      !block.reserve(floats * sizeof(float))) {
    // Not tried again before the next upload: what an earlier one left must not be drawn either.
    if (stream->name) {
      driver.glDeleteBuffers(1, &stream->name);
      stream->name = 0;
    }
    stream->stale = false;
    return {};
  }
  auto* out = reinterpret_cast<float*>(block.data);
  convertRecords(layout, record.data.data + phase, available, 0, count - 1, out);
  if (!stream->name) {
    driver.glGenBuffers(1, &stream->name);
  }
  const ScopedArrayBuffer bound(buffers, stream->name);
  driver.glBufferData(GL_ARRAY_BUFFER, static_cast<std::ptrdiff_t>(floats * sizeof(float)), out,
                      record.usage);
  stream->stale = false;
  return {stream->name, begin};
}

}  // namespace gles
