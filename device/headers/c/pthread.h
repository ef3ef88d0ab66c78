// The phone's threads.
#pragma once

#include <sys/types.h>
#include <time.h>

struct _opaque_pthread_t;
typedef struct _opaque_pthread_t* pthread_t;
typedef unsigned long pthread_key_t;

typedef struct {
    long __sig;
    char __opaque[56];
} pthread_mutex_t;
typedef struct {
    long __sig;
    char __opaque[8];
} pthread_mutexattr_t;
typedef struct {
    long __sig;
    char __opaque[40];
} pthread_cond_t;
typedef struct {
    long __sig;
    char __opaque[8];
} pthread_once_t;
typedef struct {
    long __sig;
    char __opaque[56];
} pthread_attr_t;

#define PTHREAD_MUTEX_INITIALIZER {0x32AAABA7, {0}}
#define PTHREAD_COND_INITIALIZER {0x3CB0B1BB, {0}}
#define PTHREAD_ONCE_INIT {0x30B1BCBA, {0}}
#define PTHREAD_MUTEX_RECURSIVE 2

extern "C" {
int pthread_mutexattr_init(pthread_mutexattr_t* attributes);
int pthread_mutexattr_settype(pthread_mutexattr_t* attributes, int type);
int pthread_mutexattr_destroy(pthread_mutexattr_t* attributes);
int pthread_mutex_init(pthread_mutex_t* mutex, const pthread_mutexattr_t* attributes);
int pthread_mutex_lock(pthread_mutex_t* mutex);
int pthread_mutex_trylock(pthread_mutex_t* mutex);
int pthread_mutex_unlock(pthread_mutex_t* mutex);
int pthread_mutex_destroy(pthread_mutex_t* mutex);

int pthread_cond_signal(pthread_cond_t* condition);
int pthread_cond_broadcast(pthread_cond_t* condition);
int pthread_cond_wait(pthread_cond_t* condition, pthread_mutex_t* mutex);
int pthread_cond_timedwait(pthread_cond_t* condition, pthread_mutex_t* mutex,
                           const struct timespec* limit);
int pthread_cond_destroy(pthread_cond_t* condition);

int pthread_once(pthread_once_t* once, void (*routine)());

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*routine)(void*),
                   void* argument);
pthread_t pthread_self();
int pthread_equal(pthread_t one, pthread_t other);
int pthread_join(pthread_t thread, void** result);
int pthread_detach(pthread_t thread);

int pthread_key_create(pthread_key_t* key, void (*destroy)(void*));
void* pthread_getspecific(pthread_key_t key);
int pthread_setspecific(pthread_key_t key, const void* value);
}
