#ifndef VARNEL_TESTS_SUPPORT_OBJECT_CHECKS_H
#define VARNEL_TESTS_SUPPORT_OBJECT_CHECKS_H

#include <gtest/gtest.h>

#include <boost/pointer_cast.hpp>
#include <boost/shared_ptr.hpp>
#include <string>
#include <typeinfo>
#include <vector>

#include "engine/object/engine_limits.h"
#include "engine/object/object3d.h"

namespace varnel_test {

/// Expects that `action` throws exactly an Exception, no subclass of it, with this text.
template <class Exception, class Action>
void expectFailure(const Action& action, const std::string& text) {
  try {
    action();
    ADD_FAILURE() << "nothing was thrown instead of \"" << text << "\"";
  } catch (const Exception& e) {
    EXPECT_TRUE(typeid(e) == typeid(Exception)) << typeid(e).name();
    EXPECT_EQ(e.what(), text);
  }
}

/// What `action` writes to the standard output.
template <class Action>
std::string outputOf(const Action& action) {
  testing::internal::CaptureStdout();
  action();
  return testing::internal::GetCapturedStdout();
}

/// What `action` writes to the standard error stream.
template <class Action>
std::string errorOutputOf(const Action& action) {
  testing::internal::CaptureStderr();
  action();
  return testing::internal::GetCapturedStderr();
}

/// The dump of an object with this user ID, without tracks and user parameters, as far as the class
/// Object3D writes it.
inline std::string baseDump(unsigned userID = 0) {
  return "OBJECT_3D\n"
         "=========\n"
         "UserID:                 " +
         std::to_string(userID) +
         "\n"
         "NumberAnimationTracks: 0\n"
         "NumUserParams:          0\n";
}

/// The references of an object in their order.
inline std::vector<boost::shared_ptr<varnel_m3g::Object3D>> referencesOf(
    varnel_m3g::Object3D& object) {
  std::vector<boost::shared_ptr<varnel_m3g::Object3D>> references(object.getReferences(nullptr, 0));
  EXPECT_EQ(object.getReferences(references.data(), static_cast<unsigned>(references.size())),
            references.size());
  return references;
}

/// A duplicate as the class that it must have.
template <class T>
boost::shared_ptr<T> duplicateOf(T& object) {
  const boost::shared_ptr<T> copy = boost::dynamic_pointer_cast<T>(object.duplicate());
  EXPECT_TRUE(copy);
  EXPECT_NE(copy.get(), &object);
  return copy;
}

/// Sets the engine's number of texture units for the length of a block.
class TextureUnits {
 public:
  explicit TextureUnits(int count) : before(varnel_m3g::maxTextureUnits) {
    varnel_m3g::maxTextureUnits = count;
  }
  ~TextureUnits() { varnel_m3g::maxTextureUnits = before; }
  TextureUnits(const TextureUnits&) = delete;
  TextureUnits& operator=(const TextureUnits&) = delete;

 private:
  int before;
};

}  // namespace varnel_test

#endif
