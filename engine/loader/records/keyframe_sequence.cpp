// KeyframeSequence, after the Object3D section:
//   Byte interpolation, Byte repeatMode, Byte encoding,
//   Int32 duration, Int32 validRangeFirst, Int32 validRangeLast, Int32 componentCount,
//   Int32 keyframeCount
//   encoding 0: per keyframe Int32 time and componentCount Floats
//   encoding 1: componentCount Floats of bias, as many of scale, then per keyframe Int32 time and
//     componentCount normalised bytes
//   encoding 2: the same with normalised shorts

#include "engine/animation/keyframe_sequence.h"

#include <stdexcept>
#include <vector>

#include "engine/loader/m3g_object_input_stream.h"

namespace varnel_m3g {

void KeyframeSequence::load(M3gObjectInputStream& stream, ObjectTable& table) {
  Object3D::load(stream, table);
  const int interpolation = stream.readByte();
  const int newRepeatMode = stream.readByte();
  const int encoding = stream.readByte();
  const int newDuration = stream.readInt32();
  const int rangeFirst = stream.readInt32();
  const int rangeLast = stream.readInt32();
  const int components = stream.readInt32();
  const int count = stream.readInt32();

  if (count > 0 && components > 0) {
    const std::uint64_t values = static_cast<std::uint64_t>(components);
    if (encoding >= 0 && encoding <= 2) {
      const std::uint64_t valueSize = encoding == 0 ? 4 : encoding;
      stream.requireRest(static_cast<std::uint64_t>(count), 4 + values * valueSize);
    } else {
      stream.claimUnbacked(4 * static_cast<std::uint64_t>(count) + 4 * values);
      stream.claimUnbacked(4 * static_cast<std::uint64_t>(count) * values);
    }
  }
  allocate(count, components, interpolation);
  setRepeatMode(newRepeatMode);
  setDuration(newDuration);
  setValidRange(rangeFirst, rangeLast);

  std::vector<float> bias(static_cast<std::size_t>(components), 0.0f);
  std::vector<float> scale(static_cast<std::size_t>(components), 1.0f);
  switch (encoding) {
    case 0:
      break;
    case 1:
    case 2:
      for (float& value : bias) {
        value = stream.readFloat();
      }
      for (float& value : scale) {
        value = stream.readFloat();
      }
      break;
    default:
      throw std::runtime_error("m3g.KeyframeSequence.load() --  invalid encoding");
  }
  std::vector<float> value(static_cast<std::size_t>(components));
  for (int i = 0; i < count; ++i) {
    const int time = stream.readInt32();
    for (std::size_t c = 0; c < value.size(); ++c) {
      if (encoding == 0) {
        value[c] = stream.readFloat();
      } else {
        const double read =
            encoding == 1 ? stream.readNormalisedByte() : stream.readNormalisedShort();
        value[c] = static_cast<float>(read * double(scale[c]) + double(bias[c]));
      }
    }
    setKeyframe(i, time, value.data());
  }
}

}  // namespace varnel_m3g
