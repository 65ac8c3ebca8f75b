#pragma once

namespace bench::desktop {

/// Keeps a pointer to what is open, for as long as it is.
template <class Window>
class WhileOpen {
 public:
  WhileOpen(Window*& place, Window* window) : place_(place) { place_ = window; }
  WhileOpen(const WhileOpen&) = delete;
  WhileOpen& operator=(const WhileOpen&) = delete;
  ~WhileOpen() { place_ = nullptr; }

 private:
  Window*& place_;
};

}  // namespace bench::desktop
