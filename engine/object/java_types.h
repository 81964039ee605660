#ifndef VARNEL_ENGINE_OBJECT_JAVA_TYPES_H
#define VARNEL_ENGINE_OBJECT_JAVA_TYPES_H

// The names of the Java Native Interface that engine headers mention, without its header.

struct JNIEnv_;
typedef JNIEnv_ JNIEnv;
struct JavaVM_;
typedef JavaVM_ JavaVM;
class _jobject;
typedef _jobject* jobject;

#endif
