#include "platform/controls/event_loop.h"

#include "platform/text/numbers.h"

namespace pantrigo {

void EventLoop::dispatch(const std::function<void()>& event) {
  if (ended_) return;
  ++depth_;
  try {
    event();
  } catch (const RunEnded&) {
    // The mark is set already; the unwinding ends here.
  } catch (const RuntimeError& error) {
    fail(error);
  } catch (const std::exception& error) {
    fail(RuntimeError(51, std::string("Internal error: ") + error.what()));
  }
  --depth_;
  if (!ended_ || depth_ > 0 || closed_) return;
  closed_ = true;
  if (closing) closing();
}

void EventLoop::fail(const RuntimeError& error) {
  if (ended_) return;
  error_ = error;
  const std::string text =
      "Run-time error '" + plainText(static_cast<long>(error.number())) + "':\r\n\r\n" + error.text();
  toolkit_.showBox({text, boxStop, std::string(programCaption)});
  ended_ = true;
}

void EventLoop::End() {
  ended_ = true;
  throw RunEnded();
}

void EventLoop::throwIfEnded() const {
  if (ended_) throw RunEnded();
}

BoxAnswer EventLoop::MsgBox(std::string_view text, int style, std::string_view caption) {
  const BoxAnswer answer = toolkit_.showBox({std::string(text), style, std::string(caption)});
  throwIfEnded();
  return answer;
}

void EventLoop::DoEvents() {
  toolkit_.pumpEvents();
  throwIfEnded();
}

void EventLoop::waitModal(Form& form, const std::function<bool()>& over) {
  toolkit_.waitModal(form, [&] { return ended_ || over(); });
  throwIfEnded();
}

}  // namespace pantrigo
