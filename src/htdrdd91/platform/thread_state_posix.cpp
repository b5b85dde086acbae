#include "htdrdd91/platform/thread_state.h"

#include <memory>
#include <new>
#include <pthread.h>

namespace htdrdd {
namespace {

// A plain pointer per thread: on some targets thread-local objects with destructors crash when a thread ends.
// The key only reports that end. The pointer is in the storage reserved for libraries loaded at run time:
// access to it is fast, and leak checkers look there.
[[gnu::tls_model("initial-exec")]] thread_local ThreadState* state = nullptr;

extern "C" void EndOfThread(void* ended) {
    const std::unique_ptr<ThreadState> owner(static_cast<ThreadState*>(ended));
    state = nullptr;
}

pthread_key_t MakeKey() {
    pthread_key_t key{};
    if (::pthread_key_create(&key, &EndOfThread) != 0) throw std::bad_alloc();
    return key;
}

} // namespace

ThreadState& ThisThread() {
    if (state == nullptr) {
        static const pthread_key_t key = MakeKey();
        auto made = std::make_unique<ThreadState>();
        if (::pthread_setspecific(key, made.get()) != 0) throw std::bad_alloc();
        state = made.release();
    }
    return *state;
}

} // namespace htdrdd
