#ifndef VARNEL_EGL_BACKEND_THREAD_VALUE_H
#define VARNEL_EGL_BACKEND_THREAD_VALUE_H

// One value for each thread. Each port defines these functions.

/// The calling thread's value; null until it is set.
void* portThreadValue();
/// Sets the calling thread's value. When the thread ends and its value is not null, `end` is called
/// on it with the value; `end` must be the same function in all calls. False without room for it.
bool portSetThreadValue(void* value, void (*end)(void* value));

#endif
