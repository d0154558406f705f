#include "ui/widgets/ResponsiveWait.h"

#include <QEventLoop>

#include <system_error>
#include <thread>

void ResponsiveWait::run(const std::function<void()>& work)
{
    QEventLoop loop;
    std::thread thread;
    try {
        thread = std::thread([&] {
            work();
            QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection);
        });
    } catch (const std::system_error&) {
        work();
        return;
    }
    // Returns at once while the application quits: the thread is then waited for below.
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    thread.join();
}
