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
    // Ends at once in an application that quits: then its end waits.
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    thread.join();
}
