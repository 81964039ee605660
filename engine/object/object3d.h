#ifndef VARNEL_ENGINE_OBJECT_OBJECT3D_H
#define VARNEL_ENGINE_OBJECT_OBJECT3D_H

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <map>
#include <stdexcept>
#include <vector>

#include "engine/object/java_types.h"
#include "engine/object/object_table.h"

namespace varnel_m3g {

class AnimationTrack;
class M3gObjectInputStream;
class UserObject;

/// The root of the engine's objects: identity, user data, animation tracks, the link to the Java
/// peer, and the walk over outgoing references. Always held by a shared pointer.
class Object3D : public boost::enable_shared_from_this<Object3D> {
 public:
  /// The accumulated values of one animated property.
  class HashEntry {
   public:
    HashEntry() = default;
    HashEntry(int count, const float* values) { set(count, values); }
    HashEntry(const HashEntry& other) { set(other.count, other.values); }
    HashEntry& operator=(const HashEntry& other);
    ~HashEntry() { delete[] values; }

    /// Copies `count` floats, which must not be this entry's own. Keeps an array that is large
    /// enough.
    void set(int count, const float* values);
    /// Adds component by component, over the smaller of the two counts, which becomes the count.
    void add(int count, const float* values);

    int getCount() const { return count; }
    const float* getValues() const { return values; }

   private:
    int count = 0;
    int capacity = 0;
    float* values = nullptr;  // owned, `capacity` elements
  };

  Object3D(const Object3D&) = delete;
  Object3D& operator=(const Object3D&) = delete;

  /// Stores the objects that this one refers to, its tracks first, and returns their number; only
  /// counts with a null array. Throws std::invalid_argument or std::range_error, as the class
  /// tells, when there are more than `max`.
  virtual unsigned getReferences(boost::shared_ptr<Object3D>* references, unsigned max);

  /// Makes a Java object of this object's class, which holds a new cell of its own. Returns a local
  /// reference.
  virtual jobject createJavaPeer(JNIEnv* env) = 0;

  /// Writes every field to the log.
  virtual void dump();

  virtual ~Object3D();

  /// One level of the duplication: the most derived class makes the object when `target` is empty,
  /// each class lets its base copy first, then copies its own members into `target`, and returns
  /// it.
  virtual boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target);

  /// Back to the defaults of this class's own state; tracks stay.
  virtual void reset();

  /// Reads the Object3D section of an object record.
  void load(M3gObjectInputStream& stream, ObjectTable& table);

  /// A copy that mostly shares what this object refers to.
  boost::shared_ptr<Object3D> duplicate();

  void setUserID(int id) { userID = id; }
  int getUserID() const { return userID; }

  void setUserObject(const boost::shared_ptr<UserObject>& object) { userObject = object; }
  const boost::shared_ptr<UserObject>& getUserObject() const { return userObject; }

  /// Appends a track. Throws std::invalid_argument when it is empty or there already.
  void addAnimationTrack(const boost::shared_ptr<AnimationTrack>& track);
  /// Removes a track; one that is not there, or an empty one, is ignored.
  void removeAnimationTrack(const boost::shared_ptr<AnimationTrack>& track);
  /// Throws std::out_of_range beyond the last track; on an object without tracks the result is
  /// empty, whatever the index.
  const boost::shared_ptr<AnimationTrack>& getAnimationTrack(unsigned index);
  unsigned getAnimationTrackCount() const { return static_cast<unsigned>(animationTracks.size()); }

  /// Samples all tracks of this object and of what it refers to, and applies the values. Returns
  /// how long, in units of world time, the result stays valid.
  int animate(int worldTime);

  /// The first object with this user ID among this one and, depth first, those that it refers to;
  /// empty when there is none. References that form a cycle make the search endless.
  boost::shared_ptr<Object3D> find(int id);

  /// Makes `peer` this object's Java peer, by a global reference.
  void setBackReference(JNIEnv* env, jobject peer);

  /// A local reference to the registered Java peer, or to a new one if none is registered.
  jobject getJavaPeer(JNIEnv* env);

  /// Reports the non-empty entries of `source` as references, like getReferences, and raises
  /// `count` by their number. Throws std::range_error when they exceed `max`; the slots that the
  /// call has filled are empty then.
  template <class T>
  static void processArrayReferences(const boost::shared_ptr<T>* source, unsigned sourceCount,
                                     boost::shared_ptr<Object3D>* references, unsigned max,
                                     unsigned& count);

 protected:
  Object3D() = default;

 private:
  /// A track as what every track is, for code that does not know the class.
  static boost::shared_ptr<Object3D> asObject(const boost::shared_ptr<AnimationTrack>& track);

  /// The pass over this object alone; returns its validity.
  int animateSelf(int worldTime);
  /// Sums the weighted values of the active tracks by property; returns their validity.
  int sampleTracks(int worldTime);
  void addAnimationValues(unsigned property, int count, const float* values);
  /// Writes the sums into the object by the setters of its class.
  void applyAnimationValues();
  /// Brings referenceCache up to date and returns the number of references.
  unsigned cacheCurrentReferences();
  void freeReferenceCache();

  /// One object on the way down of an animate pass: how many references it has cached, and which is
  /// next.
  struct AnimationStep {
    Object3D* object;
    unsigned count;
    unsigned next;
  };

  std::map<unsigned, HashEntry> animationValues;  // by target property
  /// Entries of earlier passes, whose memory serves the next ones.
  std::map<unsigned, HashEntry> spareAnimationValues;
  std::vector<boost::shared_ptr<AnimationTrack>> animationTracks;
  /// The way down of a pass that begins here. It is not on the call stack, so that the depth does
  /// not matter; its storage serves the next pass.
  std::vector<AnimationStep> animationPath;
  boost::shared_ptr<Object3D>* referenceCache = nullptr;  // made by the first animate
  unsigned referenceCacheSize = 0;
  bool cacheReferences = true;
  boost::shared_ptr<UserObject> userObject;
  int userID = 0;
  jobject javaPeer = nullptr;  // a global reference
  JavaVM* javaVM = nullptr;    // owns javaPeer
};

template <class T>
void Object3D::processArrayReferences(const boost::shared_ptr<T>* source, unsigned sourceCount,
                                      boost::shared_ptr<Object3D>* references, unsigned max,
                                      unsigned& count) {
  if (source == nullptr) {
    return;
  }
  const unsigned first = count;
  for (unsigned i = 0; i < sourceCount; ++i) {
    if (!source[i]) {
      continue;
    }
    if (references != nullptr) {
      if (count >= max) {
        for (unsigned filled = first; filled < count; ++filled) {
          references[filled].reset();
        }
        throw std::range_error(
            "Object3D::processArrayReferences: number of references exceeds max");
      }
      references[count] = source[i];
    }
    ++count;
  }
}

}  // namespace varnel_m3g

#endif
