// A process-wide scalar that any thread may read or write: a std::atomic
// accessed with relaxed ordering only. A value stored on one thread is seen
// by later loads on every thread, and two threads at once are not undefined
// behaviour; nothing is ordered around it (on x86-64 the loads and stores are
// the plain moves of an ordinary variable). The exchange is a load and a
// store, as the accessors always were, not a read-modify-write.
#pragma once

#include <atomic>

namespace kiln::frame {

template <class T>
class Relaxed {
public:
  constexpr Relaxed() noexcept : value_(T{}) {}
  constexpr Relaxed(T initial) noexcept : value_(initial) {}
  Relaxed(const Relaxed&) = delete;
  Relaxed& operator=(const Relaxed&) = delete;

  T load() const noexcept { return value_.load(std::memory_order_relaxed); }
  void store(T value) noexcept { value_.store(value, std::memory_order_relaxed); }
  // Stores `value` and returns the value before.
  T exchange(T value) noexcept {
    const T previous = load();
    store(value);
    return previous;
  }

private:
  std::atomic<T> value_;
};

}  // namespace kiln::frame
