#include "engine/object/object3d.h"

#include <algorithm>
#include <boost/pointer_cast.hpp>
#include <cstdio>
#include <string>
#include <utility>

#include "engine/object/deferred_release.h"
#include "engine/object/java_reference.h"
#include "engine/object/log.h"
#include "engine/object/user_object.h"

namespace varnel_m3g {

namespace {

// Printable characters as they are, all others as \xHH.
std::string parameterText(const MapUserObject::Value& value) {
  std::string text;
  for (unsigned i = 0; i < value.first; ++i) {
    const unsigned char byte = value.second[i];
    if (byte >= 0x20 && byte < 0x7F) {
      text += static_cast<char>(byte);
    } else {
      char escape[5];
      std::snprintf(escape, sizeof escape, "\\x%02X", static_cast<unsigned>(byte));
      text += escape;
    }
  }
  return text;
}

// One object on the way down of a search: what it refers to, and which of these is next.
struct SearchStep {
  std::vector<boost::shared_ptr<Object3D>> references;
  std::size_t next = 0;
};

}  // namespace

Object3D::HashEntry& Object3D::HashEntry::operator=(const HashEntry& other) {
  if (this != &other) {
    set(other.count, other.values);
  }
  return *this;
}

void Object3D::HashEntry::set(int newCount, const float* newValues) {
  count = 0;
  if (newCount > capacity) {
    delete[] values;
    values = nullptr;
    capacity = 0;
    values = new float[static_cast<std::size_t>(newCount)];
    capacity = newCount;
  }
  if (newCount > 0) {
    std::copy_n(newValues, newCount, values);
    count = newCount;
  }
}

void Object3D::HashEntry::add(int otherCount, const float* otherValues) {
  count = std::min(count, otherCount);
  for (int i = 0; i < count; ++i) {
    values[i] =
        static_cast<float>(static_cast<double>(values[i]) + static_cast<double>(otherValues[i]));
  }
}

unsigned Object3D::getReferences(boost::shared_ptr<Object3D>* references, unsigned max) {
  unsigned count = 0;
  if (animationTracks.empty()) {
    return count;
  }
  if (references == nullptr) {
    return getAnimationTrackCount();
  }
  if (animationTracks.size() > max) {
    throw std::invalid_argument("Reference count from getReferences exceeds max");
  }
  for (const boost::shared_ptr<AnimationTrack>& track : animationTracks) {
    references[count++] = asObject(track);
  }
  return count;
}

void Object3D::dump() {
  log("OBJECT_3D");
  log("=========");
  logf("UserID:                 %u", static_cast<unsigned>(userID));
  logf("NumberAnimationTracks: %u", getAnimationTrackCount());
  for (unsigned i = 0; i < getAnimationTrackCount(); ++i) {
    logf("\tAnimationTrackID[%u]: %u", i,
         static_cast<unsigned>(asObject(animationTracks[i])->getUserID()));
  }
  const boost::shared_ptr<MapUserObject> parameters =
      boost::dynamic_pointer_cast<MapUserObject>(userObject);
  logf("NumUserParams:          %u",
       parameters ? static_cast<unsigned>(parameters->getValues().size()) : 0U);
  if (parameters) {
    for (const auto& [parameterID, value] : parameters->getValues()) {
      logf("ParameterID:    %u,      Value: %s", parameterID, parameterText(value).c_str());
    }
  }
}

Object3D::~Object3D() {
  if (javaPeer != nullptr && javaVM != nullptr) {
    dropGlobalReference(javaVM, javaPeer, Detach::IfAttachedHere);
  }
  userObject.reset();
  for (boost::shared_ptr<AnimationTrack>& track : animationTracks) {
    releaseDeferred(std::move(track));
  }
  animationTracks.clear();
  animationValues.clear();
  // referenceCache stays: what it refers to lives on.
}

boost::shared_ptr<Object3D> Object3D::duplicateImpl(boost::shared_ptr<Object3D> target) {
  target->userID = userID;
  target->userObject = userObject;
  for (const boost::shared_ptr<AnimationTrack>& track : animationTracks) {
    target->addAnimationTrack(track);
  }
  return target;
}

void Object3D::reset() {
  userObject.reset();
  userID = 0;
  cacheReferences = true;
  // The old array is forgotten, not freed.
  referenceCache = nullptr;
  referenceCacheSize = 0;
}

boost::shared_ptr<Object3D> Object3D::duplicate() {
  return duplicateImpl(boost::shared_ptr<Object3D>());
}

boost::shared_ptr<Object3D> Object3D::find(int id) {
  if (userID == id) {
    return shared_from_this();
  }
  // The way down is kept here and not on the call stack, so that the depth does not matter.
  std::vector<SearchStep> path;
  const auto descend = [&path](Object3D& object) {
    const unsigned count = object.getReferences(nullptr, 0);
    if (count > 0) {
      SearchStep step;
      step.references.resize(count);
      object.getReferences(step.references.data(), count);
      path.push_back(std::move(step));
    }
  };
  descend(*this);
  while (!path.empty()) {
    SearchStep& step = path.back();
    const boost::shared_ptr<Object3D> object = step.references[step.next++];
    if (object->userID == id) {
      return object->shared_from_this();
    }
    if (step.next == step.references.size()) {
      path.pop_back();
    }
    descend(*object);
  }
  return boost::shared_ptr<Object3D>();
}

}  // namespace varnel_m3g
