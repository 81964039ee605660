#ifndef VARNEL_TESTS_SUPPORT_TEST_OBJECT_H
#define VARNEL_TESTS_SUPPORT_TEST_OBJECT_H

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>
#include <string>
#include <vector>

#include "engine/object/deferred_release.h"
#include "engine/object/object3d.h"

namespace varnel_test {

/// An object that refers to what a test gives it, and notes how it is asked.
class TestObject : public varnel_m3g::Object3D {
 public:
  static boost::shared_ptr<TestObject> create(int userID = 0) {
    const auto object = boost::make_shared<TestObject>();
    object->reset();
    object->setUserID(userID);
    return object;
  }

  ~TestObject() override {
    if (deaths != nullptr) {
      deaths->push_back(name);
    }
    for (auto& reference : references) {
      varnel_m3g::releaseDeferred(std::move(reference));
    }
  }

  unsigned getReferences(boost::shared_ptr<Object3D>* out, unsigned max) override {
    if (calls != nullptr) {
      calls->push_back(name + (out == nullptr ? " counts" : " fills"));
    }
    unsigned count = Object3D::getReferences(out, max);
    processArrayReferences(references.data(), static_cast<unsigned>(references.size()), out, max,
                           count);
    return count;
  }

  jobject createJavaPeer(JNIEnv*) override { return nullptr; }

  boost::shared_ptr<Object3D> duplicateImpl(boost::shared_ptr<Object3D> target) override {
    if (!target) {
      target = create();
    }
    Object3D::duplicateImpl(target);
    boost::dynamic_pointer_cast<TestObject>(target)->references = references;
    return target;
  }

  std::vector<boost::shared_ptr<Object3D>> references;
  std::string name;
  std::vector<std::string>* calls = nullptr;   // receives "name counts" and "name fills"
  std::vector<std::string>* deaths = nullptr;  // receives the name at the end
};

}  // namespace varnel_test

#endif
