#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace brinewright {

// Calls On_Ready from the event loop whenever Fd is ready, until the watch is destroyed or disabled. It may
// be destroyed from inside On_Ready. Destroy it before Fd is closed.
std::unique_ptr<QSocketNotifier> Watch_Fd(int Fd, QSocketNotifier::Type Kind, std::function<void()> On_Ready);

// Work for a later turn of the event loop. What has not run when this object is destroyed never runs.
class Later_Calls {
  public:
    void Call(std::function<void()> Work);
    void Call_After(int Delay_ms, std::function<void()> Work);
    void Forget(); // what Call has not run yet

  private:
    QObject Context;
};

} // namespace brinewright
