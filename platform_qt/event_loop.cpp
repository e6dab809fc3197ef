#include "platform_qt/event_loop.hpp"

#include <QCoreApplication>
#include <QTimer>

#include <utility>

namespace brinewright {

std::unique_ptr<QSocketNotifier> Watch_Fd(int Fd, QSocketNotifier::Type Kind,
                                          std::function<void()> On_Ready) {
    auto Watch = std::make_unique<QSocketNotifier>(Fd, Kind);
    QObject::connect(Watch.get(), &QSocketNotifier::activated, Watch.get(),
                     [Ready = std::move(On_Ready)] { Ready(); });
    return Watch;
}

void Later_Calls::Call(std::function<void()> Work) {
    QMetaObject::invokeMethod(&Context, std::move(Work), Qt::QueuedConnection);
}

void Later_Calls::Call_After(int Delay_ms, std::function<void()> Work) {
    QTimer::singleShot(Delay_ms, Qt::CoarseTimer, &Context, std::move(Work));
}

void Later_Calls::Forget() { QCoreApplication::removePostedEvents(&Context); }

} // namespace brinewright
