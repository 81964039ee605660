#include "tests/support/small_java.h"

#include <cstdarg>
#include <cstdint>

#include "tests/support/java_function.h"

namespace varnel_test {

namespace {

// Method identifiers tell what their signature takes.
enum Method : std::intptr_t { CONSTRUCTOR_OF_HANDLE = 1, STATIC_INT, STATIC_BOOLEAN };

jmethodID idOf(Method method) {
  return reinterpret_cast<jmethodID>(method);
}

Method methodOf(jmethodID id) {
  return static_cast<Method>(reinterpret_cast<std::intptr_t>(id));
}

}  // namespace

SmallJava::SmallJava() : environment{}, machine{} {
  environment.env.functions = &natives;
  environment.owner = this;
  machine.vm.functions = &invocations;
  machine.owner = this;
  fillNatives();
}

jobject SmallJava::newObject(const std::string& className, jlong handle) {
  objects.push_back(std::make_unique<Object>());
  Object& made = *objects.back();
  made.className = className;
  made.handle = handle;
  return reinterpret_cast<jobject>(&made);
}

jstring SmallJava::newString(const std::string& text) {
  const jobject made = newObject("java/lang/String");
  get(made).text = text;
  return static_cast<jstring>(made);
}

jclass SmallJava::classOf(const std::string& name) {
  jclass& known = classes[name];
  if (known == nullptr) {
    const jobject made = newObject("java/lang/Class");
    get(made).text = name;
    known = static_cast<jclass>(made);
  }
  return known;
}

void SmallJava::fillNatives() {
  answerBy(natives.FindClass,
           [](JNIEnv* env, const char* name) { return ownerOf(env).classOf(name); });
  answerBy(natives.GetMethodID,
           [](JNIEnv*, jclass, const char*, const char*) { return idOf(CONSTRUCTOR_OF_HANDLE); });
  answerBy(natives.GetStaticMethodID, [](JNIEnv*, jclass, const char*, const char* signature) {
    return idOf(std::string(signature).find("Z)") != std::string::npos ? STATIC_BOOLEAN
                                                                       : STATIC_INT);
  });
  answerBy(natives.NewObjectV, [](JNIEnv* env, jclass type, jmethodID, va_list arguments) {
    SmallJava& java = ownerOf(env);
    const jobject made = java.newObject(get(type).text, va_arg(arguments, jlong));
    if (java.constructed) {
      java.constructed(made);
    }
    return made;
  });
  answerBy(natives.CallStaticVoidMethodV,
           [](JNIEnv* env, jclass, jmethodID method, va_list arguments) {
             const std::string name = get(va_arg(arguments, jobject)).text;
             const int value = va_arg(arguments, int);
             ownerOf(env).values[name] = methodOf(method) == STATIC_BOOLEAN ? value != 0 : value;
           });
  answerBy(natives.ThrowNew, [](JNIEnv* env, jclass type, const char* message) -> jint {
    ownerOf(env).exception = get(type).text + ": " + message;
    return 0;
  });
  answerBy(natives.ExceptionCheck, [](JNIEnv* env) -> jboolean {
    return ownerOf(env).exception.empty() ? JNI_FALSE : JNI_TRUE;
  });
  answerBy(natives.NewLocalRef, [](JNIEnv*, jobject object) { return object; });
  answerBy(natives.DeleteLocalRef, [](JNIEnv*, jobject) {});
  answerBy(natives.NewGlobalRef, [](JNIEnv*, jobject object) { return object; });
  answerBy(natives.DeleteGlobalRef, [](JNIEnv*, jobject) {});
  answerBy(natives.NewStringUTF,
           [](JNIEnv* env, const char* text) { return ownerOf(env).newString(text); });
  answerBy(natives.GetStringUTFChars,
           [](JNIEnv*, jstring text, jboolean*) { return get(text).text.c_str(); });
  answerBy(natives.ReleaseStringUTFChars, [](JNIEnv*, jstring, const char*) {});
  answerBy(natives.GetArrayLength,
           [](JNIEnv*, jarray array) { return static_cast<jsize>(get(array).elements.size()); });
  answerBy(natives.NewObjectArray, [](JNIEnv* env, jsize length, jclass, jobject initial) {
    const jobject made = ownerOf(env).newObject("[Ljava/lang/Object;");
    get(made).elements.assign(static_cast<std::size_t>(length), initial);
    return static_cast<jobjectArray>(made);
  });
  answerBy(natives.SetObjectArrayElement,
           [](JNIEnv*, jobjectArray array, jsize index, jobject value) {
             get(array).elements.at(static_cast<std::size_t>(index)) = value;
           });
  answerBy(natives.GetJavaVM, [](JNIEnv* env, JavaVM** vm) -> jint {
    *vm = &ownerOf(env).machine.vm;
    return 0;
  });
  answerBy(invocations.GetEnv, [](JavaVM* vm, void** env, jint) -> jint {
    *env = &reinterpret_cast<Machine*>(vm)->owner->environment.env;
    return 0;
  });
  answerBy(invocations.AttachCurrentThread, [](JavaVM* vm, void** env, void*) -> jint {
    *env = &reinterpret_cast<Machine*>(vm)->owner->environment.env;
    return 0;
  });
  answerBy(invocations.DetachCurrentThread, [](JavaVM*) -> jint { return 0; });
}

}  // namespace varnel_test
