#ifndef VARNEL_ENGINE_OBJECT_USER_OBJECT_H
#define VARNEL_ENGINE_OBJECT_USER_OBJECT_H

#include <map>
#include <utility>

namespace varnel_m3g {

/// What an application or a file attaches to an object; duplicates share it.
class UserObject {
 public:
  UserObject() = default;
  virtual ~UserObject();

  UserObject(const UserObject&) = delete;
  UserObject& operator=(const UserObject&) = delete;
};

/// The user parameters of an object that came from a file, by parameter ID.
class MapUserObject : public UserObject {
 public:
  /// Length in bytes, and the bytes in an array of their own made with array new.
  using Value = std::pair<unsigned, unsigned char*>;
  using Values = std::map<unsigned, Value>;

  ~MapUserObject() override;

  bool contains(unsigned parameterID) const { return values.count(parameterID) != 0; }

  /// Takes over `bytes`, made with array new; an ID that is held already keeps its old value, and
  /// the new bytes are freed.
  void insert(unsigned parameterID, unsigned length, unsigned char* bytes);

  const Values& getValues() const { return values; }

 private:
  Values values;
};

}  // namespace varnel_m3g

#endif
