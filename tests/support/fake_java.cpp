#include "tests/support/fake_java.h"

#include "tests/support/java_function.h"

namespace varnel_test {

namespace {

std::string numbered(const char* call, const void* reference) {
  return std::string(call) + "(" + std::to_string(reinterpret_cast<std::intptr_t>(reference)) + ")";
}

}  // namespace

FakeJava::FakeJava() {
  environment.env.functions = &natives;
  environment.owner = this;
  machine.vm.functions = &invocations;
  machine.owner = this;

  answerBy(natives.GetJavaVM, [](JNIEnv* env, JavaVM** vm) -> jint {
    ownerOf(env).calls.push_back("GetJavaVM");
    *vm = ownerOf(env).vm();
    return JNI_OK;
  });
  answerBy(natives.NewGlobalRef, [](JNIEnv* env, jobject reference) -> jobject {
    ownerOf(env).calls.push_back(numbered("NewGlobalRef", reference));
    return object(reinterpret_cast<std::intptr_t>(reference) + 1000);
  });
  answerBy(natives.DeleteGlobalRef, [](JNIEnv* env, jobject reference) {
    ownerOf(env).calls.push_back(numbered("DeleteGlobalRef", reference));
  });
  answerBy(natives.NewLocalRef, [](JNIEnv* env, jobject reference) -> jobject {
    ownerOf(env).calls.push_back(numbered("NewLocalRef", reference));
    return reference;
  });
  answerBy(invocations.GetEnv, [](JavaVM* vm, void** env, jint version) -> jint {
    FakeJava& owner = ownerOf(vm);
    owner.calls.push_back(
        numbered("GetEnv", reinterpret_cast<void*>(static_cast<std::intptr_t>(version))));
    *env = owner.attached ? owner.env() : nullptr;
    return owner.attached ? JNI_OK : JNI_EDETACHED;
  });
  answerBy(invocations.AttachCurrentThread, [](JavaVM* vm, void** env, void* arguments) -> jint {
    FakeJava& owner = ownerOf(vm);
    owner.calls.push_back(numbered("AttachCurrentThread", arguments));
    if (!owner.attachSucceeds) {
      return JNI_ERR;
    }
    *env = owner.env();
    return JNI_OK;
  });
  answerBy(invocations.DetachCurrentThread, [](JavaVM* vm) -> jint {
    ownerOf(vm).calls.push_back("DetachCurrentThread");
    return JNI_OK;
  });
}

}  // namespace varnel_test
