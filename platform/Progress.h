// The progress bar of long work, and the yield to the window system.
#pragma once

namespace pixmosa {

class Progress {
 public:
  virtual ~Progress() = default;
  virtual void Show() = 0;
  virtual void Hide() = 0;
  // percent in 0..100.
  virtual void SetValue(int percent) = 0;
  // Lets the window repaint and events arrive. Handlers may run inside this call. Throws TrabajoCancelado
  // where one of them has cancelled the work.
  virtual void Yield() = 0;
};

// For work that nobody watches.
class NoProgress final : public Progress {
 public:
  void Show() override {}
  void Hide() override {}
  void SetValue(int) override {}
  void Yield() override {}
};

}  // namespace pixmosa
