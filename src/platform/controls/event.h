#pragma once

#include <functional>
#include <utility>

namespace pantrigo {

/// An event of a control or a form. It has at most one handler, which the program wires; raising one without a handler
/// does nothing. Raised by code it is a plain call: an error goes to the caller.
template <class... Arguments>
class Event {
 public:
  Event& operator=(std::function<void(Arguments...)> handler) {
    handler_ = std::move(handler);
    return *this;
  }
  void operator()(Arguments... arguments) const {
    if (handler_) handler_(arguments...);
  }
  [[nodiscard]] bool isWired() const { return static_cast<bool>(handler_); }

 private:
  std::function<void(Arguments...)> handler_;
};

}  // namespace pantrigo
