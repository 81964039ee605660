#ifndef VARNEL_BINDING_WINDOWS_JNI_MD_H
#define VARNEL_BINDING_WINDOWS_JNI_MD_H

// The Java Native Interface's machine-dependent names on Windows, which the JDK of a Linux host,
// whose jni.h a cross-compilation uses, does not bring.

#define JNIEXPORT __declspec(dllexport)
#define JNIIMPORT __declspec(dllimport)
#define JNICALL __stdcall

// As wide as the long of the usual header, and the type that the engine speaks.
typedef int jint;
typedef long long jlong;
typedef signed char jbyte;

#endif
