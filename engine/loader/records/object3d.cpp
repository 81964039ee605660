// Object3D section, at the head of every record:
//   Int32 userID
//   Int32 animationTrackCount, then that many Index animationTrack
//   Int32 userParameterCount, then for each: Int32 parameterID, ByteArray value

#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

#include "engine/animation/animation_track.h"
#include "engine/loader/records/reference.h"
#include "engine/object/user_object.h"

namespace varnel_m3g {

void Object3D::load(M3gObjectInputStream& stream, ObjectTable& table) {
  reset();
  setUserID(stream.readInt32());

  const std::uint32_t trackCount = static_cast<std::uint32_t>(stream.readInt32());
  for (std::uint32_t i = 0; i < trackCount; ++i) {
    animationTracks.push_back(readReference<AnimationTrack>(
        stream, table, IndexLimit::UP_TO_SIZE, IndexZero::ENTRY,
        "Object3D file load.. invalid AnimationTrack refernece index",
        "Object3D file load.. invalid AnimationTrack being set as attribute"));
  }

  const std::uint32_t parameterCount = static_cast<std::uint32_t>(stream.readInt32());
  if (parameterCount == 0) {
    return;
  }
  const boost::shared_ptr<MapUserObject> parameters(new MapUserObject);
  for (std::uint32_t i = 0; i < parameterCount; ++i) {
    const std::uint32_t id = static_cast<std::uint32_t>(stream.readInt32());
    unsigned length = 0;
    std::unique_ptr<unsigned char[]> value = stream.readByteArray(length);
    if (parameters->contains(id)) {
      throw std::runtime_error("Duplicated ID while reading user params.");
    }
    const std::string text(value.get(), value.get() + length);
    std::cerr << "ID = " << id << " Value = " << text.c_str() << '\n';
    parameters->insert(id, length, value.release());
  }
  userObject = parameters;
}

}  // namespace varnel_m3g
